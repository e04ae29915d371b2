// Copyright Velmorant. All Rights Reserved.

#include "UObject/Field.h"

#include "Containers/StringConv.h"
#include "HostReflection/GeneratedCode.h"
#include "Misc/CString.h"
#include "Reflection/DisplayNames.h"
#include "UObject/Class.h"

namespace UE::Reflection
{
	void FMetaDataMap::SetRecords(const FMetaDataRecord* InRecords, int32 InNum)
	{
		Records = InRecords;
		NumRecords = InNum;
	}

	void FMetaDataMap::Unpack() const
	{
		for (int32 Index = 0; Index < NumRecords; ++Index)
		{
			Values.Add(FName(Records[Index].Key), FString(UTF8_TO_TCHAR(Records[Index].Value)));
		}
		NumRecords = 0;
	}

	const FString* FMetaDataMap::Find(FName Key) const
	{
		if (NumRecords > 0)
		{
			Unpack();
		}
		return Values.Find(Key);
	}
}

namespace Field
{
	static const FString Empty;

	bool ToBool(const FString* Value)
	{
		return Value && !Value->Equals(TEXT("false"), ESearchCase::IgnoreCase);
	}

	FText DisplayName(const UE::Reflection::FMetaDataMap& MetaData, const FString& Name, bool bIsBool)
	{
		const FString* Given = MetaData.Find(FName("DisplayName"));
		return FText::FromString(Given && !Given->IsEmpty() ? *Given : UE::Reflection::NameToDisplayString(Name, bIsBool));
	}

	FText ToolTip(const UE::Reflection::FMetaDataMap& MetaData, bool bShort, const FText& Fallback)
	{
		const FString* Short = bShort ? MetaData.Find(FName("ShortTooltip")) : nullptr;
		const FString* Given = Short ? Short : MetaData.Find(FName("ToolTip"));
		return Given && !Given->IsEmpty() ? FText::FromString(*Given) : Fallback;
	}
}

UClass* FField::GetOwnerClass() const
{
	if (!OwnerStruct || !OwnerStruct->IsA(UField::StaticClass()))
	{
		return nullptr;
	}
	return OwnerStruct->IsA(UClass::StaticClass()) ? static_cast<UClass*>(OwnerStruct) : OwnerStruct->GetOwnerClass();
}

const FString& FField::GetMetaData(const FName& Key) const
{
	const FString* Value = MetaData.Find(Key);
	return Value ? *Value : Field::Empty;
}

bool FField::GetBoolMetaData(const FName& Key) const
{
	return Field::ToBool(MetaData.Find(Key));
}

FText FField::GetDisplayNameText() const
{
	return Field::DisplayName(MetaData, GetName(), GetClass()->GetFName() == FName("BoolProperty"));
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	return Field::ToolTip(MetaData, bShortTooltip, GetDisplayNameText());
}

UField::UField(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UClass* UField::GetOwnerClass() const
{
	return static_cast<UClass*>(GetTypedOuter(UClass::StaticClass()));
}

const FString& UField::GetMetaData(const FName& Key) const
{
	const FString* Value = MetaData.Find(Key);
	return Value ? *Value : Field::Empty;
}

bool UField::GetBoolMetaData(const FName& Key) const
{
	return Field::ToBool(MetaData.Find(Key));
}

FText UField::GetDisplayNameText() const
{
	return Field::DisplayName(MetaData, GetName(), false);
}
