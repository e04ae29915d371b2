// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostReflection/RootClass.h"
#include "UObject/Object.h"

/** Base of the U… halves of interfaces. They are never instantiated; the I… halves are what classes implement. */
class UInterface : public UObject
{
	HOST_ROOT_CLASS_BODY(UInterface, UObject)

public:
	explicit UInterface(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};

class IInterface
{
protected:
	virtual ~IInterface() = default;

public:
	using UClassType = UInterface;
};
