// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"

#include <cstddef>
#include <type_traits>

class UObject;

/** An object pointer as a member of a reflected type. Behaves like T*; T may be incomplete where the member is declared. */
template<typename T>
struct TObjectPtr
{
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t) {}
	TObjectPtr(T* InObject)
		: Object(ToObject(InObject))
	{
	}
	template<typename U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TObjectPtr(const TObjectPtr<U>& Other)
		: Object(ToObject(Other.Get()))
	{
	}
	TObjectPtr(const TObjectPtr&) = default;
	TObjectPtr& operator=(const TObjectPtr&) = default;
	TObjectPtr& operator=(T* InObject)
	{
		Object = ToObject(InObject);
		return *this;
	}
	template<typename U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TObjectPtr&
		operator=(const TObjectPtr<U>& Other)
	{
		return *this = static_cast<T*>(Other.Get());
	}
	TObjectPtr& operator=(std::nullptr_t)
	{
		Object = nullptr;
		return *this;
	}

	// UObject is the first base of every object type, so the address is the same whatever the pointer's type.
	T* Get() const { return reinterpret_cast<T*>(Object); }
	operator T*() const { return Get(); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }

	UObject*& GetReferenceForCollector() { return Object; }

	friend uint32 GetTypeHash(const TObjectPtr& Ptr) { return static_cast<uint32>(reinterpret_cast<uintptr_t>(Ptr.Object) >> 4); }

private:
	static UObject* ToObject(T* InObject) { return reinterpret_cast<UObject*>(const_cast<std::remove_const_t<T>*>(InObject)); }

	UObject* Object = nullptr;
};
