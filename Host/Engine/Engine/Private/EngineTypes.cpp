// Copyright Velmorant. All Rights Reserved.

#include "Engine/EngineTypes.h"

bool FCollisionResponseContainer::SetResponse(ECollisionChannel Channel, ECollisionResponse NewResponse)
{
	if (Channel < 0 || Channel >= int32(sizeof(Responses)) || Responses[Channel] == NewResponse)
	{
		return false;
	}
	Responses[Channel] = uint8(NewResponse);
	return true;
}

void FCollisionResponseContainer::SetAllChannels(ECollisionResponse NewResponse)
{
	for (uint8& Response : Responses)
	{
		Response = uint8(NewResponse);
	}
}

ECollisionResponse FCollisionResponseContainer::GetResponse(ECollisionChannel Channel) const
{
	checkf(Channel >= 0 && Channel < int32(sizeof(Responses)), TEXT("%d is no collision channel"), int32(Channel));
	return ECollisionResponse(Responses[Channel]);
}
