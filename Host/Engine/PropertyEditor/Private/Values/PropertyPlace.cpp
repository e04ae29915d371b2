// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyPlace.h"

FMemberPlace::FMemberPlace(const FProperty& InMember)
	: Member(InMember)
{
}

void* FMemberPlace::GoFrom(void* Around) const
{
	return Member.ContainerPtrToValuePtr(Around);
}

FString FMemberPlace::GetName() const
{
	return Member.GetName();
}

FText FMemberPlace::GetDisplayName() const
{
	return Member.GetDisplayNameText();
}

bool FMemberPlace::IsCalled(FName Name) const
{
	return Member.GetFName() == Name;
}

FIndexPlace::FIndexPlace(const FArrayProperty& InArray, int32 InIndex)
	: Array(InArray)
	, Index(InIndex)
{
}

void* FIndexPlace::GoFrom(void* Around) const
{
	const FScriptArrayHelper Elements(&Array, Around);
	return Elements.IsValidIndex(Index) ? Elements.GetRawPtr(Index) : nullptr;
}

FString FIndexPlace::GetName() const
{
	return FString::Printf(TEXT("[%d]"), Index);
}

FText FIndexPlace::GetDisplayName() const
{
	return FText::Format(NSLOCTEXT("PropertyEditor", "ElementName", "Index [ {0} ]"), FText::AsNumber(Index));
}

bool FIndexPlace::IsCalled(FName) const
{
	return false;
}

FKeyPlace::FKeyPlace(const UE::Reflection::FKeyedOps& InOps, const FProperty& InKeyProperty, const void* InKey, bool bInFixed)
	: Ops(InOps)
	, KeyProperty(InKeyProperty)
	, Key(&InKeyProperty)
	, bFixed(bInFixed)
{
	KeyProperty.CopyCompleteValue(Key.Get(), InKey);
	KeyProperty.ExportTextItem_Direct(KeyText, InKey, InKey, nullptr, PPF_PropertyWindow);
}

void* FKeyPlace::GoFrom(void* Around) const
{
	return Ops.Find(Around, Key.Get());
}

FString FKeyPlace::GetName() const
{
	return TEXT("[") + KeyText + TEXT("]");
}

FText FKeyPlace::GetDisplayName() const
{
	return FText::FromString(KeyText);
}

bool FKeyPlace::IsCalled(FName Name) const
{
	return FName(*KeyText) == Name;
}

bool FKeyPlace::IsOfKey(const void* OtherKey) const
{
	return KeyProperty.Identical(Key.Get(), OtherKey);
}
