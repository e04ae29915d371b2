// Copyright Velmorant. All Rights Reserved.

#include "HostWidgetLayout.h"
#include "Layout/LayoutFunctions.h"
#include "Layout/LayoutValues.h"
#include "Misc/Char.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <memory>

namespace LayoutValues
{
	bool IsTrue(const FString& Text)
	{
		return !Text.IsEmpty() && !Text.Equals(TEXT("false"), ESearchCase::IgnoreCase) && !Text.Equals(TEXT("0")) && !Text.Equals(TEXT("None"));
	}

	/** With the digits that tell the number from its neighbours, and no more. */
	template<typename NumberType>
	FString ToShortText(NumberType Number)
	{
		char Digits[512]; // enough for any number without exponent
		const std::to_chars_result End = std::to_chars(Digits, Digits + sizeof(Digits) - 1, Number, std::chars_format::fixed);
		*End.ptr = 0;
		return FString(Digits);
	}

	FString ToText(const FProperty& Property, const void* Value)
	{
		if (Property.IsA<FFloatProperty>())
		{
			return ToShortText(FFloatProperty::GetPropertyValue(Value));
		}
		if (Property.IsA<FDoubleProperty>())
		{
			return ToShortText(FDoubleProperty::GetPropertyValue(Value));
		}
		if (const FTextProperty* Text = CastField<FTextProperty>(&Property))
		{
			return Text->GetPropertyValue(Value).ToString();
		}
		if (const FBoolProperty* Bool = CastField<FBoolProperty>(&Property))
		{
			return Bool->GetPropertyValue(Value) ? TEXT("true") : TEXT("false");
		}
		if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
		{
			const UObject* Target = Object->GetObjectPropertyValue(Value);
			return Target ? Target->GetName() : FString();
		}
		FString Result;
		Property.ExportTextItem_Direct(Result, Value, nullptr, nullptr, PPF_None);
		return Result;
	}

	bool SetEnum(const UEnum& Enum, const FNumericProperty& Number, void* Dest, const FString& Text, FString& OutReason)
	{
		const int64 Value = Enum.GetValueByNameString(Text);
		if (Enum.GetIndexByNameString(Text) == INDEX_NONE)
		{
			TArray<FString> Names;
			for (int32 Index = 0; Index < Enum.NumEnums() - 1; ++Index) // without the last, artificial one
			{
				Names.Add(Enum.GetNameStringByIndex(Index));
			}
			OutReason = FString::Printf(TEXT("'%s' is none of %s"), *Text, *FString::Join(Names, TEXT(", ")));
			return false;
		}
		Number.SetIntPropertyValue(Dest, Value);
		return true;
	}

