// Copyright Velmorant. All Rights Reserved.
// Reflected types as objects: structs, classes, enums and functions.

#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "HostReflection/Records.h"
#include "HostReflection/RootClass.h"
#include "Math/MathFwd.h"
#include "Templates/Function.h"
#include "UObject/Field.h"
#include "UObject/Object.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/TopLevelAssetPath.h"

class FOutputDevice;
class FProperty;
class UClass;
class UFunction;
struct FFrame;

namespace EIncludeSuperFlag
{
	enum Type
	{
		ExcludeSuper,
		IncludeSuper
	};
}

/** Base of reflected types. */
class UField : public UObject
{
	HOST_ROOT_CLASS_BODY(UField, UObject)

public:
	explicit UField(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UClass* GetOwnerClass() const;

	bool HasMetaData(const TCHAR* Key) const { return MetaData.Find(FName(Key)) != nullptr; }
	bool HasMetaData(const FName& Key) const { return MetaData.Find(Key) != nullptr; }
	/** Empty when there is none. */
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	/** True for any value but "false". */
	bool GetBoolMetaData(const TCHAR* Key) const { return GetBoolMetaData(FName(Key)); }
	bool GetBoolMetaData(const FName& Key) const;

	/** Metadata DisplayName, else the name in words. */
	FText GetDisplayNameText() const;

protected:
	UE::Reflection::FMetaDataMap MetaData;
};

/** A type with properties. They are built when first asked for, so that classes may name each other. */
class UStruct : public UField
{
	HOST_ROOT_CLASS_BODY(UStruct, UField)

public:
	explicit UStruct(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	~UStruct() override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	bool IsChildOf(const UStruct* SomeBase) const
	{
		return SomeBase && SomeBase->Depth <= Depth && Chain[SomeBase->Depth] == SomeBase;
	}
	template<class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetStructureSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	/** "/Script/Module.Name", or the asset's path. */
	FTopLevelAssetPath GetStructPathName() const;
	/** "F" for structs, "A" or "U" for classes. */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }

	/** By name, case aside; super types included. */
	FProperty* FindPropertyByName(FName InName) const;

	/** Own properties in declaration order. */
	const TArray<FProperty*>& GetOwnProperties() const;
	/** Own properties, then the super types'. */
	const TArray<FProperty*>& GetAllProperties() const;
	/** Those of GetAllProperties() that can keep objects alive. */
	const TArray<FProperty*>& GetReferenceProperties() const;
	/** Those that cannot. */
	const TArray<FProperty*>& GetPlainProperties() const;
	/** Whether there are such; true for a type that is asked while it is being linked, as recursive ones are. */
	bool HoldsReferences() const;
	/** Own functions in declaration order; empty for all but classes. */
	virtual const TArray<UFunction*>& GetOwnFunctions() const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	void SetSuperStruct(UStruct* NewSuperStruct);

	UStruct* SuperStruct = nullptr;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;

private:
	void LinkProperties() const;

	const UE::Reflection::FPropertyRecord* PropertyRecords = nullptr;
	int32 NumPropertyRecords = 0;
	mutable bool bLinked = false;
	mutable bool bLinking = false;
	mutable TArray<FProperty*> OwnProperties; // owned
	mutable TArray<FProperty*> AllProperties;
	mutable TArray<FProperty*> ReferenceProperties;
	mutable TArray<FProperty*> PlainProperties;
	int32 Depth = 0;
	TArray<const UStruct*> Chain; // [0] is the root type, [Depth] this one
};

/** A USTRUCT. */
class UScriptStruct : public UStruct
{
	HOST_ROOT_CLASS_BODY(UScriptStruct, UStruct)

public:
	explicit UScriptStruct(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	EStructFlags StructFlags = STRUCT_NoFlags;

	FName GetStructCPPName() const;

	/** Constructs ArrayDim values in raw memory. */
	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	/** Back to default values. */
	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;

	/** "(A=1,B="x")"; a field equal to that in Defaults is left out, unless Defaults is Value or null. */
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
		UObject* ExportRootScope, bool bAllowNativeOverride = true) const;
	/** @return what follows the value; null when it is malformed. Fields that the struct does not have are skipped. */
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
		const FString& StructName, bool bAllowNativeOverride = true) const;

private:
	const UE::Reflection::FStructOps* Ops = nullptr;
	const UE::Reflection::FStructTextOps* TextOps = nullptr;
	const char* CppName = "";
};

