// Copyright Velmorant. All Rights Reserved.

#pragma once

/** For comparison: a window with a list, as little as Qt lets one write. This program shows it when started with the argument. */
namespace BareWindow
{
	inline const char* const Argument = "--bare-window";

	/** Ends once it was painted. */
	int Run();
}
