// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutReader.h"
#include "Layout/LayoutValues.h"

TOptional<FString> FLayoutReader::ScalarText(const FJson& Json)
{
	const auto ToString = [](const std::string& Utf8) { return FString(UTF8_TO_TCHAR(Utf8.c_str())); };
	if (Json.is_string())
	{
		return ToString(Json.get<std::string>());
	}
	return Json.is_boolean() || Json.is_number() ? TOptional<FString>(ToString(Json.dump())) : TOptional<FString>();
}

TSharedPtr<FLayoutValue> FLayoutReader::ReadValue(const FJson& Json, const FString& Pointer)
{
	const TSharedRef<FLayoutValue> Value = MakeShared<FLayoutValue>();
	Value->Pointer = Pointer;
	if (Json.is_object())
	{
		const bool bRead = Json.contains("ResultOf") ? ReadResult(Json, *Value) : ReadChoice(Json, *Value);
		return bRead ? Value.ToSharedPtr() : nullptr;
	}
	if (Json.is_array())
	{
		return ReadList(Json, *Value) ? Value.ToSharedPtr() : nullptr;
	}
	const TOptional<FString> Text = ScalarText(Json);
	if (!Text.IsSet())
	{
		Complain(Pointer, TEXT("a value is a text, a number, true, false, a list, or a choice"));
		return nullptr;
	}
	return ReadText(Text.GetValue(), *Value) ? Value.ToSharedPtr() : nullptr;
}

/** Texts with paths in braces; two opening or closing braces stand for one that is meant as such. */
bool FLayoutReader::ReadText(const FString& Text, FLayoutValue& OutValue)
{
	FString Literal;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Character = Text[Index];
		const bool bDoubled = Index + 1 < Text.Len() && Text[Index + 1] == Character;
		if ((Character == TEXT('{') || Character == TEXT('}')) && bDoubled)
		{
			Literal += Character;
			++Index;
			continue;
		}
		if (Character != TEXT('{'))
		{
			Literal += Character;
			continue;
		}
		const int32 End = Text.Find(TEXT("}"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Index);
		FString Inner = End == INDEX_NONE ? FString() : Text.Mid(Index + 1, End - Index - 1).TrimStartAndEnd();
		FLayoutPath Path;
		Path.bNot = Inner.RemoveFromStart(TEXT("!"));
		Inner.ParseIntoArray(Path.Parts, TEXT("."), false);
		if (Inner.Len() > MaxNameLength)
		{
			Complain(OutValue.Pointer, FString::Printf(TEXT("a name in braces has more than %d characters"), MaxNameLength), TEXT("Write {{ for a brace that is meant as such."));
			return false;
		}
		if (End == INDEX_NONE || Inner.IsEmpty() || Path.Parts.ContainsByPredicate([](const FString& Part) { return Part.IsEmpty(); }))
		{
			Complain(OutValue.Pointer, FString::Printf(TEXT("'%s' has a brace that begins no name"), *Text), TEXT("Write {{ for a brace that is meant as such."));
			return false;
		}
		if (!Literal.IsEmpty())
		{
			OutValue.Pieces.Add({Literal, {}});
			Literal.Empty();
		}
		OutValue.Pieces.Add({FString(), Path});
		Index = End;
	}
	if (!Literal.IsEmpty() || OutValue.Pieces.IsEmpty())
	{
		OutValue.Pieces.Add({Literal, {}});
	}
	return true;
}

bool FLayoutReader::ReadList(const FJson& Json, FLayoutValue& OutValue)
{
	OutValue.Kind = FLayoutValue::EKind::List;
	for (std::size_t Index = 0; Index < Json.size(); ++Index)
	{
		const TSharedPtr<FLayoutValue> Element = ReadValue(Json[Index], LayoutPointer::Child(OutValue.Pointer, Index));
		if (!Element.IsValid())
		{
			return false;
		}
		OutValue.Elements.Add(Element.ToSharedRef());
	}
	return true;
}

