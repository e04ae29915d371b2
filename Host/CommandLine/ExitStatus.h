// Copyright Velmorant. All Rights Reserved.

#pragma once

/** How the program ends; scripts and build servers rely on these numbers. */
enum class EExitStatus : int
{
	Done = 0,
	Failed = 1, // check: the profile is missing, or a repair is not as it was; run: an expectation did not hold; install, contract: the plugin is not as the module needs it
	Usage = 2, // unknown options, no such project or plugin, no repair to take back
	Trouble = 3, // a file could not be read or written, a script is wrong or could not go on, no verdict was reached, the output could not be written
};
