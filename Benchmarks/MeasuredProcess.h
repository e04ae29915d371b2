// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

/** What one run of a program took. */
struct FMeasuredProcess
{
	double Seconds = 0.0; // from the start of the process to its end
	double PeakMebibytes = 0.0; // the largest resident set
	int ExitStatus = -1; // -1 when it could not be run or was killed
};

/** Runs a program without input, its output thrown away, and waits for it. The first argument is the program, looked up in PATH. */
FMeasuredProcess MeasureProcess(const std::vector<std::string>& Arguments);
