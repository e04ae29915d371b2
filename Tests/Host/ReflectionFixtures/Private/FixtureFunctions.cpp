// Copyright Velmorant. All Rights Reserved.

#include "FixtureFunctions.h"

FString UFixtureFunctions::Join(const FString& First, FString Second, FName Third) const
{
	return First + Second + (Third.IsNone() ? FString() : Third.ToString());
}

bool UFixtureFunctions::Split(const FString& Text, FString& OutLeft, TArray<FString>& OutParts) const
{
	FString Right;
	if (!Text.Split(TEXT(","), &OutLeft, &Right))
	{
		return false;
	}
	OutParts = {OutLeft, Right};
	return true;
}

void UFixtureFunctions::Grow(FFixturePoint& Point, int32 By)
{
	Point.X += By;
	Point.Y += By;
}

TMap<FName, FFixturePoint> UFixtureFunctions::Collect(const TArray<FFixturePoint>& Points, const TSet<FName>& Names)
{
	TMap<FName, FFixturePoint> Result;
	int32 Index = 0;
	for (const FName& Name : Names)
	{
		Result.Add(Name, Points[Index++]);
	}
	return Result;
}

EFixtureDoor UFixtureFunctions::Next(EFixtureDoor Door, EFixtureSpaced::Type Width, TEnumAsByte<EFixturePlain> Plain, int64 Step, FVector2D)
{
	const bool bMove = EFixtureSpaced::IsWide(Width) && Plain == FixturePlain_Second;
	return bMove ? static_cast<EFixtureDoor>(static_cast<int64>(Door) + Step) : Door;
}

void UFixtureFunctions::Answer(const FFixtureAnswer& Receiver, FText InText)
{
	if (Receiver.IsBound())
	{
		Receiver.Execute(InText.ToString());
	}
}
