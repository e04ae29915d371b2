// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <cstddef>

class UObject;

/** Knows an object without keeping it: null from the moment it is garbage or collected. Remains safe across editors. */
struct FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(std::nullptr_t) {}
	FWeakObjectPtr(const UObject* Object);

	FWeakObjectPtr& operator=(const UObject* Object)
	{
		*this = FWeakObjectPtr(Object);
		return *this;
	}

	UObject* Get() const { return Get(false); }
	UObject* Get(bool bEvenIfGarbage) const;

	bool IsValid(bool bEvenIfGarbage = false, bool = false) const { return Get(bEvenIfGarbage) != nullptr; }
	/** It once pointed to an object that is gone. */
	bool IsStale(bool bIncludingGarbage = true, bool = false) const { return SerialNumber != 0 && Get(!bIncludingGarbage) == nullptr; }

	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const { return Index == Other.Index && SerialNumber == Other.SerialNumber; }
	/** Same object, or both pointing to nothing that lives. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return HasSameIndexAndSerialNumber(Other) || (!IsValid() && !Other.IsValid());
	}

	friend uint32 GetTypeHash(const FWeakObjectPtr& Ptr) { return static_cast<uint32>(Ptr.Index) ^ (static_cast<uint32>(Ptr.SerialNumber) << 16); }

private:
	int32 Index = 0;
	int32 SerialNumber = 0; // 0 is nothing; objects never have it
};
