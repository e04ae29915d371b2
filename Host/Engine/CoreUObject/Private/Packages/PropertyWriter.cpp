// Copyright Velmorant. All Rights Reserved.

#include "PropertyWriter.h"

#include "Internationalization/Text.h"
#include "PackageStructs.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UnrealType.h"

#include <charconv>
#include <cmath>

namespace PropertyWriter
{
	FJson FromText(const FString& Text)
	{
		return PackageJson::FromString(Text);
	}

	/** Shortest decimal that reads back as the same number; what JSON has no number for becomes a word. */
	template<typename T>
	FJson WriteFloat(T Value)
	{
		if (std::isnan(Value))
		{
			return "NaN";
		}
		if (std::isinf(Value))
		{
			return Value > 0 ? "Infinity" : "-Infinity";
		}
		char Digits[64];
		const std::to_chars_result Result = std::to_chars(Digits, Digits + sizeof(Digits), Value);
		double Double = 0;
		std::from_chars(Digits, Result.ptr, Double);
		return Double;
	}

	FJson WriteText(const FText& Text)
	{
		const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
		const TOptional<FString> Key = FTextInspector::GetKey(Text);
		const FString* Source = FTextInspector::GetSourceString(Text);
		if (Key.IsSet() && !Key.GetValue().IsEmpty())
		{
			FJson Localized = FJson::object();
			Localized["Namespace"] = FromText(Namespace.Get(FString()));
			Localized["Key"] = FromText(Key.GetValue());
			Localized["Source"] = FromText(Source != nullptr ? *Source : Text.ToString());
			return Localized;
		}
		if (Text.IsCultureInvariant() && !Text.IsEmpty())
		{
			FJson Invariant = FJson::object();
			Invariant["Invariant"] = FromText(Text.ToString());
			return Invariant;
		}
		return FromText(Text.ToString());
	}

	FJson WriteEnum(const UEnum* Enum, int64 Value)
	{
		const FString Name = Enum->GetNameStringByValue(Value);
		return Name.IsEmpty() ? FJson(Value) : FromText(Name);
	}

	/** Calls Function with each stored property: own ones after those of the parents, each in order of declaration. */
	template<typename FunctionType>
	void ForEachStoredProperty(const UStruct* Struct, FunctionType&& Function)
	{
		if (Struct->GetSuperStruct() != nullptr)
		{
			ForEachStoredProperty(Struct->GetSuperStruct(), Function);
		}
		for (const FProperty* Property : Struct->GetOwnProperties())
		{
			if (IsStoredInPackages(Property))
			{
				Function(Property);
			}
		}
	}
}

void FPropertyWriter::SetAlias(const UObject* From, const UObject* To)
{
	AliasFrom = From;
	AliasTo = To;
}

FJson FPropertyWriter::WriteDifferences(const UObject* Object, const UObject* Defaults)
{
	if (DefaultsWriter == nullptr)
	{
		DefaultsWriter = std::make_unique<FPropertyWriter>();
	}
	const UObject* AliasedDefaults = Defaults;
	const UObject* AliasedObject = Object;
	while (AliasedDefaults->GetOuter() != nullptr && !AliasedDefaults->GetOuter()->IsA<UPackage>() && AliasedObject->GetOuter() != nullptr)
	{
		AliasedDefaults = AliasedDefaults->GetOuter();
		AliasedObject = AliasedObject->GetOuter();
	}
	DefaultsWriter->SetAlias(AliasedDefaults, AliasedObject);

	FJson Json = FJson::object();
	PropertyWriter::ForEachStoredProperty(Object->GetClass(), [this, Object, Defaults, &Json](const FProperty* Property) {
		FJson Value = WriteProperty(Property, Object);
		const bool bHasDefault = Defaults->GetClass()->IsChildOf(Property->GetOwnerStruct());
		if (!bHasDefault || Value != DefaultsWriter->WriteProperty(Property, Defaults))
		{
			Json[PackageJson::FromString(Property->GetName())] = MoveTemp(Value);
		}
	});
	return Json;
}

FJson FPropertyWriter::WriteProperty(const FProperty* Property, const void* Container)
{
	if (Property->ArrayDim == 1)
	{
		return WriteValue(Property, Property->ContainerPtrToValuePtr<void>(Container));
	}
	FJson Values = FJson::array();
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		Values.push_back(WriteValue(Property, Property->ContainerPtrToValuePtr<void>(Container, Index)));
	}
	return Values;
}

FJson FPropertyWriter::WriteValue(const FProperty* Property, const void* Value)
{
	if (const FBoolProperty* Bool = CastField<FBoolProperty>(Property))
	{
		return Bool->GetPropertyValue(Value);
	}
	if (const FEnumProperty* Enum = CastField<FEnumProperty>(Property))
	{
		return PropertyWriter::WriteEnum(Enum->GetEnum(), Enum->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value));
	}
	if (Property->IsA<FNumericProperty>())
	{
		return WriteNumber(Property, Value);
	}
	if (const FStrProperty* String = CastField<FStrProperty>(Property))
	{
		return PropertyWriter::FromText(String->GetPropertyValue(Value));
	}
	if (const FNameProperty* Name = CastField<FNameProperty>(Property))
	{
		return PropertyWriter::FromText(Name->GetPropertyValue(Value).ToString());
	}
	if (const FTextProperty* Text = CastField<FTextProperty>(Property))
	{
		return PropertyWriter::WriteText(Text->GetPropertyValue(Value));
	}
	if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
	{
		return WriteStruct(Struct->Struct, Value);
	}
	if (Property->IsA<FArrayProperty>())
	{
		return WriteArray(Property, Value);
	}
	if (Property->IsA<FSetProperty>())
	{
		return WriteSet(Property, Value);
	}
	if (Property->IsA<FMapProperty>())
	{
		return WriteMap(Property, Value);
	}
	if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(Property))
	{
		return PropertyWriter::FromText(Soft->GetPropertyValue(Value).ToString());
	}
	const FObjectPropertyBase* Object = CastFieldChecked<FObjectPropertyBase>(Property);
	return WriteReference(Object->GetObjectPropertyValue(Value));
}

