// Copyright Velmorant. All Rights Reserved.

#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include "HostAssertions.h"
#include "HostState.h"
#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"
#include "String/FormatMessage.h"

namespace AssertionMacros
{
	// Which editor is running, so that every editor reports its own failed conditions once.
	uint32 EditorNumber = 1;
	const FHostStateReset CountEditors([] { ++EditorNumber; });

	FString Describe(const TCHAR* What, const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
	{
		return FString::Printf(TEXT("%s%hs [File:%hs] [Line: %d]"), What, Expression, File, Line);
	}

	FString Describe(const TCHAR* What, const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
	{
		FString Message = Describe(What, Expression, File, Line) + TEXT(" \n");
		UE::String::Private::AppendFormatted(Message, Format, Args);
		return Message;
	}

	void Write(ELogVerbosity::Type Verbosity, const FString& Message)
	{
		FOutputDeviceRedirector::Get()->Serialize(*Message, Verbosity, TEXT("LogOutputDevice"));
	}

	[[noreturn]] void Raise(const FString& Message, const ANSICHAR* Expression)
	{
		Write(ELogVerbosity::Fatal, Message);
		throw FHostAssertionFailure(TCHAR_TO_UTF8(*Message), Expression);
	}
}

void UE::Assert::Private::CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	AssertionMacros::Raise(AssertionMacros::Describe(TEXT("Assertion failed: "), Expression, File, Line), Expression);
}

void UE::Assert::Private::CheckFailedFormatted(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	AssertionMacros::Raise(AssertionMacros::Describe(TEXT("Assertion failed: "), Expression, File, Line, Format, Args), Expression);
}

void UE::Assert::Private::PureVirtualCalled(const ANSICHAR* Function)
{
	AssertionMacros::Raise(FString::Printf(TEXT("Pure virtual not implemented (%hs)"), Function), "");
}

bool UE::Assert::Private::ShouldReport(uint32& LastReported)
{
	if (LastReported == AssertionMacros::EditorNumber)
	{
		return false;
	}
	LastReported = AssertionMacros::EditorNumber;
	return true;
}

void UE::Assert::Private::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	AssertionMacros::Write(ELogVerbosity::Error, AssertionMacros::Describe(TEXT("Ensure condition failed: "), Expression, File, Line));
}

void UE::Assert::Private::EnsureFailedFormatted(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	AssertionMacros::Write(ELogVerbosity::Error, AssertionMacros::Describe(TEXT("Ensure condition failed: "), Expression, File, Line, Format, Args));
}

void UE::Logging::Private::LogFormatted(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	FString Text;
	UE::String::Private::AppendFormatted(Text, Format, Args);
	FOutputDeviceRedirector::Get()->Serialize(*Text, Verbosity, Category.GetCategoryName());
}

void UE::Logging::Private::LogFatalFormatted(const FLogCategoryBase& Category, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	FString Text;
	UE::String::Private::AppendFormatted(Text, Format, Args);
	FOutputDeviceRedirector::Get()->Serialize(*Text, ELogVerbosity::Fatal, Category.GetCategoryName());
	throw FHostAssertionFailure(TCHAR_TO_UTF8(*FString::Printf(TEXT("Fatal error: [File:%hs] [Line: %d] \n%s"), File, Line, *Text)), "");
}