	bool IsNumber(const FString& Text, bool bWhole)
	{
		int32 NumDigits = 0;
		int32 NumPoints = 0;
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			const TCHAR Character = Text[Index];
			const bool bSign = Index == 0 && (Character == TEXT('-') || Character == TEXT('+'));
			NumDigits += FChar::IsDigit(Character) ? 1 : 0;
			NumPoints += Character == TEXT('.') ? 1 : 0;
			if (!bSign && !FChar::IsDigit(Character) && Character != TEXT('.'))
			{
				return false;
			}
		}
		return NumDigits > 0 && NumPoints <= (bWhole ? 0 : 1);
	}

	/** Whether the property has this number, which is one. */
	bool IsInRange(const FNumericProperty& Property, const FString& Text)
	{
		const double Number = FCString::Atod(*Text);
		if (Property.IsFloatingPoint())
		{
			return std::abs(Number) <= (Property.IsA<FFloatProperty>() ? static_cast<double>(std::numeric_limits<float>::max()) : std::numeric_limits<double>::max());
		}
		const bool bUnsigned = Property.IsA<FByteProperty>() || Property.IsA<FUInt16Property>() || Property.IsA<FUInt32Property>() || Property.IsA<FUInt64Property>();
		const double End = std::ldexp(1.0, Property.GetElementSize() * 8 - (bUnsigned ? 0 : 1)); // the first number above
		return Number < End && Number >= (bUnsigned ? 0.0 : -End);
	}

	bool SetObject(const FObjectPropertyBase& Property, void* Dest, const FString& Text, FWidgetFinder FindWidget, FString& OutReason)
	{
		UObject* Object = nullptr;
		const bool bNull = Text.IsEmpty() || Text == TEXT("None");
		if (!bNull && Property.IsA<FClassProperty>())
		{
			UClass* Class = HostWidgetLayout::FindClass(Text, OutReason);
			const UClass* Wanted = CastField<FClassProperty>(&Property)->MetaClass;
			if (Class && !Class->IsChildOf(Wanted))
			{
				OutReason = FString::Printf(TEXT("'%s' is not a class of %s"), *Text, *Wanted->GetName());
				return false;
			}
			Object = Class;
		}
		else if (!bNull)
		{
			Object = FindWidget(Text);
			OutReason = FString::Printf(TEXT("there is no object '%s'"), *Text);
			if (!Object && Text.StartsWith(TEXT("/")))
			{
				Object = StaticLoadObject(UObject::StaticClass(), nullptr, *Text);
			}
			if (Object && !Object->IsA(Property.PropertyClass))
			{
				OutReason = FString::Printf(TEXT("'%s' is a %s, not a %s"), *Text, *Object->GetClass()->GetName(), *Property.PropertyClass->GetName());
				return false;
			}
		}
		if (!Object && !bNull)
		{
			return false;
		}
		Property.SetObjectPropertyValue(Dest, Object);
		return true;
	}

	bool SetFromText(const FProperty& Property, void* Dest, const FString& Text, FWidgetFinder FindWidget, FString& OutReason)
	{
		OutReason = FString::Printf(TEXT("'%s' is not a %s"), *Text, *LayoutTypes::Describe(Property));
		if (Property.IsA<FTextProperty>())
		{
			FTextProperty::SetPropertyValue(Dest, FText::FromString(Text));
			return true;
		}
		if (Property.IsA<FStrProperty>())
		{
			FStrProperty::SetPropertyValue(Dest, Text);
			return true;
		}
		if (Property.IsA<FNameProperty>())
		{
			const bool bFits = Text.Len() < NAME_SIZE;
			FNameProperty::SetPropertyValue(Dest, bFits ? FName(*Text) : FName());
			return bFits;
		}
		if (Property.IsA<FBoolProperty>())
		{
			const bool bTrue = Text.Equals(TEXT("true"), ESearchCase::IgnoreCase) || Text == TEXT("1");
			const bool bFalse = Text.Equals(TEXT("false"), ESearchCase::IgnoreCase) || Text == TEXT("0");
			if (bTrue || bFalse)
			{
				FBoolProperty::SetPropertyValue(Dest, bTrue);
			}
			return bTrue || bFalse;
		}
		if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
		{
			return SetEnum(*Enum->GetEnum(), *Enum->GetUnderlyingProperty(), Dest, Text, OutReason);
		}
		if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
		{
			if (Number->IsEnum())
			{
				return SetEnum(*Number->GetIntPropertyEnum(), *Number, Dest, Text, OutReason);
			}
			if (!IsNumber(Text, Number->IsInteger()))
			{
				return false;
			}
			if (!IsInRange(*Number, Text))
			{
				OutReason = FString::Printf(TEXT("%s is out of range for a %s"), *Text, *LayoutTypes::Describe(Property));
				return false;
			}
			Number->SetNumericPropertyValueFromString(Dest, *Text);
			return true;
		}
		if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
		{
			return SetObject(*Object, Dest, Text, FindWidget, OutReason);
		}
		const TCHAR* Rest = Property.ImportText_Direct(*Text, Dest, nullptr, PPF_None);
		return Rest && *Rest == TEXT('\0');
	}

	/** A constant is tried out on a value that nobody uses. */
	bool CheckConstant(const FString& Text, const FLayoutTypes& Types, const FProperty& Property, FString& OutReason)
	{
		TArray<uint8> Scratch;
		Scratch.SetNum(Property.GetElementSize() + static_cast<int32>(alignof(std::max_align_t)));
		void* Place = Scratch.GetData();
		std::size_t Space = static_cast<std::size_t>(Scratch.Num());
		void* Value = std::align(alignof(std::max_align_t), static_cast<std::size_t>(Property.GetElementSize()), Place, Space);
		Property.InitializeValue(Value);
		const auto FindWidget = [&Types](const FString& Name) -> UObject* {
			UClass* const* Class = Name.Len() > MaxNameLength ? nullptr : Types.Widgets.Find(FName(*Name));
			return Class ? (*Class)->GetDefaultObject() : nullptr; // stands for the widget: only its class matters here
		};
		const bool bFits = SetFromText(Property, Value, Text, FindWidget, OutReason);
		Property.DestroyValue(Value);
		return bFits;
	}

	bool CheckPieces(const FLayoutValue& Value, const FLayoutTypes& Types, FString& OutReason)
	{
		for (const FLayoutPiece& Piece : Value.Pieces)
		{
			if (Piece.Path.IsSet() && !LayoutTypes::TypeOf(Piece.Path.GetValue(), Types, OutReason).IsSet())
			{
				return false;
			}
		}
		return true;
	}

	bool Check(const FLayoutValue& Value, const FLayoutTypes& Types, const FProperty* Property, FString& OutPointer, FString& OutReason)
	{
		OutPointer = Value.Pointer;
		if (const FDelegateProperty* Delegate = Property ? CastField<FDelegateProperty>(Property) : nullptr)
		{
			return LayoutFunctions::Check(Value, *Types.PanelClass, *Delegate, OutReason);
		}
		if (Value.Kind == FLayoutValue::EKind::Choice)
		{
			return Check(Value.If, Types, OutPointer, OutReason) && Check(*Value.Then, Types, Property, OutPointer, OutReason) && Check(*Value.Else, Types, Property, OutPointer, OutReason);
		}
		if (Value.Kind == FLayoutValue::EKind::Result)
		{
			return LayoutTypes::TypeOfResult(Value, Types, OutReason).IsSet(); // the call was checked when it was read
		}
		const FArrayProperty* Array = Property ? CastField<FArrayProperty>(Property) : nullptr;
		if (Value.Kind == FLayoutValue::EKind::List)
		{
			OutReason = TEXT("a list fits only where a list is wanted");
			return Array && !Value.Elements.ContainsByPredicate([&](const TSharedRef<const FLayoutValue>& Element) {
				return !Check(*Element, Types, Array->Inner, OutPointer, OutReason);
			});
		}
		if (!Value.IsConstantText())
		{
			return CheckPieces(Value, Types, OutReason);
		}
		return !Property || CheckConstant(Value.Pieces.Num() > 0 ? Value.Pieces[0].Literal : FString(), Types, *Property, OutReason);
	}

	bool Check(const FLayoutCondition& Condition, const FLayoutTypes& Types, FString& OutPointer, FString& OutReason)
	{
		return Check(*Condition.Value, Types, nullptr, OutPointer, OutReason) && (!Condition.Is.IsValid() || Check(*Condition.Is, Types, nullptr, OutPointer, OutReason));
	}
}
