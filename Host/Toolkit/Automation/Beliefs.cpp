// Copyright Velmorant. All Rights Reserved.

#include "Automation/Beliefs.h"

namespace Beliefs
{
	struct FIntention
	{
		const TCHAR* Name;
		const TCHAR* Reason;
	};

	/** What Docs/Architecture.md calls a deliberate difference. */
	const FIntention Intentions[] = {
		{TEXT("encoding of an existing text file after SaveStringToFile"), TEXT("the host keeps encoding and line ends, so that a repair changes two lines and not all")},
		{TEXT("encoding of an existing text file after SaveStringArrayToFile"), TEXT("the host keeps encoding and line ends, so that a repair changes two lines and not all")},
		{TEXT("reports of an ensure that fails three times"), TEXT("the host reports once per place and start of an editor, several of which run in one process")},
	};
}

TArray<FBelief> Beliefs::Of(const FReportedTest& Test)
{
	const FString Prefix = TEXT("Belief: ");
	TArray<FBelief> Found;
	for (const FAutomationExecutionEntry& Entry : Test.Entries)
	{
		FBelief Belief;
		if (Entry.Event.Message.StartsWith(Prefix, ESearchCase::CaseSensitive) && Entry.Event.Message.RightChop(Prefix.Len()).Split(TEXT(" = "), &Belief.Name, &Belief.Value))
		{
			Found.Add(Belief);
		}
	}
	return Found;
}

const TCHAR* Beliefs::FindIntention(const FString& Name)
{
	for (const FIntention& Intention : Intentions)
	{
		if (Name.Equals(Intention.Name))
		{
			return Intention.Reason;
		}
	}
	return nullptr;
}
