// Copyright Velmorant. All Rights Reserved.

#include "Engine/Level.h"

#include "Engine/World.h"

UWorld* ULevel::GetWorld() const
{
	return GetTypedOuter<UWorld>();
}
