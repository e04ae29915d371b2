// Copyright Velmorant. All Rights Reserved.

#include "FixtureInterfaces.h"

FString UFixtureGreeterObject::Greet_Implementation(const FString& Whom, int32& OutLength)
{
	OutLength = Whom.Len();
	return TEXT("Good day, ") + Whom;
}
