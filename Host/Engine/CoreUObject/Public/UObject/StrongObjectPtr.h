// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/ObjectPtr.h"

#include <type_traits>
#include <utility>

namespace UE::CoreUObject::Private
{
	/** Counts as a root while it holds an object. An object that its editor took down reads as null. */
	class FStrongReference
	{
	public:
		FStrongReference() = default;
		explicit FStrongReference(const UObject* Object);
		FStrongReference(const FStrongReference& Other);
		FStrongReference(FStrongReference&& Other) noexcept;
		FStrongReference& operator=(FStrongReference Other) noexcept;
		~FStrongReference();

		UObject* Get() const;

	private:
		int32 Index = 0;
		int32 SerialNumber = 0;
	};
}

/** Keeps an object alive from outside the object system. */
template<typename T>
class TStrongObjectPtr
{
public:
	using ElementType = T;

	TStrongObjectPtr() = default;
	TStrongObjectPtr(std::nullptr_t) {}
	explicit TStrongObjectPtr(T* InObject)
		: Reference(reinterpret_cast<const UObject*>(InObject))
	{
	}
	template<typename U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TStrongObjectPtr(const TStrongObjectPtr<U>& Other)
		: TStrongObjectPtr(static_cast<T*>(Other.Get()))
	{
	}

	T* Get() const { return reinterpret_cast<T*>(Reference.Get()); }
	T* operator->() const { return Get(); }
	bool IsValid() const { return Get() != nullptr; }

	void Reset(T* InNewObject = nullptr) { *this = TStrongObjectPtr(InNewObject); }

	friend uint32 GetTypeHash(const TStrongObjectPtr& Ptr) { return static_cast<uint32>(reinterpret_cast<uintptr_t>(Ptr.Get()) >> 4); }

private:
	UE::CoreUObject::Private::FStrongReference Reference;
};