/** A UENUM. Its last entry is the engine's "_MAX" one. */
class UEnum : public UField
{
	HOST_ROOT_CLASS_BODY(UEnum, UField)

public:
	explicit UEnum(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	enum class ECppForm
	{
		Regular, // enum E { A }
		Namespaced, // namespace E { enum Type { A } }
		EnumClass // enum class E { A }
	};

	/** As written in C++: "EFoo" or "EFoo::Type". */
	FString CppType;

	/** Entries, the "_MAX" one included. */
	int32 NumEnums() const { return Names.Num(); }
	bool ContainsExistingMax() const;
	int64 GetMaxEnumValue() const;

	/** Without the scope; empty when unknown. */
	FString GetNameStringByIndex(int32 Index) const;
	FString GetNameStringByValue(int64 InValue) const;
	FString GetAuthoredNameStringByValue(int64 InValue) const { return GetNameStringByValue(InValue); }

	/** Full and short names both do, case aside. INDEX_NONE when unknown. */
	int32 GetIndexByName(FName InName) const;
	int32 GetIndexByNameString(const FString& SearchString) const { return GetIndexByName(FName(*SearchString)); }
	int64 GetValueByName(FName InName) const;
	int64 GetValueByNameString(const FString& SearchString) const { return GetValueByName(FName(*SearchString)); }
	int32 GetIndexByValue(int64 InValue) const;
	/** INDEX_NONE for an unknown index. */
	int64 GetValueByIndex(int32 Index) const;

	/** Metadata DisplayName, else the short name in words. */
	FText GetDisplayNameTextByIndex(int32 Index) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetToolTipTextByIndex(int32 Index) const;

	using UField::GetMetaData;
	using UField::HasMetaData;
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;
	FString GetMetaData(const TCHAR* Key, int32 NameIndex) const;

private:
	void AddMaxEntry();

	ECppForm CppForm = ECppForm::Regular;
	TArray<TPair<FName, int64>> Names;
	const UE::Reflection::FEnumRecord* Record = nullptr;
};

/** A UFUNCTION, or an event that a run-time class answers by a script. Its properties are its parameters. */
class UFunction : public UStruct
{
	HOST_ROOT_CLASS_BODY(UFunction, UStruct)

public:
	explicit UFunction(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	using FNativeThunk = void (*)(UObject* Context, FFrame& Stack, void* const Result);
	using FScriptBody = TFunction<void(UObject* Context, FFrame& Stack, void* Result)>;

	EFunctionFlags FunctionFlags = FUNC_None;
	uint16 ParmsSize = 0; // bytes of the parameter block, the return value included

	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) != 0; }
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) == FlagsToCheck; }
	/** Null for functions without a result. */
	FProperty* GetReturnProperty() const;

	/** Runs the script body, else the native one; an event that has neither does nothing. */
	void Invoke(UObject* Obj, FFrame& Stack, void* const Result);

private:
	FNativeThunk Thunk = nullptr;
	FScriptBody Script;
};

/** An interface of a class. */
struct FImplementedInterface
{
	UClass* Class = nullptr;
	void* (*ToInterface)(UObject*) = nullptr; // null when a script class implements it
	bool bImplementedByK2 = false;
};

