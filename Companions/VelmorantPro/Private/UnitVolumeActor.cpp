// Copyright Velmorant. All Rights Reserved.

#include "UnitVolumeActor.h"

FString AUnitVolumeActor::GetVolumeLabel() const
{
#if WITH_EDITOR
	return GetActorLabel();
#else
	return GetName();
#endif
}
