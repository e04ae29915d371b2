// Copyright Velmorant. All Rights Reserved.

#include "HostReflection/GeneratedCode.h"
#include "HostScratchValue.h"
#include "Properties/PropertyText.h"
#include "UObject/UnrealType.h"

namespace StructText
{
	/** Skips a value that no property wants: up to the next comma or bracket outside quotes and brackets. */
	const TCHAR* SkipValue(const TCHAR* Buffer)
	{
		int32 Depth = 0;
		bool bInQuotes = false;
		for (; *Buffer; ++Buffer)
		{
			if (bInQuotes)
			{
				if (*Buffer == TEXT('\\') && Buffer[1])
				{
					++Buffer;
				}
				else if (*Buffer == TEXT('"'))
				{
					bInQuotes = false;
				}
			}
			else if (*Buffer == TEXT('"'))
			{
				bInQuotes = true;
			}
			else if (*Buffer == TEXT('('))
			{
				++Depth;
			}
			else if (Depth == 0 && (*Buffer == TEXT(')') || *Buffer == TEXT(',')))
			{
				return Buffer;
			}
			else if (*Buffer == TEXT(')'))
			{
				--Depth;
			}
		}
		return Buffer;
	}

	/** "Name=Value". */
	const TCHAR* ImportField(const TCHAR* Buffer, const UScriptStruct* Struct, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText)
	{
		const TCHAR* Start = Buffer;
		while (*Buffer && *Buffer != TEXT('=') && *Buffer != TEXT(',') && *Buffer != TEXT(')'))
		{
			++Buffer;
		}
		if (*Buffer != TEXT('='))
		{
			return nullptr;
		}
		const FString Name = FString::ConstructFromPtrSize(Start, static_cast<int32>(Buffer - Start)).TrimStartAndEnd();
		Buffer = PropertyText::SkipBlanks(Buffer + 1);
		const FProperty* Property = Name.IsEmpty() || Name.Len() >= NAME_SIZE ? nullptr : Struct->FindPropertyByName(FName(*Name));
		return Property ? Property->ImportText_InContainer(Buffer, Value, OwnerObject, PortFlags | PPF_Delimited, ErrorText) : SkipValue(Buffer);
	}
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags, UObject* ExportRootScope, bool bAllowNativeOverride) const
{
	if (TextOps && bAllowNativeOverride)
	{
		TextOps->Export(ValueStr, Value, PortFlags);
		return;
	}
	// Fields of super structs come first, as they lie in memory.
	TArray<const UStruct*> Types;
	for (const UStruct* Type = this; Type; Type = Type->GetSuperStruct())
	{
		Types.Insert(Type, 0);
	}
	bool bFirst = true;
	ValueStr += TEXT("(");
	for (const UStruct* Type : Types)
	{
		for (const FProperty* Property : Type->GetOwnProperties())
		{
			FString Field;
			const void* Data = Property->ContainerPtrToValuePtr(Value);
			const void* Delta = Defaults ? Property->ContainerPtrToValuePtr(Defaults) : Data;
			if (Property->ExportText_Direct(Field, Data, Delta, OwnerObject, PortFlags | PPF_Delimited, ExportRootScope))
			{
				ValueStr += bFirst ? TEXT("") : TEXT(",");
				ValueStr += Property->GetName() + TEXT("=") + Field;
				bFirst = false;
			}
		}
	}
	ValueStr += TEXT(")");
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName, bool bAllowNativeOverride) const
{
	if (TextOps && bAllowNativeOverride && *Buffer != TEXT('('))
	{
		return TextOps->Import(Buffer, Value, PortFlags);
	}
	if (*Buffer != TEXT('('))
	{
		return nullptr;
	}
	Buffer = PropertyText::SkipBlanks(Buffer + 1);
	while (*Buffer && *Buffer != TEXT(')'))
	{
		Buffer = StructText::ImportField(Buffer, this, Value, OwnerObject, PortFlags, ErrorText);
		if (!Buffer)
		{
			return nullptr;
		}
		Buffer = PropertyText::SkipBlanks(Buffer);
		if (*Buffer == TEXT(','))
		{
			Buffer = PropertyText::SkipBlanks(Buffer + 1);
		}
		else if (*Buffer != TEXT(')'))
		{
			return nullptr; // something stands behind a value
		}
	}
	(void)StructName;
	return *Buffer == TEXT(')') ? Buffer + 1 : nullptr;
}

FString FStructProperty::GetCPPType() const
{
	return Struct->GetStructCPPName().ToString();
}

void FStructProperty::InitializeValue(void* Dest) const
{
	Struct->InitializeStruct(Dest);
}

void FStructProperty::DestroyValue(void* Dest) const
{
	Struct->DestroyStruct(Dest);
}

void FStructProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	Struct->CopyScriptStruct(Dest, Src);
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (B)
	{
		return Struct->CompareScriptStruct(A, B, PortFlags);
	}
	const FScratchValue Default(this);
	return Struct->CompareScriptStruct(A, Default.Get(), PortFlags);
}

void FStructProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	Struct->ExportText(ValueStr, Value, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FStructProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return Struct->ImportText(PropertyText::SkipBlanks(Buffer), Value, OwnerObject, PortFlags, ErrorText, Struct->GetName());
}

void FStructProperty::CollectReferences(void* Value, FReferenceCollector& Collector) const
{
	for (const FProperty* Property : Struct->GetReferenceProperties())
	{
		Property->CollectReferences(Property->ContainerPtrToValuePtr(Value), Collector);
	}
}
