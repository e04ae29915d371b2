// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** Part of the type of a shared pointer. The host runs on one thread, so both count alike. */
enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template<class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;

template<class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;

template<class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;

template<class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;
