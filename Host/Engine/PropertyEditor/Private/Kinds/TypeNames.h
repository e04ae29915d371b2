// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

namespace TypeNames
{
	/** A type's name and those of its super types. Empty for null. */
	inline TArray<FName> GetChain(const UStruct* Struct)
	{
		TArray<FName> Names;
		for (; Struct != nullptr; Struct = Struct->GetSuperStruct())
		{
			Names.Add(Struct->GetFName());
		}
		return Names;
	}
}
