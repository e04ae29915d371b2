// Copyright Velmorant. All Rights Reserved.

#pragma once

/** What the entries of the toolbar menu open. */
namespace VelmorantToolLaunchers
{
	/** Both panels open in a tab of their own, or come to the front; what happened is logged. */
	void OpenUnitVolumeTools();
	void OpenDeveloperPanel();

	void OpenDocumentationPage();
	void OpenSupportPage();
}
