// Copyright Velmorant. All Rights Reserved.

#include "FixtureEvents.h"

FString UFixtureEvents::Greet_Implementation(const FString& Whom, int32 Times)
{
	FString Result;
	for (int32 Time = 0; Time < Times; ++Time)
	{
		Result += TEXT("Hello ") + Whom;
	}
	return Result;
}

bool UFixtureEvents::IsReady_Implementation(FFixturePoint& OutWhere) const
{
	OutWhere = FFixturePoint(7, 8);
	return true;
}

void UFixtureEvents::Count_Implementation()
{
	++NumCounted;
}

FString UFixtureDerivedEvents::Greet_Implementation(const FString& Whom, int32 Times)
{
	return TEXT("Derived: ") + Super::Greet_Implementation(Whom, Times);
}
