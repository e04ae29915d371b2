// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

class UFunction;
class UObject;

/** One reflected call: the function, the object it runs on, and its parameters in declaration order as one block. */
struct FFrame
{
	UFunction* Node = nullptr;
	UObject* Object = nullptr;
	uint8* Locals = nullptr;
};
