// Copyright Velmorant. All Rights Reserved.
// Included by UnrealType.h: what is told to an object about a change of its properties.

#pragma once

#include "Containers/Array.h"
#include "HostReflection/Property.h"

namespace EPropertyChangeType
{
	using Type = uint32;
	inline constexpr Type Unspecified = 1 << 0;
	inline constexpr Type ArrayAdd = 1 << 1;
	inline constexpr Type ArrayRemove = 1 << 2;
	inline constexpr Type ArrayClear = 1 << 3;
	inline constexpr Type ValueSet = 1 << 4;
	inline constexpr Type Duplicate = 1 << 5;
	inline constexpr Type Interactive = 1 << 6;
	inline constexpr Type Redirected = 1 << 7;
	inline constexpr Type ToggleEditable = 1 << 8;
	inline constexpr Type ResetToDefault = 1 << 9;
}

struct FPropertyChangedEvent
{
	/** Null property: anything may have changed. */
	explicit FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
	}

	void SetActiveMemberProperty(FProperty* InActiveMemberProperty) { MemberProperty = InActiveMemberProperty; }

	FProperty* Property; // what changed
	FProperty* MemberProperty; // the member of the object in which it lies
	EPropertyChangeType::Type ChangeType;
	int32 ObjectIteratorIndex = INDEX_NONE;
};

/** From the member of the object down to the property that changed. */
class FEditPropertyChain
{
public:
	void AddTail(FProperty* Property) { Chain.Add(Property); }
	FProperty* GetActiveMemberNode() const { return Chain.IsEmpty() ? nullptr : Chain[0]; }

private:
	TArray<FProperty*> Chain;
};

struct FPropertyChangedChainEvent : public FPropertyChangedEvent
{
	FPropertyChangedChainEvent(FEditPropertyChain& InPropertyChain, const FPropertyChangedEvent& SrcChangeEvent)
		: FPropertyChangedEvent(SrcChangeEvent)
		, PropertyChain(InPropertyChain)
	{
	}

	FEditPropertyChain& PropertyChain;
};
