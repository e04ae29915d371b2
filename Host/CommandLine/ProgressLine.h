// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <memory>

/**
 * Says what the program is doing and for how long, in a line of the terminal behind the error output that comes and goes: from the
 * second second on, for as long as the object lives. Without a terminal it does nothing. Of objects within one another the inner one shows.
 */
class FProgressLine
{
public:
	explicit FProgressLine(const FString& What);
	~FProgressLine();
	FProgressLine(const FProgressLine&) = delete;
	FProgressLine& operator=(const FProgressLine&) = delete;

	/** Takes the line away for as long as it lives: somebody else writes to the terminal, or reads from it. */
	class FPause
	{
	public:
		FPause();
		~FPause();
		FPause(const FPause&) = delete;
		FPause& operator=(const FPause&) = delete;
	};

private:
	class FWriter;
	std::unique_ptr<FWriter> Writer;
};
