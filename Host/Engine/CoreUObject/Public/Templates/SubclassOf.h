// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"

#include <type_traits>

/** A class that must be T or derived from it: any other class reads as null. */
template<typename T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(std::nullptr_t) {}
	TSubclassOf(UClass* From)
		: Class(From)
	{
	}
	template<typename U>
	requires std::is_convertible_v<U*, UClass*>
	TSubclassOf(const TObjectPtr<U>& From)
		: Class(From.Get())
	{
	}
	template<typename U>
	requires(!std::is_same_v<T, U> && std::is_base_of_v<T, U>)
		TSubclassOf(const TSubclassOf<U>& Other)
		: Class(Other.Get())
	{
	}

	UClass* Get() const { return Class && static_cast<UClass*>(Class)->IsChildOf(T::StaticClass()) ? static_cast<UClass*>(Class) : nullptr; }
	UClass* operator->() const { return Get(); }
	operator UClass*() const { return Get(); }

	friend uint32 GetTypeHash(const TSubclassOf& Subclass) { return Subclass.Class ? Subclass.Class->GetUniqueID() : 0; }

private:
	UObject* Class = nullptr; // a class; kept as an object so that all kinds of object references are stored alike
};
