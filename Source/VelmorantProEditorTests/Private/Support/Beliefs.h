// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AutomationTest.h"

namespace VelmorantTests
{
	/**
	 * Keeps in the report what this editor does where nothing of ours depends on it. A comparison of two reports shows where editors differ.
	 * @param Name  of its own in the whole suite, and no " = " in it
	 */
	inline void RecordBelief(FAutomationTestBase& Test, const TCHAR* Name, const FString& Value)
	{
		Test.AddInfo(FString::Printf(TEXT("Belief: %s = %s"), Name, *Value));
	}

	/** For literals, which would be taken for a bool. */
	inline void RecordBelief(FAutomationTestBase& Test, const TCHAR* Name, const TCHAR* Value)
	{
		RecordBelief(Test, Name, FString(Value));
	}

	inline void RecordBelief(FAutomationTestBase& Test, const TCHAR* Name, bool bValue)
	{
		RecordBelief(Test, Name, FString(bValue ? TEXT("true") : TEXT("false")));
	}

	inline void RecordBelief(FAutomationTestBase& Test, const TCHAR* Name, int32 Value)
	{
		RecordBelief(Test, Name, FString::FromInt(Value));
	}
}
