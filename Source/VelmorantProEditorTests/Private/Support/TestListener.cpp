// Copyright Velmorant. All Rights Reserved.

#include "Support/TestListener.h"

#include "UObject/UnrealType.h"

void UVelmorantTestListener::Hear(int32 Number)
{
	++NumHeard;
	if (Diary)
	{
		Diary->Add(FString::Printf(TEXT("%s heard %d"), *Label.ToString(), Number));
	}
}

void UVelmorantTestListener::HearOnce(int32 Number)
{
	Hear(Number);
	Signal.RemoveDynamic(this, &UVelmorantTestListener::HearOnce);
}

void UVelmorantTestListener::HearOption(FString Option, ESelectInfo::Type SelectInfo)
{
	if (Diary)
	{
		Diary->Add(Option + (SelectInfo == ESelectInfo::Direct ? TEXT(" directly") : TEXT(" by somebody")));
	}
}

void UVelmorantTestListener::HearPlainly()
{
	++NumHeard;
}

void UVelmorantTestListener::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	++NumChanges;
}
