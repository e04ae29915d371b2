// Copyright Velmorant. All Rights Reserved.

#include "VelmorantVariantHandler.h"

FString UVelmorantVariantHandler::CombineVariantSet(const FString& RoomName, const FString& GroupName)
{
	return RoomName + TEXT(" - ") + GroupName;
}
