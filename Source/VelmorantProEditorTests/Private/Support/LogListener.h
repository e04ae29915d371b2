// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

/** The log, for the length of a scope. */
class FVelmorantLogListener final : public FOutputDevice
{
public:
	FVelmorantLogListener() { GLog->AddOutputDevice(this); }
	virtual ~FVelmorantLogListener() override { GLog->RemoveOutputDevice(this); }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.Add(FString::Printf(TEXT("%s %s %s"), *Category.ToString(), ToString(Verbosity), V));
	}

	int32 Count(const TCHAR* Part) const
	{
		return Lines.FilterByPredicate([Part](const FString& Line) { return Line.Contains(Part); }).Num();
	}

	TArray<FString> Lines;
};