bool FLayoutReader::ReadChoice(const FJson& Json, FLayoutValue& OutValue)
{
	OutValue.Kind = FLayoutValue::EKind::Choice;
	if (!CheckKeys(Json, OutValue.Pointer, {"If", "Is", "Then", "Else"}))
	{
		return false;
	}
	if (!Json.contains("If") || !Json.contains("Then") || !Json.contains("Else"))
	{
		Complain(OutValue.Pointer, TEXT("a choice has 'If', 'Then' and 'Else'"));
		return false;
	}
	OutValue.If.Value = ReadValue(Json["If"], LayoutPointer::Child(OutValue.Pointer, std::string("If")));
	OutValue.If.Is = Json.contains("Is") ? ReadValue(Json["Is"], LayoutPointer::Child(OutValue.Pointer, std::string("Is"))) : nullptr;
	OutValue.Then = ReadValue(Json["Then"], LayoutPointer::Child(OutValue.Pointer, std::string("Then")));
	OutValue.Else = ReadValue(Json["Else"], LayoutPointer::Child(OutValue.Pointer, std::string("Else")));
	return OutValue.If.Value.IsValid() && (OutValue.If.Is.IsValid() || !Json.contains("Is")) && OutValue.Then.IsValid() && OutValue.Else.IsValid();
}

bool FLayoutReader::ReadResult(const FJson& Json, FLayoutValue& OutValue)
{
	OutValue.Kind = FLayoutValue::EKind::Result;
	const FString& Pointer = OutValue.Pointer;
	if (!bTreeIsKnown)
	{
		Complain(Pointer, TEXT("what a function returns can be used in actions and in 'Objects' only"));
		return false;
	}
	const TSharedRef<FLayoutFunctionCall> Call = MakeShared<FLayoutFunctionCall>();
	UFunction* Function = CheckKeys(Json, Pointer, {"ResultOf", "With", "Member"}) ? ReadFunction(Json, "ResultOf", Pointer, *Call) : nullptr;
	if (!Function)
	{
		return false;
	}
	if (!Function->GetReturnProperty())
	{
		Complain(LayoutPointer::Child(Pointer, std::string("ResultOf")), FString::Printf(TEXT("'%s' returns nothing"), *Function->GetName()));
		return false;
	}
	if (Json.contains("Member"))
	{
		ReadString(Json, "Member", Pointer).Get(FString()).ParseIntoArray(OutValue.Members, TEXT("."), false);
	}
	OutValue.Call = Call;
	return !Json.contains("With") || ReadArguments(Json["With"], LayoutPointer::Child(Pointer, std::string("With")), *Function, *Call);
}

/** A value that is true, or {"Value": …, "Is": …}. */
bool FLayoutReader::ReadCondition(const FJson& Json, const FString& Pointer, FLayoutCondition& OutCondition)
{
	if (!Json.is_object() || Json.contains("If") || Json.contains("ResultOf"))
	{
		OutCondition.Value = ReadValue(Json, Pointer);
		return OutCondition.Value.IsValid();
	}
	if (!CheckKeys(Json, Pointer, {"Value", "Is"}))
	{
		return false;
	}
	if (!Json.contains("Value") || !Json.contains("Is"))
	{
		Complain(Pointer, TEXT("a condition is a value, or has 'Value' and 'Is'"));
		return false;
	}
	OutCondition.Value = ReadValue(Json["Value"], LayoutPointer::Child(Pointer, std::string("Value")));
	OutCondition.Is = ReadValue(Json["Is"], LayoutPointer::Child(Pointer, std::string("Is")));
	return OutCondition.Value.IsValid() && OutCondition.Is.IsValid();
}

void FLayoutReader::CheckValue(const FLayoutValue& Value, const FProperty* Property)
{
	FString Pointer;
	FString Reason;
	if (!LayoutValues::Check(Value, Types, Property, Pointer, Reason))
	{
		Complain(Pointer, Reason);
	}
}

void FLayoutReader::CheckCondition(const FLayoutCondition& Condition)
{
	FString Pointer;
	FString Reason;
	if (!LayoutValues::Check(Condition, Types, Pointer, Reason))
	{
		Complain(Pointer, Reason);
	}
}
