// Copyright Velmorant. All Rights Reserved.

#include "PropertyReader.h"

#include "Internationalization/Text.h"
#include "PackageStructs.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <cmath>
#include <limits>

namespace PropertyReader
{
	/** Smallest and largest value of an integer property. */
	struct FRange
	{
		int64 Min;
		uint64 Max;
	};

	FRange RangeOf(const FNumericProperty* Property)
	{
		const int32 Bits = Property->GetElementSize() * 8;
		const bool bUnsigned = Property->IsA<FByteProperty>() || Property->IsA<FUInt16Property>() || Property->IsA<FUInt32Property>() ||
			Property->IsA<FUInt64Property>();
		if (bUnsigned)
		{
			return {0, Bits == 64 ? std::numeric_limits<uint64>::max() : (uint64(1) << Bits) - 1};
		}
		const uint64 Max = (uint64(1) << (Bits - 1)) - 1;
		return {-static_cast<int64>(Max) - 1, Max};
	}

	bool Fits(const FJson& Json, const FRange& Range)
	{
		return Json.is_number_unsigned() ? Json.get<uint64>() <= Range.Max
										 : Json.get<int64>() >= Range.Min && (Json.get<int64>() < 0 || static_cast<uint64>(Json.get<int64>()) <= Range.Max);
	}

	void SetInteger(const FNumericProperty* Property, void* Value, const FJson& Json)
	{
		if (Json.is_number_unsigned())
		{
			Property->SetIntPropertyValue(Value, Json.get<uint64>());
		}
		else
		{
			Property->SetIntPropertyValue(Value, Json.get<int64>());
		}
	}

	const std::string* FindString(const FJson& Json, const char* Key)
	{
		const auto Found = Json.find(Key);
		return Found != Json.end() && Found->is_string() ? &Found->get_ref<const std::string&>() : nullptr;
	}
}