/** A UCLASS, or a class that was derived from one at run time. */
class UClass : public UStruct
{
	HOST_ROOT_CLASS_BODY(UClass, UStruct)

public:
	explicit UClass(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	EClassFlags ClassFlags = CLASS_None;
	FName ClassConfigName; // "Engine", "Game", …; None without config
	UObject* ClassGeneratedBy = nullptr; // the asset that a run-time class was made from
	TArray<FImplementedInterface> Interfaces; // own ones, not the super classes'

	UClass* GetSuperClass() const { return static_cast<UClass*>(SuperStruct); }
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }

	/** Made on first use of each editor: native constructor, then config values. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const
	{
		return ClassDefaultObject || !bCreateIfNeeded ? ClassDefaultObject : const_cast<UClass*>(this)->CreateDefaultObject();
	}
	template<class T>
	T* GetDefaultObject() const
	{
		return static_cast<T*>(GetDefaultObject());
	}
	/** "Default__Name". */
	FName GetDefaultObjectName() const;

	/** By native class or script class, here or in a super class; SomeInterface or one derived from it. */
	bool ImplementsInterface(const UClass* SomeInterface) const;

	/** Case aside. With super: also functions of interfaces and super classes. */
	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;
	const TArray<UFunction*>& GetOwnFunctions() const override;

	FTopLevelAssetPath GetClassPathName() const { return GetStructPathName(); }
	/** The config branch of the class, as GConfig knows it; empty without config. */
	FString GetConfigName() const;
	const TCHAR* GetPrefixCPP() const override;

	/** By full path, or by plain name among all types. */
	template<typename T>
	static T* TryFindTypeSlow(const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions = EFindFirstObjectOptions::None)
	{
		return InPathNameOrShortName.Contains(TEXT("."))
			? FindObject<T>(nullptr, *InPathNameOrShortName)
			: FindFirstObject<T>(*InPathNameOrShortName, InOptions);
	}

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend class FGarbageCollector;
	friend class FObjectFactory;
	friend class FReachability;

	UObject* CreateDefaultObject();
	void LinkFunctions() const;
	UFunction* FindOwnFunction(FName InName) const;

	UObject* ClassDefaultObject = nullptr; // null between editors
	void (*Construct)(void* Memory, const FObjectInitializer&) = nullptr;
	void (*CollectReferences)(UObject*, FReferenceCollector&) = nullptr;
	const UE::Reflection::FFunctionRecord* FunctionRecords = nullptr;
	int32 NumFunctionRecords = 0;
	mutable bool bFunctionsLinked = false;
	mutable TArray<UFunction*> OwnFunctions;
	mutable TMap<FName, UFunction*> FunctionMap;
	const char* CppPrefix = "U";
};

inline bool UObject::IsA(const UClass* SomeBase) const
{
	return ClassPrivate->IsChildOf(SomeBase);
}

template<class T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template<class T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}

/** The struct of T; specialised for Core's value types, which cannot carry a StaticStruct() of their own. */
template<class T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return T::StaticStruct(); }
};

struct FAssetData;
struct FSoftClassPath;
struct FSoftObjectPath;

#define HOST_BASE_STRUCTURE(Type) \
	template<> \
	struct TBaseStructure<Type> \
	{ \
		static UScriptStruct* Get(); \
	};
HOST_BASE_STRUCTURE(FAssetData)
HOST_BASE_STRUCTURE(FColor)
HOST_BASE_STRUCTURE(FIntPoint)
HOST_BASE_STRUCTURE(FLinearColor)
HOST_BASE_STRUCTURE(FQuat)
HOST_BASE_STRUCTURE(FRotator)
HOST_BASE_STRUCTURE(FSoftClassPath)
HOST_BASE_STRUCTURE(FSoftObjectPath)
HOST_BASE_STRUCTURE(FTopLevelAssetPath)
HOST_BASE_STRUCTURE(FTransform)
HOST_BASE_STRUCTURE(FVector)
HOST_BASE_STRUCTURE(FVector2D)
