// Copyright Velmorant. All Rights Reserved.
// What properties have in common, and the editor metadata that all reflected things carry.

#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "HostReflection/MetaDataMap.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

class UClass;
class UStruct;

/** One bit per property class, so that CastField() is one test. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0,
	CASTCLASS_FProperty = 1ull << 0,
	CASTCLASS_FNumericProperty = 1ull << 1,
	CASTCLASS_FInt8Property = 1ull << 2,
	CASTCLASS_FInt16Property = 1ull << 3,
	CASTCLASS_FIntProperty = 1ull << 4,
	CASTCLASS_FInt64Property = 1ull << 5,
	CASTCLASS_FByteProperty = 1ull << 6,
	CASTCLASS_FUInt16Property = 1ull << 7,
	CASTCLASS_FUInt32Property = 1ull << 8,
	CASTCLASS_FUInt64Property = 1ull << 9,
	CASTCLASS_FFloatProperty = 1ull << 10,
	CASTCLASS_FDoubleProperty = 1ull << 11,
	CASTCLASS_FBoolProperty = 1ull << 12,
	CASTCLASS_FEnumProperty = 1ull << 13,
	CASTCLASS_FStrProperty = 1ull << 14,
	CASTCLASS_FNameProperty = 1ull << 15,
	CASTCLASS_FTextProperty = 1ull << 16,
	CASTCLASS_FStructProperty = 1ull << 17,
	CASTCLASS_FArrayProperty = 1ull << 18,
	CASTCLASS_FSetProperty = 1ull << 19,
	CASTCLASS_FMapProperty = 1ull << 20,
	CASTCLASS_FObjectPropertyBase = 1ull << 21,
	CASTCLASS_FObjectProperty = 1ull << 22,
	CASTCLASS_FWeakObjectProperty = 1ull << 23,
	CASTCLASS_FSoftObjectProperty = 1ull << 24,
	CASTCLASS_FClassProperty = 1ull << 25,
	CASTCLASS_FSoftClassProperty = 1ull << 26,
	CASTCLASS_FDelegateProperty = 1ull << 28,
	CASTCLASS_FMulticastDelegateProperty = 1ull << 29,
};

/** The class of a property, as an object. */
class FFieldClass
{
public:
	FFieldClass(const TCHAR* InName, uint64 InId, uint64 InCastFlags)
		: Name(InName)
		, Id(InId)
		, CastFlags(InCastFlags)
	{
	}

	FName GetFName() const { return Name; }
	bool HasAnyCastFlags(uint64 InCastFlags) const { return (CastFlags & InCastFlags) != 0; }

private:
	FName Name;
	uint64 Id; // this class's own bit
	uint64 CastFlags; // its bit and those of its bases
};

/** A reflected thing that is no object: a property. Owned by its struct, or by the container property around it. */
class FField
{
public:
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;
	virtual ~FField() = default;

	virtual FFieldClass* GetClass() const = 0;
	template<typename T>
	bool IsA() const
	{
		return GetClass()->HasAnyCastFlags(T::StaticClassCastFlags());
	}

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	/** The struct, class or function it belongs to, also for the inner properties of containers. */
	UStruct* GetOwnerStruct() const { return OwnerStruct; }
	UClass* GetOwnerClass() const;

	bool HasMetaData(const TCHAR* Key) const { return MetaData.Find(FName(Key)) != nullptr; }
	bool HasMetaData(const FName& Key) const { return MetaData.Find(Key) != nullptr; }
	/** Empty when there is none. */
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	/** True for any value but "false". */
	bool GetBoolMetaData(const FName& Key) const;

	/** Metadata DisplayName, else the name in words. */
	FText GetDisplayNameText() const;
	/** Metadata ToolTip, else the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

protected:
	FField() = default;

	FName NamePrivate;
	UStruct* OwnerStruct = nullptr;
	UE::Reflection::FMetaDataMap MetaData;

	friend class UStruct;
	friend struct UE::Reflection::FTypeBuilder;
};

template<typename FieldType>
FieldType* CastField(FField* Src)
{
	return Src && Src->IsA<FieldType>() ? static_cast<FieldType*>(Src) : nullptr;
}

template<typename FieldType>
const FieldType* CastField(const FField* Src)
{
	return Src && Src->IsA<FieldType>() ? static_cast<const FieldType*>(Src) : nullptr;
}

template<typename FieldType>
FieldType* CastFieldChecked(FField* Src)
{
	FieldType* Result = CastField<FieldType>(Src);
	check(Result);
	return Result;
}

template<typename FieldType>
const FieldType* CastFieldChecked(const FField* Src)
{
	const FieldType* Result = CastField<FieldType>(Src);
	check(Result);
	return Result;
}
