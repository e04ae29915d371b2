// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

/** FWeakObjectPtr with a type. T may be incomplete until the pointer is used. */
template<class T = UObject>
struct TWeakObjectPtr : private FWeakObjectPtr
{
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t) {}
	template<typename U>
	requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(U* Object)
		: FWeakObjectPtr(reinterpret_cast<const UObject*>(Object))
	{
	}
	template<typename U>
	requires std::is_convertible_v<U*, T*>
	TWeakObjectPtr(const TObjectPtr<U>& Object)
		: TWeakObjectPtr(Object.Get())
	{
	}
	template<typename U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TWeakObjectPtr(const TWeakObjectPtr<U>& Other)
		: FWeakObjectPtr(Other.AsBase())
	{
	}

	T* Get() const { return reinterpret_cast<T*>(FWeakObjectPtr::Get()); }
	T* Get(bool bEvenIfGarbage) const { return reinterpret_cast<T*>(FWeakObjectPtr::Get(bEvenIfGarbage)); }
	T* operator->() const { return Get(); }

	using FWeakObjectPtr::IsStale;
	using FWeakObjectPtr::IsValid;

	const FWeakObjectPtr& AsBase() const { return *this; }

	template<typename U>
	bool operator==(const TWeakObjectPtr<U>& Other) const
	{
		return AsBase() == Other.AsBase();
	}
	template<typename U>
	requires std::is_convertible_v<const volatile U*, const volatile UObject*>
	bool operator==(const U* Other) const
	{
		return AsBase() == FWeakObjectPtr(Other);
	}
	bool operator==(std::nullptr_t) const { return !IsValid(); }

	friend uint32 GetTypeHash(const TWeakObjectPtr& Ptr) { return GetTypeHash(Ptr.AsBase()); }
};
