// Copyright Velmorant. All Rights Reserved.

#pragma once

class FHostDetailsView;

/** The details views that exist: all of them show a customization as soon as it is there. */
namespace OpenDetailsViews
{
	void Add(FHostDetailsView& View);
	void Remove(FHostDetailsView& View);

	/** Those that are there at the beginning, unless they go meanwhile. */
	void RebuildAll();
}
