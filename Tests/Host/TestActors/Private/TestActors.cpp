// Copyright Velmorant. All Rights Reserved.

#include "TestActors.h"

TArray<FString>& FTestSubsystemDiary::Get()
{
	static TArray<FString> Diary;
	return Diary;
}

void UTestADependentSubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	const bool bFound = Collection.InitializeDependency<UTestNeededSubsystem>() != nullptr;
	FTestSubsystemDiary::Get().Add(bFound ? TEXT("Dependent up") : TEXT("Dependent up alone"));
}

void UTestADependentSubsystem::Deinitialize()
{
	FTestSubsystemDiary::Get().Add(TEXT("Dependent down"));
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
