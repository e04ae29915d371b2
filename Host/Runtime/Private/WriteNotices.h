// Copyright Velmorant. All Rights Reserved.

#pragma once

/** Work that could not be written is shown where the designer looks, beside what the module says. */
namespace WriteNotices
{
	/** From now on, as long as the editor is up. */
	void Start();
}
