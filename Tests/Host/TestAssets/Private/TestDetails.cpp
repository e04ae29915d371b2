// Copyright Velmorant. All Rights Reserved.

#include "TestDetails.h"

#include "UObject/UnrealType.h"

void UTestDetails::PreEditChange(FProperty* Property)
{
	Super::PreEditChange(Property);
	Told.Add(TEXT("before ") + (Property != nullptr ? Property->GetName() : FString(TEXT("None"))));
}

void UTestDetails::PostEditChangeProperty(FPropertyChangedEvent& Event)
{
	Super::PostEditChangeProperty(Event);
	Told.Add(FString::Printf(TEXT("after %s in %s"), *Event.GetPropertyName().ToString(), *Event.GetMemberPropertyName().ToString()));
}

bool UTestDetails::CanEditChange(const FProperty*) const
{
	return !bRefusesChanges;
}
