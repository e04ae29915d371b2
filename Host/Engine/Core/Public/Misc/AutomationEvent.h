// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"

enum class EAutomationEventType : uint8
{
	Info,
	Warning,
	Error
};

/** Something that a test has to say. */
struct FAutomationEvent
{
	FAutomationEvent(EAutomationEventType InType, const FString& InMessage)
		: Type(InType)
		, Message(InMessage)
	{
	}

	EAutomationEventType Type;
	FString Message; // a line of the log reads "LogCategory: text"
	FString Context;
	FGuid Artifact; // invalid: none
};

/** The same, with where and when. */
struct FAutomationExecutionEntry
{
	explicit FAutomationExecutionEntry(const FAutomationEvent& InEvent)
		: Event(InEvent)
		, Timestamp(FDateTime::UtcNow())
	{
	}

	FAutomationEvent Event;
	FString Filename; // empty for lines of the log
	int32 LineNumber = -1;
	FDateTime Timestamp; // UTC
};
