// Copyright Velmorant. All Rights Reserved.
// Included by UnrealType.h: properties of arrays, sets and maps, and helpers that work on their values.

#pragma once

#include "HostReflection/Property.h"

namespace UE::Reflection
{
	/** What can be done with an array of a type that is known only where the property was made. */
	struct FArrayOps
	{
		void (*Construct)(void*);
		void (*Destroy)(void*);
		int32 (*Num)(const void*);
		void* (*GetData)(void*);
		void (*Insert)(void*, int32 Index, int32 Count); // default values
		void (*RemoveAt)(void*, int32 Index, int32 Count);
		int32 Size;
		int32 Align;
	};

	/** Elements are pairs for maps; Value is null for sets. */
	using FVisitPair = void (*)(void* Context, const void* Key, void* Value);

	struct FKeyedOps
	{
		void (*Construct)(void*);
		void (*Destroy)(void*);
		int32 (*Num)(const void*);
		void (*ForEach)(void*, FVisitPair Visit, void* Context); // in iteration order
		void (*Empty)(void*);
		void (*Add)(void*, const void* Key, const void* Value);
		void (*Remove)(void*, const void* Key);
		void* (*Find)(void*, const void* Key); // the value, or for sets the element; null when there is none
		int32 Size;
		int32 Align;
	};
}

class FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty)

public:
	FProperty* Inner; // owned

	FArrayProperty(FProperty* InInner, const UE::Reflection::FArrayOps& InOps)
		: FProperty(InOps.Size, InOps.Align)
		, Inner(InInner)
		, Ops(&InOps)
	{
	}
	~FArrayProperty() override { delete Inner; }

	const UE::Reflection::FArrayOps& GetOps() const { return *Ops; }
	bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }
	void CollectReferences(void* Value, FReferenceCollector& Collector) const override;
	DECLARE_PROPERTY_VALUES()

protected:
	void OnOwnerSet() override { Adopt(Inner); }

private:
	const UE::Reflection::FArrayOps* Ops;
};

class FSetProperty : public FProperty
{
	DECLARE_FIELD(FSetProperty, FProperty)

public:
	FProperty* ElementProp; // owned

	FSetProperty(FProperty* InElementProp, const UE::Reflection::FKeyedOps& InOps)
		: FProperty(InOps.Size, InOps.Align)
		, ElementProp(InElementProp)
		, Ops(&InOps)
	{
	}
	~FSetProperty() override { delete ElementProp; }

	const UE::Reflection::FKeyedOps& GetOps() const { return *Ops; }
	bool ContainsObjectReference() const override { return ElementProp->ContainsObjectReference(); }
	void CollectReferences(void* Value, FReferenceCollector& Collector) const override;
	DECLARE_PROPERTY_VALUES()

protected:
	void OnOwnerSet() override { Adopt(ElementProp); }

private:
	const UE::Reflection::FKeyedOps* Ops;
};

class FMapProperty : public FProperty
{
	DECLARE_FIELD(FMapProperty, FProperty)

public:
	FProperty* KeyProp; // owned
	FProperty* ValueProp; // owned

	FMapProperty(FProperty* InKeyProp, FProperty* InValueProp, const UE::Reflection::FKeyedOps& InOps)
		: FProperty(InOps.Size, InOps.Align)
		, KeyProp(InKeyProp)
		, ValueProp(InValueProp)
		, Ops(&InOps)
	{
	}
	~FMapProperty() override
	{
		delete KeyProp;
		delete ValueProp;
	}

	const UE::Reflection::FKeyedOps& GetOps() const { return *Ops; }
	bool ContainsObjectReference() const override { return KeyProp->ContainsObjectReference() || ValueProp->ContainsObjectReference(); }
	void CollectReferences(void* Value, FReferenceCollector& Collector) const override;
	DECLARE_PROPERTY_VALUES()

protected:
	void OnOwnerSet() override
	{
		Adopt(KeyProp);
		Adopt(ValueProp);
	}

private:
	const UE::Reflection::FKeyedOps* Ops;
};

/** Works on an array value through its property. Indices must be valid. */
class FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
		: Property(InProperty)
		, Array(const_cast<void*>(InArray))
	{
	}

	int32 Num() const { return Property->GetOps().Num(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	/** Good until the array changes. */
	uint8* GetRawPtr(int32 Index = 0) const { return static_cast<uint8*>(Property->GetOps().GetData(Array)) + static_cast<int64>(Index) * Property->Inner->GetElementSize(); }
	uint8* GetElementPtr(int32 Index) const { return GetRawPtr(Index); }
	int32 AddValue() { return AddValues(1); }
	/** Returns the index of the first new value. */
	int32 AddValues(int32 Count)
	{
		const int32 First = Num();
		InsertValues(First, Count);
		return First;
	}
	void InsertValues(int32 Index, int32 Count = 1) { Property->GetOps().Insert(Array, Index, Count); }
	void RemoveValues(int32 Index, int32 Count = 1) { Property->GetOps().RemoveAt(Array, Index, Count); }
	void EmptyValues() { Resize(0); }
	void Resize(int32 Count);

private:
	const FArrayProperty* Property;
	void* Array;
};

/** Works on a map value. Indices run from 0 to Num() in iteration order; changing the map gives new ones. */
class FScriptMapHelper
{
public:
	FScriptMapHelper(const FMapProperty* InProperty, const void* InMap);

	int32 Num() const { return Pairs.Num(); }
	int32 GetMaxIndex() const { return Pairs.Num(); }
	bool IsValidIndex(int32 Index) const { return Pairs.IsValidIndex(Index); }
	uint8* GetKeyPtr(int32 Index) const { return Pairs[Index].Key; }
	uint8* GetValuePtr(int32 Index) const { return Pairs[Index].Value; }

private:
	struct FPair
	{
		uint8* Key;
		uint8* Value;
	};
	void Refresh();

	const FMapProperty* Property;
	void* Map;
	TArray<FPair> Pairs;
};

/** The same for sets. */
class FScriptSetHelper
{
public:
	FScriptSetHelper(const FSetProperty* InProperty, const void* InSet);

	int32 Num() const { return Elements.Num(); }
	int32 GetMaxIndex() const { return Elements.Num(); }
	bool IsValidIndex(int32 Index) const { return Elements.IsValidIndex(Index); }
	uint8* GetElementPtr(int32 Index) const { return Elements[Index]; }

private:
	void Refresh();

	const FSetProperty* Property;
	void* Set;
	TArray<uint8*> Elements;
};
