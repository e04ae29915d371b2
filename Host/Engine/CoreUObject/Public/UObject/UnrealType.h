// Copyright Velmorant. All Rights Reserved.
// The kinds of properties.

#pragma once

#include "HostReflection/Property.h"
#include "UObject/Class.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/ScriptDelegates.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

namespace UE::Reflection
{
	struct FDelegateSignature;
}

/** Integers and floating-point numbers of all sizes. */
class FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty)

public:
	virtual bool IsFloatingPoint() const = 0;
	virtual bool IsInteger() const = 0;
	/** The enum of a byte that stands for one; null otherwise. */
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }

	virtual void SetIntPropertyValue(void* Data, uint64 Value) const = 0;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;

	/** Floating-point numbers with six decimals. */
	FString GetNumericPropertyValueToString(const void* Data) const;
	void SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const;

protected:
	using FProperty::FProperty;
	DECLARE_PROPERTY_TEXT()
};

template<typename InTCppType>
class TNumericProperty : public TProperty<InTCppType, FNumericProperty>
{
public:
	bool IsFloatingPoint() const override { return std::is_floating_point_v<InTCppType>; }
	bool IsInteger() const override { return std::is_integral_v<InTCppType>; }
	void SetIntPropertyValue(void* Data, uint64 Value) const override { this->SetPropertyValue(Data, static_cast<InTCppType>(Value)); }
	void SetIntPropertyValue(void* Data, int64 Value) const override { this->SetPropertyValue(Data, static_cast<InTCppType>(Value)); }
	void SetFloatingPointPropertyValue(void* Data, double Value) const override { this->SetPropertyValue(Data, static_cast<InTCppType>(Value)); }
	int64 GetSignedIntPropertyValue(const void* Data) const override { return static_cast<int64>(this->GetPropertyValue(Data)); }
	uint64 GetUnsignedIntPropertyValue(const void* Data) const override { return static_cast<uint64>(this->GetPropertyValue(Data)); }
	double GetFloatingPointPropertyValue(const void* Data) const override { return static_cast<double>(this->GetPropertyValue(Data)); }
};

#define HOST_NUMERIC_PROPERTY(TClass, TCpp) \
	class TClass : public TNumericProperty<TCpp> \
	{ \
		DECLARE_FIELD(TClass, FNumericProperty) \
		FString GetCPPType() const override { return TEXT(#TCpp); } \
	};
HOST_NUMERIC_PROPERTY(FInt8Property, int8)
HOST_NUMERIC_PROPERTY(FInt16Property, int16)
HOST_NUMERIC_PROPERTY(FIntProperty, int32)
HOST_NUMERIC_PROPERTY(FInt64Property, int64)
HOST_NUMERIC_PROPERTY(FUInt16Property, uint16)
HOST_NUMERIC_PROPERTY(FUInt32Property, uint32)
HOST_NUMERIC_PROPERTY(FUInt64Property, uint64)
HOST_NUMERIC_PROPERTY(FFloatProperty, float)
HOST_NUMERIC_PROPERTY(FDoubleProperty, double)

/** A byte, or an enum in a byte (TEnumAsByte). */
class FByteProperty : public TNumericProperty<uint8>
{
	DECLARE_FIELD(FByteProperty, FNumericProperty)

public:
	UEnum* Enum = nullptr;

	UEnum* GetIntPropertyEnum() const override { return Enum; }
	FString GetCPPType() const override;
	DECLARE_PROPERTY_TEXT()
};

class FBoolProperty : public TProperty<bool, FProperty>
{
	DECLARE_FIELD(FBoolProperty, FProperty)

public:
	FString GetCPPType() const override { return TEXT("bool"); }
	DECLARE_PROPERTY_TEXT()
};

class FStrProperty : public TProperty<FString, FProperty>
{
	DECLARE_FIELD(FStrProperty, FProperty)

public:
	FString GetCPPType() const override { return TEXT("FString"); }
	DECLARE_PROPERTY_TEXT()
};

class FNameProperty : public TProperty<FName, FProperty>
{
	DECLARE_FIELD(FNameProperty, FProperty)

public:
	FString GetCPPType() const override { return TEXT("FName"); }
	DECLARE_PROPERTY_TEXT()
};

/** Anything that leads to an object. */
class FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty)

public:
	UClass* PropertyClass = nullptr; // values are null or of this class

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* Container) const { return GetObjectPropertyValue(ContainerPtrToValuePtr(Container)); }
	void SetObjectPropertyValue_InContainer(void* Container, UObject* Value) const { SetObjectPropertyValue(ContainerPtrToValuePtr(Container), Value); }

