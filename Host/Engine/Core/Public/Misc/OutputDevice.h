// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "String/FormatStringSan.h"
#include "UObject/NameTypes.h"

/** Something that takes lines of text: the log, a captured log, an import's messages. */
class FOutputDevice
{
public:
	FOutputDevice() = default;
	virtual ~FOutputDevice() = default;
	FOutputDevice(const FOutputDevice&) = default;
	FOutputDevice& operator=(const FOutputDevice&) = default;

	/** One line, without category, level and line end. V is good during the call only. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	virtual void Flush() {}
	virtual void TearDown() {}

	void Log(const TCHAR* Text) { Serialize(Text, ELogVerbosity::Log, NAME_None); }
	void Log(const FString& Text) { Log(*Text); }
	void Log(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Text) { Serialize(*Text, Verbosity, Category); }

	template<typename... Types>
	void Logf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		LogFormatted(NAME_None, ELogVerbosity::Log, Format.Format, Arguments);
	}

	template<typename... Types>
	void Logf(ELogVerbosity::Type Verbosity, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		LogFormatted(NAME_None, Verbosity, Format.Format, Arguments);
	}

private:
	void LogFormatted(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, const UE::Core::FFormatArgument* Args);
};
