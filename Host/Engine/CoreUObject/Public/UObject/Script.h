// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

/** What a reflected function is and who may call it. */
enum EFunctionFlags : uint32
{
	FUNC_None = 0x00000000,
	FUNC_Final = 0x00000001,
	FUNC_Native = 0x00000400,
	FUNC_Event = 0x00000800,
	FUNC_Static = 0x00002000,
	FUNC_Public = 0x00020000,
	FUNC_Private = 0x00040000,
	FUNC_Protected = 0x00080000,
	FUNC_HasOutParms = 0x00400000,
	FUNC_BlueprintCallable = 0x04000000,
	FUNC_BlueprintEvent = 0x08000000,
	FUNC_BlueprintPure = 0x10000000,
	FUNC_Const = 0x40000000,
};
ENUM_CLASS_FLAGS(EFunctionFlags)
