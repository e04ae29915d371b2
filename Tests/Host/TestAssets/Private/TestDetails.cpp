// Copyright Velmorant. All Rights Reserved.

#include "TestDetails.h"

#include "UObject/UnrealType.h"

namespace TestDetails
{
	FString NameOf(const FProperty* Property)
	{
		return Property != nullptr ? Property->GetName() : FString(TEXT("None"));
	}
}

void UTestDetails::PreEditChange(FProperty* Property)
{
	Super::PreEditChange(Property);
	Told.Add(TEXT("before ") + TestDetails::NameOf(Property));
}

void UTestDetails::PostEditChangeProperty(FPropertyChangedEvent& Event)
{
	Super::PostEditChangeProperty(Event);
	Told.Add(FString::Printf(TEXT("after %s in %s"), *TestDetails::NameOf(Event.Property), *TestDetails::NameOf(Event.MemberProperty)));
}

bool UTestDetails::CanEditChange(const FProperty*) const
{
	return !bRefusesChanges;
}
