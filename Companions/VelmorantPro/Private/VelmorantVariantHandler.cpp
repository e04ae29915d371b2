// Copyright Velmorant. All Rights Reserved.

#include "VelmorantVariantHandler.h"

#include "VelmorantProSettings.h"

FString UVelmorantVariantHandler::CombineVariantSet(const FString& RoomName, const FString& GroupName)
{
	const UVelmorantProSettings* Settings = GetDefault<UVelmorantProSettings>();
	return Settings->bGroupBeforeRoom ? GroupName + Settings->VariantSetSeparator + RoomName : RoomName + Settings->VariantSetSeparator + GroupName;
}
