// Copyright Velmorant. All Rights Reserved.

#pragma once

/** The one map that the editor has open. */
namespace EditorWorld
{
	/** Takes the open world down, whatever is unsaved in it. Its package's name becomes free. Without a world, nothing happens. */
	void Close();
}
