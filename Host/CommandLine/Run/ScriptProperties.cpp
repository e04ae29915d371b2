// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptProperties.h"

#include "Misc/CString.h"
#include "Run/ScriptObjects.h"
#include "Suggestions.h"
#include "UObject/UnrealType.h"

namespace ScriptProperties
{
	/** Walks from value to value along a path. */
	class FPathWalker
	{
	public:
		explicit FPathWalker(const UObject& Object)
			: Struct(Object.GetClass())
			, Container(&Object)
		{
		}

		/** One part of the path: "Name", "Name[3]" or "Num". False with a reason when there is no such thing. */
		bool Step(const FString& Part, FString& OutReason)
		{
			FString Name = Part;
			FString Index;
			const bool bIndexed = Part.Split(TEXT("["), &Name, &Index);
			if (!bIndexed && Name.Equals(TEXT("Num")) && Cast<FArrayProperty>() != nullptr)
			{
				Count = FScriptArrayHelper(Cast<FArrayProperty>(), Value).Num();
				bAtNumber = true;
				return true;
			}
			return Enter(OutReason) && GoToMember(Name, OutReason) && (!bIndexed || GoToElement(Index, OutReason));
		}

		/** To be called behind a part that was there. */
		bool IsSecret() const { return bSecret; }
		FString GetText() const { return bAtNumber ? FString::FromInt(Count) : ToText(*Property, Value); }

	private:
		template<typename PropertyType>
		const PropertyType* Cast() const
		{
			return Property != nullptr ? CastField<PropertyType>(Property) : nullptr;
		}

		/** Into the struct or object that the last part led to. */
		bool Enter(FString& OutReason)
		{
			if (bAtNumber)
			{
				OutReason = TEXT("a number has no members");
				return false;
			}
			if (Property == nullptr)
			{
				return true; // the object itself
			}
			if (const FStructProperty* StructProperty = Cast<FStructProperty>())
			{
				Struct = StructProperty->Struct;
				Container = Value;
				return true;
			}
			const FObjectPropertyBase* ObjectProperty = Cast<FObjectPropertyBase>();
			const UObject* Object = ObjectProperty != nullptr ? ObjectProperty->GetObjectPropertyValue(Value) : nullptr;
			if (Object == nullptr)
			{
				OutReason = FString::Printf(TEXT("%s has no members"), *Property->GetName());
				return false;
			}
			Struct = Object->GetClass();
			Container = Object;
			return true;
		}

		bool GoToMember(const FString& Name, FString& OutReason)
		{
			Property = Struct->FindPropertyByName(ScriptObjects::ToName(Name));
			if (Property == nullptr)
			{
				OutReason = Suggestions::Append(FString::Printf(TEXT("%s has no property %s"), *Struct->GetName(), *Name), Name, GetMemberNames());
				return false;
			}
			// As UMG's text fields have it.
			const FBoolProperty* Flag = CastField<FBoolProperty>(Struct->FindPropertyByName(FName("IsPassword")));
			bSecret = Flag != nullptr && Flag->GetPropertyValue_InContainer(Container) && Property->GetFName() == FName("Text");
			Value = Property->ContainerPtrToValuePtr(Container);
			return true;
		}

		TArray<FString> GetMemberNames() const
		{
			TArray<FString> Names;
			for (const FProperty* Member : TFieldRange<FProperty>(Struct))
			{
				Names.Add(Member->GetName());
			}
			return Names;
		}

		/** Index ends with the closing bracket. */
		bool GoToElement(const FString& Index, FString& OutReason)
		{
			const FArrayProperty* Array = Cast<FArrayProperty>();
			const FString Digits = Index.LeftChop(1);
			if (Array == nullptr || !Index.EndsWith(TEXT("]")) || !Digits.IsNumeric())
			{
				OutReason = Array == nullptr ? FString::Printf(TEXT("%s is no array"), *Property->GetName()) : FString(TEXT("an index is written [0]"));
				return false;
			}
			const FScriptArrayHelper Elements(Array, Value);
			const int32 Place = FCString::Atoi(*Digits);
			if (!Elements.IsValidIndex(Place))
			{
				OutReason = FString::Printf(TEXT("%s has %d elements"), *Property->GetName(), Elements.Num());
				return false;
			}
			Value = Elements.GetElementPtr(Place);
			Property = Array->Inner;
			return true;
		}

