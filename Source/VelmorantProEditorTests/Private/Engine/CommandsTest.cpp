// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCommandListTest, "Velmorant.Engine.Commands.Lists", VelmorantTests::Flags)

bool FVelmorantCommandListTest::RunTest(const FString&)
{
	// Commands of the module: the tests register none of their own, which could not be taken back.
	const TSharedPtr<FUICommandInfo> Mapped = FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantPro_OpenProSettings");
	const TSharedPtr<FUICommandInfo> Other = FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantCommand_OpenMenu");
	if (!TestValid(TEXT("commands are found by name"), Mapped) || !TestValid(TEXT("each of a context"), Other))
	{
		return false;
	}
	int32 NumRuns = 0;
	bool bAllowed = true;
	FUICommandList List;
	List.MapAction(Mapped, FExecuteAction::CreateLambda([&NumRuns] { ++NumRuns; }), FCanExecuteAction::CreateLambda([&bAllowed] { return bAllowed; }));
	TestTrue(TEXT("a mapped command runs"), List.TryExecuteAction(Mapped.ToSharedRef()) && NumRuns == 1);
	bAllowed = false;
	TestFalse(TEXT("unless it may not"), List.TryExecuteAction(Mapped.ToSharedRef()));
	TestEqual(TEXT("then nothing runs"), NumRuns, 1);
	TestFalse(TEXT("one that is not mapped is not"), List.IsActionMapped(Other));

	const TSharedRef<FUICommandList> Inner = MakeShared<FUICommandList>();
	Inner->MapAction(Mapped, FExecuteAction::CreateLambda([&NumRuns] { ++NumRuns; }), FCanExecuteAction());
	TestTrue(TEXT("without a condition it may always run"), Inner->CanExecuteAction(Mapped.ToSharedRef()));
	const TSharedRef<FUICommandList> Outer = MakeShared<FUICommandList>();
	Outer->Append(Inner);
	TestTrue(TEXT("a list runs what lists that were appended map"), Outer->TryExecuteAction(Mapped.ToSharedRef()) && NumRuns == 2);
	return true;
}

#endif
