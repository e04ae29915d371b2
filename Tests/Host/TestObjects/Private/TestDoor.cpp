// Copyright Velmorant. All Rights Reserved.

#include "TestDoor.h"

int32 UTestDoor::Add(int32 A, int32 B)
{
	return A + B;
}

FString UTestDoor::Join(const FString& A, FName B)
{
	return A + B.ToString();
}

void UTestDoor::Split(const FString& Text, FString& OutHead, FString& OutTail) const
{
	Text.Split(TEXT("|"), &OutHead, &OutTail);
}

FString UTestDoor::Describe_Implementation(int32 Detail)
{
	return FString::Printf(TEXT("door %d"), Detail);
}

FString UTestDoor::Open_Implementation(const FString& Who, int32 Angle)
{
	return FString::Printf(TEXT("%s opens by %d"), *Who, Angle);
}

void UTestDoor::HandleMoved()
{
	Log.Add(GetName() + TEXT(" moved"));
	if (WhenMoved)
	{
		WhenMoved();
	}
}

void UTestDoor::HandleOpened(const FString& Who, bool bWide)
{
	Log.Add(Who + (bWide ? TEXT(" wide") : TEXT(" narrow")));
}

int32 UTestDoor::CountFrom(int32 Start)
{
	return Start + 1;
}

FString UTestSlidingDoor::Describe_Implementation(int32 Detail)
{
	return TEXT("sliding ") + Super::Describe_Implementation(Detail);
}

FString UTestSlidingDoor::Open_Implementation(const FString& Who, int32)
{
	return Who + TEXT(" slides");
}