		const UStruct* Struct;
		const void* Container;
		const FProperty* Property = nullptr; // null before the first part
		const void* Value = nullptr;
		bool bAtNumber = false; // behind "Num"
		bool bSecret = false; // at the text of a password field
		int32 Count = 0;
	};

	FString ObjectFromText(const FObjectPropertyBase& Property, const FString& Text, void* Value)
	{
		if (Text.Equals(TEXT("None")))
		{
			Property.SetObjectPropertyValue(Value, nullptr);
			return FString();
		}
		FString Reason;
		UObject* Object = CastField<FClassProperty>(&Property) != nullptr ? ScriptObjects::FindClass(Text, Reason) : ScriptObjects::FindAsset(Text, Reason);
		if (Object != nullptr && !Object->IsA(Property.PropertyClass))
		{
			Reason = FString::Printf(TEXT("%s is no %s"), *Text, *Property.PropertyClass->GetName());
		}
		if (Reason.IsEmpty())
		{
			Property.SetObjectPropertyValue(Value, Object);
		}
		return Reason;
	}

	FString ToText(const FProperty& Property, const void* Value)
	{
		if (const FTextProperty* Text = CastField<FTextProperty>(&Property))
		{
			return Text->GetPropertyValue(Value).ToString();
		}
		if (CastField<FSoftObjectProperty>(&Property) == nullptr)
		{
			if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
			{
				const UObject* Pointed = Object->GetObjectPropertyValue(Value);
				return Pointed != nullptr ? Pointed->GetPathName() : FString(TEXT("None"));
			}
		}
		FString Text;
		Property.ExportTextItem_Direct(Text, Value, nullptr, nullptr, PPF_None);
		return Text;
	}

	FString FromText(const FProperty& Property, const FString& Text, void* Value)
	{
		const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
		if (Object != nullptr && CastField<FSoftObjectProperty>(&Property) == nullptr)
		{
			return ObjectFromText(*Object, Text, Value);
		}
		const TCHAR* Rest = Property.ImportText_Direct(*Text, Value, nullptr, PPF_None);
		const bool bWhole = Rest != nullptr && FString(Rest).TrimStartAndEnd().IsEmpty();
		return bWhole ? FString() : FString::Printf(TEXT("that is no value of the type %s"), *Property.GetCPPType());
	}

	FReading Read(const UObject& Object, const FString& Path)
	{
		FReading Result;
		FPathWalker Walker(Object);
		TArray<FString> Parts;
		Path.ParseIntoArray(Parts, TEXT("."));
		if (Parts.IsEmpty())
		{
			Result.Error = TEXT("a property is to be named");
		}
		for (int32 Index = 0; Index < Parts.Num() && Result.Error.IsEmpty(); ++Index)
		{
			Walker.Step(Parts[Index], Result.Error);
		}
		if (Result.Error.IsEmpty())
		{
			Result.Text = Walker.GetText();
			Result.bSecret = Walker.IsSecret();
		}
		if (Result.bSecret && !Result.Text.IsEmpty())
		{
			Result.Text = TEXT("\u2022\u2022\u2022\u2022\u2022\u2022\u2022\u2022");
		}
		return Result;
	}

	bool AreEqual(const FString& A, const FString& B)
	{
		const bool bTruthValue = A == TEXT("True") || A == TEXT("False"); // in any letter case, as of all comparisons by operator
		return A.Equals(B) || (bTruthValue && A == B) || (A.IsNumeric() && B.IsNumeric() && FCString::Atod(*A) == FCString::Atod(*B));
	}
}