bool FPropertyReader::ReadProperties(const UStruct* Struct, void* Container, const FJson& Json, const FJsonPlace& Place)
{
	if (!Json.is_object())
	{
		return RefuseType(Place, Json, TEXT("an object with one member per property"));
	}
	for (auto Member = Json.begin(); Member != Json.end(); ++Member)
	{
		const FJsonPlace MemberPlace(Place, Member.key());
		const FString Name = PackageJson::ToString(Member.key());
		const FProperty* Property = Name.IsEmpty() || Name.Len() >= 1024 ? nullptr : Struct->FindPropertyByName(FName(*Name));
		if (Property == nullptr)
		{
			return Refuse(MemberPlace, FString::Printf(TEXT("%s has no property \"%s\""), *Struct->GetName(), *Name),
				TEXT("Correct the name, or remove the line if its value is not needed any more."));
		}
		if (!IsStoredInPackages(Property))
		{
			return Refuse(MemberPlace, FString::Printf(TEXT("the property \"%s\" of %s is not stored in files"), *Name, *Struct->GetName()),
				TEXT("Remove the line."));
		}
		if (!ReadProperty(Property, Container, Member.value(), MemberPlace))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyReader::ReadProperty(const FProperty* Property, void* Container, const FJson& Json, const FJsonPlace& Place)
{
	if (Property->ArrayDim == 1)
	{
		return ReadValue(Property, Container != nullptr ? Property->ContainerPtrToValuePtr<void>(Container) : nullptr, Json, Place);
	}
	if (!Json.is_array() || Json.size() != static_cast<size_t>(Property->ArrayDim))
	{
		return RefuseType(Place, Json, *FString::Printf(TEXT("an array of %d values"), Property->ArrayDim));
	}
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		const FJsonPlace ElementPlace(Place, static_cast<size_t>(Index));
		void* Value = Container != nullptr ? Property->ContainerPtrToValuePtr<void>(Container, Index) : nullptr;
		if (!ReadValue(Property, Value, Json[static_cast<size_t>(Index)], ElementPlace))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyReader::ReadValue(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	if (const FBoolProperty* Bool = CastField<FBoolProperty>(Property))
	{
		if (!Json.is_boolean())
		{
			return RefuseType(Place, Json, TEXT("true or false"));
		}
		if (Value != nullptr)
		{
			Bool->SetPropertyValue(Value, Json.get<bool>());
		}
		return true;
	}
	if (const FEnumProperty* Enum = CastField<FEnumProperty>(Property))
	{
		return ReadEnum(Enum->GetEnum(), Enum->GetUnderlyingProperty(), Value, Json, Place);
	}
	if (const FNumericProperty* Number = CastField<FNumericProperty>(Property))
	{
		return Number->GetIntPropertyEnum() != nullptr ? ReadEnum(Number->GetIntPropertyEnum(), Number, Value, Json, Place)
													   : ReadNumber(Number, Value, Json, Place);
	}
	if (Property->IsA<FStrProperty>() || Property->IsA<FNameProperty>() || Property->IsA<FTextProperty>())
	{
		return ReadText(Property, Value, Json, Place);
	}
	if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
	{
		return ReadStruct(Struct->Struct, Value, Json, Place);
	}
	if (Property->IsA<FArrayProperty>())
	{
		return ReadArray(Property, Value, Json, Place);
	}
	if (Property->IsA<FSetProperty>())
	{
		return ReadSet(Property, Value, Json, Place);
	}
	if (Property->IsA<FMapProperty>())
	{
		return ReadMap(Property, Value, Json, Place);
	}
	return ReadReference(Property, Value, Json, Place);
}

bool FPropertyReader::ReadNumber(const FNumericProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	if (Property->IsFloatingPoint())
	{
		return ReadFloat(Property, Value, Json, Place);
	}
	const PropertyReader::FRange Range = PropertyReader::RangeOf(Property);
	if (!Json.is_number_integer() || !PropertyReader::Fits(Json, Range))
	{
		return RefuseType(Place, Json,
			*FString::Printf(TEXT("a whole number from %lld to %llu"), static_cast<long long>(Range.Min), static_cast<unsigned long long>(Range.Max)));
	}
	if (Value != nullptr)
	{
		PropertyReader::SetInteger(Property, Value, Json);
	}
	return true;
}

bool FPropertyReader::ReadFloat(const FNumericProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	double Number = 0;
	if (Json.is_number())
	{
		Number = Json.get<double>();
	}
	else if (Json == "NaN")
	{
		Number = std::numeric_limits<double>::quiet_NaN();
	}
	else if (Json == "Infinity" || Json == "-Infinity")
	{
		Number = Json == "Infinity" ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
	}
	else
	{
		return RefuseType(Place, Json, TEXT("a number"));
	}
	if (Property->IsA<FFloatProperty>() && std::isfinite(Number) && std::abs(Number) > static_cast<double>(std::numeric_limits<float>::max()))
	{
		return RefuseType(Place, Json, TEXT("a number from -3.4028234e38 to 3.4028234e38"));
	}
	if (Value != nullptr)
	{
		Property->SetFloatingPointPropertyValue(Value, Number);
	}
	return true;
}

bool FPropertyReader::ReadEnum(const UEnum* Enum, const FNumericProperty* Underlying, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	if (Json.is_number())
	{
		return ReadNumber(Underlying, Value, Json, Place); // a value that has no name
	}
	FString Name;
	if (!ReadString(Json, Place, Name))
	{
		return false;
	}
	const int32 Index = Enum->GetIndexByNameString(Name);
	if (Index == INDEX_NONE)
	{
		return Refuse(Place, FString::Printf(TEXT("%s has no value \"%s\""), *Enum->GetName(), *Name), TEXT("Use one of the enum's names."));
	}
	if (Value != nullptr)
	{
		Underlying->SetIntPropertyValue(Value, Enum->GetValueByIndex(Index));
	}
	return true;
}

bool FPropertyReader::ReadText(const FProperty* Property, void* Value, const FJson& Json, const FJsonPlace& Place)
{
	const FTextProperty* TextProperty = CastField<FTextProperty>(Property);
	if (TextProperty != nullptr && Json.is_object())
	{
		const std::string* Namespace = PropertyReader::FindString(Json, "Namespace");
		const std::string* Key = PropertyReader::FindString(Json, "Key");
		const std::string* Source = PropertyReader::FindString(Json, "Source");
		const std::string* Invariant = PropertyReader::FindString(Json, "Invariant");
		const bool bLocalized = Json.size() == 3 && Namespace != nullptr && Key != nullptr && Source != nullptr;
		if (!bLocalized && (Json.size() != 1 || Invariant == nullptr))
		{
			return RefuseType(Place, Json, TEXT("a text: a string, or an object with the strings Namespace, Key and Source, or with Invariant alone"));
		}
		if (Value != nullptr)
		{
			TextProperty->SetPropertyValue(Value,
				bLocalized ? FText::AsLocalizable_Advanced(PackageJson::ToString(*Namespace), PackageJson::ToString(*Key), *PackageJson::ToString(*Source))
						   : FText::AsCultureInvariant(PackageJson::ToString(*Invariant)));
		}
		return true;
	}
	FString Text;
	if (!ReadString(Json, Place, Text))
	{
		return false;
	}
	const FNameProperty* NameProperty = CastField<FNameProperty>(Property);
	if (NameProperty != nullptr && Text.Len() >= 1024)
	{
		return RefuseType(Place, Json, TEXT("a name of less than 1024 characters"));
	}
	if (Value == nullptr)
	{
		return true;
	}
	if (NameProperty != nullptr)
	{
		NameProperty->SetPropertyValue(Value, FName(*Text));
	}
	else if (TextProperty != nullptr)
	{
		TextProperty->SetPropertyValue(Value, Text.IsEmpty() ? FText::GetEmpty() : FText::FromString(Text));
	}
	else
	{
		CastFieldChecked<FStrProperty>(Property)->SetPropertyValue(Value, Text);
	}
	return true;
}

bool FPropertyReader::ReadString(const FJson& Json, const FJsonPlace& Place, FString& OutText)
{
	if (!Json.is_string() || Json.get_ref<const std::string&>().find('\0') != std::string::npos)
	{
		return RefuseType(Place, Json, TEXT("a text"));
	}
	OutText = PackageJson::ToString(Json.get_ref<const std::string&>());
	return true;
}

bool FPropertyReader::Refuse(const FJsonPlace& Place, const FString& Message, const FString& Remedy)
{
	Problem = FJsonProblem();
	Problem.Pointer = Place.ToString();
	Problem.Message = Message;
	Problem.Remedy = Remedy;
	return false;
}

bool FPropertyReader::RefuseType(const FJsonPlace& Place, const FJson& Json, const TCHAR* Expected)
{
	// Not the contents of arrays and objects: a file can be long.
	const std::string Found = Json.is_structured() ? Json.type_name() : Json.dump(-1, ' ', false, FJson::error_handler_t::replace);
	constexpr int32 MaxShown = 100; // characters
	const FString Text = PackageJson::ToString(Found);
	const FString Shown = Text.Len() > MaxShown ? Text.Left(MaxShown) + TEXT("…") : Text;
	return Refuse(Place, FString::Printf(TEXT("expected %s, found %s"), Expected, *Shown), TEXT("Correct the value."));
}