FJson FPropertyWriter::WriteNumber(const FProperty* Property, const void* Value)
{
	if (const FFloatProperty* Float = CastField<FFloatProperty>(Property))
	{
		return PropertyWriter::WriteFloat(Float->GetPropertyValue(Value));
	}
	if (const FDoubleProperty* Double = CastField<FDoubleProperty>(Property))
	{
		return PropertyWriter::WriteFloat(Double->GetPropertyValue(Value));
	}
	const FNumericProperty* Number = CastFieldChecked<FNumericProperty>(Property);
	if (const UEnum* Enum = Number->GetIntPropertyEnum())
	{
		return PropertyWriter::WriteEnum(Enum, Number->GetSignedIntPropertyValue(Value));
	}
	if (Property->IsA<FUInt64Property>())
	{
		return Number->GetUnsignedIntPropertyValue(Value);
	}
	return Number->GetSignedIntPropertyValue(Value);
}

FJson FPropertyWriter::WriteStruct(const UScriptStruct* Struct, const void* Value)
{
	if (const FPackageStructFormat* Format = FPackageStructFormat::Find(Struct))
	{
		return PropertyWriter::FromText(Format->Write(Value));
	}
	const FJson& Defaults = GetStructDefaults(Struct);
	FJson Json = FJson::object();
	PropertyWriter::ForEachStoredProperty(Struct, [this, Value, &Defaults, &Json](const FProperty* Property) {
		const std::string Name = PackageJson::FromString(Property->GetName());
		FJson Field = WriteProperty(Property, Value);
		if (Field != Defaults.at(Name))
		{
			Json[Name] = MoveTemp(Field);
		}
	});
	return Json;
}

const FJson& FPropertyWriter::GetStructDefaults(const UScriptStruct* Struct)
{
	const auto Known = StructDefaults.find(Struct);
	if (Known != StructDefaults.end())
	{
		return Known->second;
	}
	const std::align_val_t Alignment{static_cast<size_t>(FMath::Max(Struct->GetMinAlignment(), 1))};
	void* Fresh = ::operator new(static_cast<size_t>(FMath::Max(Struct->GetStructureSize(), 1)), Alignment);
	Struct->InitializeStruct(Fresh);
	FJson Defaults = FJson::object();
	PropertyWriter::ForEachStoredProperty(Struct, [this, Fresh, &Defaults](const FProperty* Property) {
		Defaults[PackageJson::FromString(Property->GetName())] = WriteProperty(Property, Fresh);
	});
	Struct->DestroyStruct(Fresh);
	::operator delete(Fresh, Alignment);
	return StructDefaults.emplace(Struct, MoveTemp(Defaults)).first->second;
}

FJson FPropertyWriter::WriteArray(const FProperty* Property, const void* Value)
{
	const FArrayProperty* Array = CastFieldChecked<FArrayProperty>(Property);
	FScriptArrayHelper Helper(Array, Value);
	FJson Json = FJson::array();
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Json.push_back(WriteValue(Array->Inner, Helper.GetRawPtr(Index)));
	}
	return Json;
}

FJson FPropertyWriter::WriteSet(const FProperty* Property, const void* Value)
{
	const FSetProperty* Set = CastFieldChecked<FSetProperty>(Property);
	FScriptSetHelper Helper(Set, Value);
	FJson Json = FJson::array();
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			Json.push_back(WriteValue(Set->ElementProp, Helper.GetElementPtr(Index)));
		}
	}
	return Json;
}

FJson FPropertyWriter::WriteMap(const FProperty* Property, const void* Value)
{
	const FMapProperty* Map = CastFieldChecked<FMapProperty>(Property);
	FScriptMapHelper Helper(Map, Value);
	FJson Json = FJson::array();
	for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
	{
		if (Helper.IsValidIndex(Index))
		{
			FJson Pair = FJson::object();
			Pair["Key"] = WriteValue(Map->KeyProp, Helper.GetKeyPtr(Index));
			Pair["Value"] = WriteValue(Map->ValueProp, Helper.GetValuePtr(Index));
			Json.push_back(MoveTemp(Pair));
		}
	}
	return Json;
}

FJson FPropertyWriter::WriteReference(UObject* Object)
{
	// Types are never in files, whatever their flags say, but they are there again when the file is read.
	const bool bLost = IsValid(Object) && Object->HasAnyFlags(RF_Transient) && !Object->IsA<UField>();
	if (!IsValid(Object) || bLost || Object->GetPackage() == GetTransientPackage())
	{
		return nullptr;
	}
	if (AliasFrom != nullptr && Object->IsIn(AliasFrom))
	{
		const TCHAR* Delimiter = AliasTo->GetOuter() != nullptr && AliasTo->GetOuter()->IsA<UPackage>() ? TEXT(":") : TEXT(".");
		return PropertyWriter::FromText(AliasTo->GetPathName() + Delimiter + Object->GetPathName(AliasFrom));
	}
	if (OnReference)
	{
		OnReference(Object);
	}
	return PropertyWriter::FromText((Object == AliasFrom ? AliasTo : Object)->GetPathName());
}
