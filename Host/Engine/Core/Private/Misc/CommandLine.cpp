// Copyright Velmorant. All Rights Reserved.

#include "Misc/CommandLine.h"

#include "Containers/UnrealString.h"
#include "Misc/Optional.h"

namespace CommandLine
{
	TOptional<FString>& Text()
	{
		static TOptional<FString> Value;
		return Value;
	}
}

bool FCommandLine::IsInitialized()
{
	return CommandLine::Text().IsSet();
}

const TCHAR* FCommandLine::Get()
{
	return IsInitialized() ? *CommandLine::Text().GetValue() : TEXT("");
}

bool FCommandLine::Set(const TCHAR* NewCommandLine)
{
	CommandLine::Text() = FString(NewCommandLine);
	return true;
}
