// Copyright Velmorant. All Rights Reserved.

#include "TestActors.h"

TArray<FString>& FTestSubsystemDiary::Get()
{
	static TArray<FString> Diary;
	return Diary;
}

void UTestFirstSubsystem::Initialize(FSubsystemCollectionBase&)
{
	FTestSubsystemDiary::Get().Add(TEXT("First up"));
}

void UTestFirstSubsystem::Deinitialize()
{
	FTestSubsystemDiary::Get().Add(TEXT("First down"));
}

void UTestNeededSubsystem::Initialize(FSubsystemCollectionBase&)
{
	FTestSubsystemDiary::Get().Add(TEXT("Needed up"));
}

void UTestNeededSubsystem::Deinitialize()
{
	FTestSubsystemDiary::Get().Add(TEXT("Needed down"));
}

bool UTestUnwantedSubsystem::ShouldCreateSubsystem(UObject*) const
{
	return false;
}
