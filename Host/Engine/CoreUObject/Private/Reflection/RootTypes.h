// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/GeneratedCode.h"

namespace UE::Reflection
{
	/** The classes that the object system itself is made of, super classes first. */
	const TArray<FClassRecord*>& GetRootRecords();

	/** The structs of Core's value types. */
	void BuildBaseStructures();
}
