// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/Casts.h"
#include "UObject/ObjectPtr.h"

/** An object and its part that implements an interface; the part is null for script implementers. */
class FScriptInterface
{
public:
	FScriptInterface() = default;
	explicit FScriptInterface(UObject* InObject, void* InInterface = nullptr)
		: ObjectPointer(InObject)
		, InterfacePointer(InInterface)
	{
	}

	UObject* GetObject() const { return ObjectPointer; }
	void* GetInterface() const { return ObjectPointer ? InterfacePointer : nullptr; }
	void SetObject(UObject* InObject)
	{
		ObjectPointer = InObject;
		if (!InObject)
		{
			InterfacePointer = nullptr;
		}
	}
	void SetInterface(void* InInterface) { InterfacePointer = InInterface; }
	explicit operator bool() const { return ObjectPointer != nullptr; }
	bool operator==(const FScriptInterface& Other) const { return ObjectPointer == Other.ObjectPointer; }

	UObject*& GetReferenceForCollector() { return ObjectPointer; }
	friend uint32 GetTypeHash(const FScriptInterface& Interface) { return static_cast<uint32>(reinterpret_cast<uintptr_t>(Interface.ObjectPointer) >> 4); }

private:
	UObject* ObjectPointer = nullptr;
	void* InterfacePointer = nullptr;
};

/** Holds an object that implements InterfaceType. Ask GetInterface() before calling through ->. */
template<typename InterfaceType>
class TScriptInterface : public FScriptInterface
{
public:
	TScriptInterface() = default;
	TScriptInterface(std::nullptr_t) {}
	template<typename U>
	requires std::is_base_of_v<UObject, U>
	TScriptInterface(U* Source)
		: FScriptInterface(Source, Cast<InterfaceType>(Source))
	{
	}
	template<typename U>
	TScriptInterface(const TObjectPtr<U>& Source)
		: TScriptInterface(Source.Get())
	{
	}

	InterfaceType* GetInterface() const { return static_cast<InterfaceType*>(FScriptInterface::GetInterface()); }
	InterfaceType* operator->() const { return GetInterface(); }
	InterfaceType& operator*() const { return *GetInterface(); }
};
