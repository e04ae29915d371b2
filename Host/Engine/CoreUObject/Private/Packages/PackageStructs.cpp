// Copyright Velmorant. All Rights Reserved.

#include "PackageStructs.h"

#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Timespan.h"
#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"
#include "UObject/UnrealType.h"

namespace PackageStructs
{
	template<typename T>
	void Assign(void* Value, const T& NewValue)
	{
		if (Value != nullptr)
		{
			*static_cast<T*>(Value) = NewValue;
		}
	}

	template<typename T>
	FString WritePath(const void* Value)
	{
		return static_cast<const T*>(Value)->ToString();
	}

	/** Paths are texts: any text will do, as with the engine, where a path may lead nowhere. */
	template<typename T>
	bool ReadPath(const FString& Text, void* Value)
	{
		Assign(Value, Text.IsEmpty() || Text == TEXT("None") ? T() : T(Text));
		return true;
	}

	FString WriteGuid(const void* Value)
	{
		return static_cast<const FGuid*>(Value)->ToString();
	}

	bool ReadGuid(const FString& Text, void* Value)
	{
		FGuid Guid;
		if (!FGuid::Parse(Text, Guid))
		{
			return false;
		}
		Assign(Value, Guid);
		return true;
	}

	/** Ticks of 100 ns, as text: they may need more digits than other tools keep of a JSON number. */
	template<typename T>
	FString WriteTicks(const void* Value)
	{
		return FString::Printf(TEXT("%lld"), static_cast<long long>(static_cast<const T*>(Value)->GetTicks()));
	}

	template<typename T>
	bool ReadTicks(const FString& Text, void* Value)
	{
		const std::string Digits = PackageJson::FromString(Text);
		char* End = nullptr;
		const long long Ticks = std::strtoll(Digits.c_str(), &End, 10);
		if (Digits.empty() || *End != '\0')
		{
			return false;
		}
		Assign(Value, T(Ticks));
		return true;
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
		{&TBaseStructure<FSoftObjectPath>::Get, {&WritePath<FSoftObjectPath>, &ReadPath<FSoftObjectPath>, TEXT("/Game/Dir/Asset.Asset")}},
		{&TBaseStructure<FSoftClassPath>::Get, {&WritePath<FSoftClassPath>, &ReadPath<FSoftClassPath>, TEXT("/Script/Module.Class")}},
		{&TBaseStructure<FTopLevelAssetPath>::Get,
			{&WritePath<FTopLevelAssetPath>, &ReadPath<FTopLevelAssetPath>, TEXT("/Game/Dir/Asset.Asset")}},
		{&TBaseStructure<FGuid>::Get, {&WriteGuid, &ReadGuid, TEXT("0123456789ABCDEF0123456789ABCDEF")}},
		{&TBaseStructure<FDateTime>::Get, {&WriteTicks<FDateTime>, &ReadTicks<FDateTime>, TEXT("638000000000000000")}},
		{&TBaseStructure<FTimespan>::Get, {&WriteTicks<FTimespan>, &ReadTicks<FTimespan>, TEXT("10000000")}},
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
