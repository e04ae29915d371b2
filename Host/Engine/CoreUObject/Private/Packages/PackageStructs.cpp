// Copyright Velmorant. All Rights Reserved.

#include "PackageStructs.h"

#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"
#include "UObject/UnrealType.h"

namespace PackageStructs
{
	template<typename T>
	FString WritePath(const void* Value)
	{
		return static_cast<const T*>(Value)->ToString();
	}

	template<typename T>
	void ReadPath(const FString& Text, void* Value)
	{
		if (Value != nullptr)
		{
			*static_cast<T*>(Value) = Text.IsEmpty() || Text == TEXT("None") ? T() : T(Text);
		}
	}
}

const FPackageStructFormat* FPackageStructFormat::Find(const UScriptStruct* Struct)
{
	using namespace PackageStructs;
	struct FEntry
	{
		UScriptStruct* (*Struct)();
		FPackageStructFormat Format;
	};
	static const FEntry Entries[] = {
		{&TBaseStructure<FSoftObjectPath>::Get, {&WritePath<FSoftObjectPath>, &ReadPath<FSoftObjectPath>}},
		{&TBaseStructure<FSoftClassPath>::Get, {&WritePath<FSoftClassPath>, &ReadPath<FSoftClassPath>}},
		{&TBaseStructure<FTopLevelAssetPath>::Get, {&WritePath<FTopLevelAssetPath>, &ReadPath<FTopLevelAssetPath>}},
	};
	for (const FEntry& Entry : Entries)
	{
		if (Entry.Struct() == Struct)
		{
			return &Entry.Format;
		}
	}
	return nullptr;
}

bool IsStoredInPackages(const FProperty* Property)
{
	return !Property->HasAnyPropertyFlags(CPF_Transient) && !Property->IsA<FDelegateProperty>() && !Property->IsA<FMulticastDelegateProperty>();
}