protected:
	FObjectPropertyBase(int32 InElementSize, int32 InAlignment, UClass* InClass)
		: FProperty(InElementSize, InAlignment)
		, PropertyClass(InClass)
	{
	}

	/** Objects as Class'Path', quoted inside structs; None for null. On import plain paths do, too; unknown objects are loaded. */
	DECLARE_PROPERTY_TEXT()
};

/** T* and TObjectPtr<T>. */
class FObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase)

public:
	explicit FObjectProperty(UClass* InClass)
		: FObjectPropertyBase(sizeof(UObject*), alignof(UObject*), InClass)
	{
	}

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	bool ContainsObjectReference() const override { return true; }
	void CollectReferences(void* Value, FReferenceCollector& Collector) const override;
	DECLARE_PROPERTY_VALUES()
};

/** UClass* and TSubclassOf<T>. */
class FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty)

public:
	UClass* MetaClass; // values are this class or derived from it

	explicit FClassProperty(UClass* InMetaClass)
		: FObjectProperty(UClass::StaticClass())
		, MetaClass(InMetaClass)
	{
	}

	FString GetCPPType() const override;
};

class FWeakObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase)

public:
	explicit FWeakObjectProperty(UClass* InClass)
		: FObjectPropertyBase(sizeof(FWeakObjectPtr), alignof(FWeakObjectPtr), InClass)
	{
	}

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	DECLARE_PROPERTY_VALUES()
};

/** TSoftObjectPtr<T>; as text the plain path. */
class FSoftObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FSoftObjectProperty, FObjectPropertyBase)

public:
	explicit FSoftObjectProperty(UClass* InClass)
		: FObjectPropertyBase(sizeof(FSoftObjectPtr), alignof(FSoftObjectPtr), InClass)
	{
	}

	static const FSoftObjectPtr& GetPropertyValue(const void* Value) { return *static_cast<const FSoftObjectPtr*>(Value); }
	static void SetPropertyValue(void* Dest, const FSoftObjectPtr& Value) { *static_cast<FSoftObjectPtr*>(Dest) = Value; }
	/** Only what is in memory. */
	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	DECLARE_PROPERTY_VALUES()
};

/** TSoftClassPtr<T>. */
class FSoftClassProperty : public FSoftObjectProperty
{
	DECLARE_FIELD(FSoftClassProperty, FSoftObjectProperty)

public:
	UClass* MetaClass;

	explicit FSoftClassProperty(UClass* InMetaClass)
		: FSoftObjectProperty(UClass::StaticClass())
		, MetaClass(InMetaClass)
	{
	}

	FString GetCPPType() const override;
};

class FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty)

public:
	UScriptStruct* Struct;

	explicit FStructProperty(UScriptStruct* InStruct)
		: FProperty(InStruct->GetPropertiesSize(), InStruct->GetMinAlignment())
		, Struct(InStruct)
	{
	}

	bool ContainsObjectReference() const override { return Struct->HoldsReferences(); }
	void CollectReferences(void* Value, FReferenceCollector& Collector) const override;
	DECLARE_PROPERTY_VALUES()
};

/** A dynamic delegate; as text "Object.Function". */
class FDelegateProperty : public TProperty<FScriptDelegate, FProperty>
{
	DECLARE_FIELD(FDelegateProperty, FProperty)

public:
	FString GetCPPType() const override { return TEXT("FScriptDelegate"); }
	DECLARE_PROPERTY_TEXT()
};

/** A dynamic multicast delegate. It has no text form. */
class FMulticastDelegateProperty : public TProperty<FMulticastScriptDelegate, FProperty>
{
	DECLARE_FIELD(FMulticastDelegateProperty, FProperty)

public:
	/** Host: what listeners are called with; null when it is not known. */
	const UE::Reflection::FDelegateSignature* Signature = nullptr;

	FString GetCPPType() const override { return TEXT("FMulticastScriptDelegate"); }
	void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent) const;
	void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent) const;
	DECLARE_PROPERTY_TEXT()
};

#include "HostReflection/FieldIterator.h"
#include "HostReflection/PropertyContainers.h"
#include "HostReflection/PropertyEvents.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
