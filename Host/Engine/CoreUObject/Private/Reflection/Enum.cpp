// Copyright Velmorant. All Rights Reserved.

#include "Containers/StringConv.h"
#include "HostReflection/GeneratedCode.h"
#include "Reflection/DisplayNames.h"
#include "UObject/Class.h"

namespace EnumNames
{
	FString WithoutScope(const FString& Name)
	{
		const int32 Scope = Name.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return Scope == INDEX_NONE ? Name : Name.RightChop(Scope + 2);
	}

	const FString* FindMetaData(const UE::Reflection::FEnumRecord* Record, int32 Index, const TCHAR* Key, FString& OutValue)
	{
		if (!Record || Index < 0 || Index >= Record->NumEnumerators)
		{
			return nullptr;
		}
		const UE::Reflection::FEnumeratorRecord& Entry = Record->Enumerators[Index];
		for (int32 Item = 0; Item < Entry.NumMetaData; ++Item)
		{
			if (FString(Entry.MetaData[Item].Key).Equals(Key, ESearchCase::IgnoreCase))
			{
				OutValue = FString(UTF8_TO_TCHAR(Entry.MetaData[Item].Value));
				return &OutValue;
			}
		}
		return nullptr;
	}

	/** What all short names have in common, up to its last underscore, which is left out: "ECC". Empty when there is nothing. */
	FString CommonPrefix(const TArray<TPair<FName, int64>>& Names)
	{
		if (Names.IsEmpty())
		{
			return FString();
		}
		FString Prefix = WithoutScope(Names[0].Key.ToString());
		for (const TPair<FName, int64>& Entry : Names)
		{
			const FString Name = WithoutScope(Entry.Key.ToString());
			int32 Length = 0;
			while (Length < Prefix.Len() && Length < Name.Len() && Prefix[Length] == Name[Length])
			{
				++Length;
			}
			Prefix = Prefix.Left(Length);
		}
		const int32 Underscore = Prefix.Find(TEXT("_"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return Underscore == INDEX_NONE ? FString() : Prefix.Left(Underscore);
	}
}

UEnum::UEnum(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UEnum::AddMaxEntry()
{
	if (ContainsExistingMax())
	{
		return;
	}
	FString Prefix = EnumNames::CommonPrefix(Names);
	Prefix = Prefix.IsEmpty() ? GetName() : Prefix;
	const FString MaxName = (CppForm == ECppForm::Regular ? FString() : GetName() + TEXT("::")) + Prefix + TEXT("_MAX");
	Names.Emplace(FName(*MaxName), Names.IsEmpty() ? 0 : GetMaxEnumValue() + 1);
}

bool UEnum::ContainsExistingMax() const
{
	const FString Last = Names.IsEmpty() ? FString() : EnumNames::WithoutScope(Names.Last().Key.ToString());
	return Last.Equals(TEXT("MAX"), ESearchCase::IgnoreCase) || Last.EndsWith(TEXT("_MAX"));
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 Max = Names.IsEmpty() ? 0 : Names[0].Value;
	for (const TPair<FName, int64>& Entry : Names)
	{
		Max = Entry.Value > Max ? Entry.Value : Max;
	}
	return Max;
}

FString UEnum::GetNameStringByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? EnumNames::WithoutScope(Names[Index].Key.ToString()) : FString();
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

int32 UEnum::GetIndexByName(FName InName) const
{
	const FName Short(*EnumNames::WithoutScope(InName.ToString()));
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Key == InName || FName(*EnumNames::WithoutScope(Names[Index].Key.ToString())) == Short)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int64 UEnum::GetValueByName(FName InName) const
{
	return GetValueByIndex(GetIndexByName(InName));
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	return Names.IndexOfByPredicate([InValue](const TPair<FName, int64>& Entry) { return Entry.Value == InValue; });
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Value : static_cast<int64>(INDEX_NONE);
}

FText UEnum::GetDisplayNameTextByIndex(int32 Index) const
{
	FString Given;
	if (EnumNames::FindMetaData(Record, Index, TEXT("DisplayName"), Given) && !Given.IsEmpty())
	{
		return FText::FromString(Given);
	}
	return FText::FromString(UE::Reflection::NameToDisplayString(GetNameStringByIndex(Index), false));
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetToolTipTextByIndex(int32 Index) const
{
	FString Given;
	return EnumNames::FindMetaData(Record, Index, TEXT("ToolTip"), Given) ? FText::FromString(Given) : GetDisplayNameTextByIndex(Index);
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	FString Value;
	return EnumNames::FindMetaData(Record, NameIndex, Key, Value) != nullptr;
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	FString Value;
	EnumNames::FindMetaData(Record, NameIndex, Key, Value);
	return Value;
}
