// Copyright Velmorant. All Rights Reserved.
// What all properties share, and the plain values: numbers, bools, strings, names, texts, enums.

#include "Properties/PropertyText.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace PropertyValues
{
	/** An enum value as its short name; the bare number when it has none. */
	void ExportEnum(FString& ValueStr, const UEnum* Enum, int64 Value)
	{
		const FString Name = Enum->GetAuthoredNameStringByValue(Value);
		ValueStr += Name.IsEmpty() ? LexToString(Value) : Name;
	}

	/** A short or full name, or a number. */
	const TCHAR* ImportEnum(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue)
	{
		FString Word;
		const TCHAR* Rest = PropertyText::ReadWord(Buffer, Word);
		if (!Rest)
		{
			return nullptr;
		}
		const int32 Index = Enum->GetIndexByNameString(Word);
		OutValue = Enum->GetValueByIndex(Index);
		return Index != INDEX_NONE || PropertyText::ParseInteger(Word, OutValue) ? Rest : nullptr;
	}
}

void FProperty::Adopt(FProperty* Inner) const
{
	Inner->NamePrivate = NamePrivate;
	Inner->OwnerStruct = OwnerStruct;
	Inner->OnOwnerSet();
}

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

void FProperty::ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, ContainerPtrToValuePtr(Container), DefaultValue, Parent, PortFlags, ExportRootScope);
}

bool FProperty::ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Data != Delta && Identical(Data, Delta, static_cast<uint32>(PortFlags)))
	{
		return false;
	}
	ExportText_Internal(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	return true;
}

const TCHAR* FProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	constexpr int32 MaxDepth = 256; // of values in each other, in a type that can hold values of its own kind
	static int32 Depth = 0;
	TGuardValue<int32> Deeper(Depth, Depth + 1);
	return Buffer && Depth <= MaxDepth ? ImportText_Internal(Buffer, PropertyPtr, OwnerObject, PortFlags, ErrorText) : nullptr;
}

const TCHAR* FProperty::ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return ImportText_Direct(Buffer, ContainerPtrToValuePtr(Container), OwnerObject, PortFlags, ErrorText);
}

//~ Numbers

FString FNumericProperty::GetNumericPropertyValueToString(const void* Data) const
{
	if (IsFloatingPoint())
	{
		return FString::Printf(TEXT("%f"), GetFloatingPointPropertyValue(Data));
	}
	const bool bUnsigned = IsA<FUInt64Property>();
	return bUnsigned ? LexToString(GetUnsignedIntPropertyValue(Data)) : LexToString(GetSignedIntPropertyValue(Data));
}

void FNumericProperty::SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const
{
	ImportText_Direct(Value, Data, nullptr, PPF_None);
}

void FNumericProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += GetNumericPropertyValueToString(Value);
}

const TCHAR* FNumericProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice*) const
{
	FString Word;
	const TCHAR* Rest = PropertyText::ReadWord(PropertyText::SkipBlanks(Buffer), Word);
	int64 Integer = 0;
	double Number = 0.0;
	if (!Rest)
	{
		return nullptr;
	}
	if (!IsFloatingPoint() && PropertyText::ParseInteger(Word, Integer))
	{
		SetIntPropertyValue(Value, Integer);
		return Rest;
	}
	if (!PropertyText::ParseFloat(Word, Number))
	{
		return nullptr;
	}
	SetFloatingPointPropertyValue(Value, Number);
	return Rest;
}

FString FByteProperty::GetCPPType() const
{
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : FString(TEXT("uint8"));
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Enum)
	{
		PropertyValues::ExportEnum(ValueStr, Enum, GetPropertyValue(Value));
		return;
	}
	FNumericProperty::ExportText_Internal(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FByteProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (!Enum)
	{
		return FNumericProperty::ImportText_Internal(Buffer, Value, OwnerObject, PortFlags, ErrorText);
	}
	int64 Number = 0;
	const TCHAR* Rest = PropertyValues::ImportEnum(PropertyText::SkipBlanks(Buffer), Enum, Number);
	if (Rest)
	{
		SetPropertyValue(Value, static_cast<uint8>(Number));
	}
	return Rest;
}

