// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/AutomationTest.h"
#include "Templates/Function.h"

/** Running the automation tests that this program was built with, in the running editor. */
namespace HostAutomation
{
	enum class EState : uint8
	{
		Success, // perhaps with warnings
		Fail,
		NotRun, // an earlier test ended the run
	};

	struct FResult
	{
		explicit FResult(const FAutomationTestInfo& InTest)
			: Test(InTest)
		{
		}

		FAutomationTestInfo Test;
		EState State = EState::NotRun;
		FDateTime Started; // the smallest date when it did not
		FAutomationTestExecutionInfo Info;
	};

	/**
	 * By path: those whose path contains one of the texts that '+' joins; case does not count. An empty filter takes all.
	 */
	TArray<FAutomationTestInfo> Find(const FString& Filter);

	/**
	 * Runs the test with all its latent commands. One that waits for more than a minute of the editor's time fails.
	 * @param NextFrame lets the editor's time pass by a frame
	 * @param bOutAlive false after a failed check, which ends an engine: nothing may be run in this editor any more
	 */
	FResult Run(const FAutomationTestInfo& Test, TFunctionRef<void()> NextFrame, bool& bOutAlive);
}
