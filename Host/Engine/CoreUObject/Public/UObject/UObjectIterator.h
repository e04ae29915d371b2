// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

/** All living objects of class T and derived ones, default objects too unless excluded. New objects are not visited. */
template<typename T>
class TObjectIterator
{
public:
	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true)
	{
		GetObjectsOfClass(T::StaticClass(), Objects, bIncludeDerivedClasses, AdditionalExclusionFlags);
	}

	T* operator*() const { return static_cast<T*>(Objects[Index]); }
	T* operator->() const { return static_cast<T*>(Objects[Index]); }
	TObjectIterator& operator++()
	{
		++Index;
		return *this;
	}
	explicit operator bool() const { return Index < Objects.Num(); }

private:
	TArray<UObject*> Objects;
	int32 Index = 0;
};