//~ Bools

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += GetPropertyValue(Value) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice*) const
{
	FString Word;
	const TCHAR* Rest = PropertyText::ReadWord(PropertyText::SkipBlanks(Buffer), Word);
	const bool bTrue = Word == TEXT("True") || Word == TEXT("1") || Word == TEXT("Yes");
	const bool bFalse = Word == TEXT("False") || Word == TEXT("0") || Word == TEXT("No");
	if (!Rest || (!bTrue && !bFalse))
	{
		return nullptr;
	}
	SetPropertyValue(Value, bTrue);
	return Rest;
}

//~ Strings and names

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	if (PortFlags & PPF_Delimited)
	{
		PropertyText::AppendQuoted(ValueStr, GetPropertyValue(Value));
		return;
	}
	ValueStr += GetPropertyValue(Value);
}

const TCHAR* FStrProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice*) const
{
	FString Text;
	const TCHAR* Rest = PropertyText::ReadText(Buffer, PortFlags, Text);
	if (Rest)
	{
		SetPropertyValue(Value, Text);
	}
	return Rest;
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	const FString Name = GetPropertyValue(Value).ToString();
	if (PortFlags & PPF_Delimited)
	{
		PropertyText::AppendQuoted(ValueStr, Name);
		return;
	}
	ValueStr += Name;
}

const TCHAR* FNameProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice*) const
{
	FString Text;
	const TCHAR* Rest = PropertyText::ReadText(Buffer, PortFlags, Text);
	if (!Rest || Text.Len() >= NAME_SIZE)
	{
		return nullptr;
	}
	SetPropertyValue(Value, FName(*Text));
	return Rest;
}

//~ Texts

FString FTextProperty::GetCPPType() const
{
	return TEXT("FText");
}

void FTextProperty::InitializeValue(void* Dest) const
{
	::new (Dest) FText();
}

void FTextProperty::DestroyValue(void* Dest) const
{
	static_cast<FText*>(Dest)->~FText();
}

void FTextProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	SetPropertyValue(Dest, GetPropertyValue(Src));
}

bool FTextProperty::Identical(const void* A, const void* B, uint32) const
{
	const FText& Left = GetPropertyValue(A);
	const FText Right = B ? GetPropertyValue(B) : FText();
	const auto Same = [](const TOptional<FString>& X, const TOptional<FString>& Y) {
		return X.IsSet() == Y.IsSet() && (!X.IsSet() || X.GetValue().Equals(Y.GetValue()));
	};
	return Left.ToString().Equals(Right.ToString()) && Left.IsCultureInvariant() == Right.IsCultureInvariant() && Same(FTextInspector::GetNamespace(Left), FTextInspector::GetNamespace(Right)) && Same(FTextInspector::GetKey(Left), FTextInspector::GetKey(Right));
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32 PortFlags, UObject*) const
{
	if (PortFlags & PPF_PropertyWindow)
	{
		ValueStr += GetPropertyValue(Value).ToString();
		return;
	}
	FTextStringHelper::WriteToBuffer(ValueStr, GetPropertyValue(Value), (PortFlags & PPF_Delimited) != 0);
}

const TCHAR* FTextProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32 PortFlags, FOutputDevice*) const
{
	FText Text;
	const TCHAR* Rest = FTextStringHelper::ReadFromBuffer(Buffer, Text, nullptr, nullptr, (PortFlags & PPF_Delimited) != 0);
	if (Rest)
	{
		SetPropertyValue(Value, Text);
	}
	return Rest;
}

//~ Enums

FString FEnumProperty::GetCPPType() const
{
	return Enum->CppType;
}

void FEnumProperty::InitializeValue(void* Dest) const
{
	Underlying->InitializeValue(Dest);
}

void FEnumProperty::DestroyValue(void* Dest) const
{
	Underlying->DestroyValue(Dest);
}

void FEnumProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	Underlying->CopyCompleteValue(Dest, Src);
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return Underlying->Identical(A, B, PortFlags);
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	PropertyValues::ExportEnum(ValueStr, Enum, Underlying->GetSignedIntPropertyValue(Value));
}

const TCHAR* FEnumProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice*) const
{
	int64 Number = 0;
	const TCHAR* Rest = PropertyValues::ImportEnum(PropertyText::SkipBlanks(Buffer), Enum, Number);
	if (Rest)
	{
		Underlying->SetIntPropertyValue(Value, Number);
	}
	return Rest;
}
