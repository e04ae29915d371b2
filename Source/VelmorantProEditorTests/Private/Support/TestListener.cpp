// Copyright Velmorant. All Rights Reserved.

#include "Support/TestListener.h"

#include "UObject/Package.h"
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

void UVelmorantTestListener::HearAndSilence(int32 Number)
{
	Hear(Number);
	CastChecked<UVelmorantTestListener>(GetOuter())->Signal.RemoveDynamic(CastChecked<UVelmorantTestListener>(Friend.Get()), &UVelmorantTestListener::HearAndSilence);
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

void UVelmorantTestListener::HearClick(UObject*)
{
	++NumHeard;
}

UVelmorantTestListener* UVelmorantTestListener::Make(const TCHAR* ChoiceName)
{
	UVelmorantTestListener* Object = NewObject<UVelmorantTestListener>(GetTransientPackage(), NAME_None, RF_Transactional);
	Object->Choice.Name = ChoiceName;
	return Object;
}

void UVelmorantTestListener::PostEditUndo()
{
	Super::PostEditUndo();
	++NumUndone;
}

void UVelmorantTestListener::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	++NumChanges;
}
