// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutReader.h"
#include "Layout/LayoutValues.h"

namespace LayoutReaderActions
{
	using FJson = FLayoutReader::FJson;

	static FString ToString(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	/** Constants as they read in a text; unset for null and for what is no scalar. */
	static TOptional<FString> ScalarText(const FJson& Json)
	{
		if (Json.is_string())
		{
			return ToString(Json.get<std::string>());
		}
		return Json.is_boolean() || Json.is_number() ? TOptional<FString>(ToString(Json.dump())) : TOptional<FString>();
	}
}

TArray<FLayoutAction> FLayoutReader::ReadActions(const FJson& Json, const FString& Pointer, const UFunction& Event, bool bCanCallParent)
{
	TArray<FLayoutAction> Actions;
	if (!Json.is_array())
	{
		Complain(Pointer, TEXT("what an event does is a JSON array of actions"));
		return Actions;
	}
	Types.Event = &Event;
	for (std::size_t Index = 0; Index < Json.size(); ++Index)
	{
		FLayoutAction Action;
		if (ReadAction(Json[Index], LayoutPointer::Child(Pointer, Index), bCanCallParent, Action))
		{
			Actions.Add(MoveTemp(Action));
		}
	}
	Types.Event = nullptr;
	return Actions;
}

bool FLayoutReader::ReadAction(const FJson& Json, const FString& Pointer, bool bCanCallParent, FLayoutAction& OutAction)
{
	if (!Json.is_object())
	{
		Complain(Pointer, TEXT("an action is a JSON object"));
		return false;
	}
	if (Json.contains("When"))
	{
		FLayoutCondition When;
		if (!ReadCondition(Json["When"], LayoutPointer::Child(Pointer, std::string("When")), When))
		{
			return false;
		}
		CheckCondition(When);
		OutAction.When = When;
	}
	if (Json.contains("Set"))
	{
		return CheckKeys(Json, Pointer, {"When", "Set", "To"}) && ReadSet(Json, Pointer, OutAction);
	}
	if (Json.contains("Call"))
	{
		return CheckKeys(Json, Pointer, {"When", "Call", "With"}) && ReadCall(Json, Pointer, OutAction);
	}
	if (Json.contains("CallParent") && bCanCallParent)
	{
		OutAction.Kind = FLayoutAction::EKind::CallParent;
		return CheckKeys(Json, Pointer, {"When", "CallParent"});
	}
	Complain(Pointer, bCanCallParent ? TEXT("an action has a 'Set', a 'Call' or a 'CallParent'") : TEXT("an action has a 'Set' or a 'Call'"));
	return false;
}

UClass* FLayoutReader::ReadTarget(const FJson& Json, const FString& Pointer, FLayoutAction& OutAction)
{
	const TOptional<FString> Text = LayoutReaderActions::ScalarText(Json);
	FString Widget;
	FString Member = Text.Get(FString());
	if (Member.IsEmpty())
	{
		Complain(Pointer, TEXT("this is a text: 'Widget.Member', or 'Member' of the panel"));
		return nullptr;
	}
	if (Text.GetValue().Split(TEXT("."), &Widget, &Member) && Widget != TEXT("self"))
	{
		OutAction.Widget = FName(*Widget);
	}
	OutAction.Member = FName(*Member);
	UClass* Class = Types.FindTarget(OutAction.Widget);
	if (!Class)
	{
		Complain(Pointer, FString::Printf(TEXT("the layout has no widget '%s'"), *Widget));
	}
	return Class;
}

/** "/Script/Module.Class.Function": a static function that Blueprints can call. */
UClass* FLayoutReader::ReadLibrary(const FString& Text, const FString& Pointer, FLayoutAction& OutAction)
{
	int32 Dot = INDEX_NONE;
	Text.FindLastChar(TEXT('.'), Dot);
	const FString ClassPath = Text.Left(Dot);
	OutAction.Member = FName(*Text.RightChop(Dot + 1));
	OutAction.Library = FindObject<UClass>(nullptr, *ClassPath);
	if (!OutAction.Library)
	{
		Complain(Pointer, FString::Printf(TEXT("there is no class '%s'"), *ClassPath));
		return nullptr;
	}
	const UFunction* Function = OutAction.Library->FindFunctionByName(OutAction.Member);
	if (Function && !Function->HasAllFunctionFlags(static_cast<EFunctionFlags>(FUNC_Static | FUNC_BlueprintCallable)))
	{
		Complain(Pointer, FString::Printf(TEXT("'%s' is no static function that Blueprints can call"), *OutAction.Member.ToString()));
		return nullptr;
	}
	return OutAction.Library;
}

bool FLayoutReader::ReadSet(const FJson& Json, const FString& Pointer, FLayoutAction& OutAction)
{
	OutAction.Kind = FLayoutAction::EKind::Set;
	const FString SetPointer = LayoutPointer::Child(Pointer, std::string("Set"));
	UClass* Class = ReadTarget(Json["Set"], SetPointer, OutAction);
	if (!Class)
	{
		return false;
	}
	const LayoutTypes::FSetter Setter = LayoutTypes::FindSetter(*Class, OutAction.Member);
	if (!Setter.IsValid())
	{
		Complain(SetPointer, FString::Printf(TEXT("%s has no property '%s'"), *Class->GetName(), *OutAction.Member.ToString()));
		return false;
	}
	if (!Json.contains("To"))
	{
		Complain(Pointer, TEXT("'Set' needs a 'To'"));
		return false;
	}
	const TSharedPtr<FLayoutValue> Value = ReadValue(Json["To"], LayoutPointer::Child(Pointer, std::string("To")));
	if (!Value.IsValid())
	{
		return false;
	}
	CheckValue(*Value, Setter.Property);
	OutAction.To = Value;
	return true;
}

bool FLayoutReader::ReadCall(const FJson& Json, const FString& Pointer, FLayoutAction& OutAction)
{
	OutAction.Kind = FLayoutAction::EKind::Call;
	const FString CallPointer = LayoutPointer::Child(Pointer, std::string("Call"));
	const FString Text = LayoutReaderActions::ScalarText(Json["Call"]).Get(FString());
	UClass* Class = Text.StartsWith(TEXT("/")) ? ReadLibrary(Text, CallPointer, OutAction) : ReadTarget(Json["Call"], CallPointer, OutAction);
	if (!Class)
	{
		return false;
	}
	UFunction* Function = Class->FindFunctionByName(OutAction.Member);
	if (!Function)
	{
		Complain(CallPointer, FString::Printf(TEXT("%s has no function '%s'"), *Class->GetName(), *OutAction.Member.ToString()));
		return false;
	}
	OutAction.bPassArgumentsOn = !Json.contains("With");
	return OutAction.bPassArgumentsOn || ReadArguments(Json["With"], LayoutPointer::Child(Pointer, std::string("With")), *Function, OutAction);
}

bool FLayoutReader::ReadArguments(const FJson& Json, const FString& Pointer, UFunction& Function, FLayoutAction& OutAction)
{
	if (!Json.is_object())
	{
		Complain(Pointer, TEXT("arguments are a JSON object: from the name of a parameter to its value"));
		return false;
	}
	ReadAssignments(Json, Pointer, OutAction.Arguments);
	for (const FLayoutAssignment& Argument : OutAction.Arguments)
	{
		const FProperty* Parameter = Function.FindPropertyByName(Argument.Property);
		if (!Parameter || Parameter->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			Complain(Argument.Value->Pointer, FString::Printf(TEXT("'%s' has no parameter '%s'"), *Function.GetName(), *Argument.Property.ToString()));
			continue;
		}
		CheckValue(*Argument.Value, Parameter);
	}
	return true;
}

TSharedPtr<FLayoutValue> FLayoutReader::ReadValue(const FJson& Json, const FString& Pointer)
{
	const TSharedRef<FLayoutValue> Value = MakeShared<FLayoutValue>();
	Value->Pointer = Pointer;
	if (Json.is_object())
	{
		return ReadChoice(Json, *Value) ? Value.ToSharedPtr() : nullptr;
	}
	if (Json.is_array())
	{
		return ReadList(Json, *Value) ? Value.ToSharedPtr() : nullptr;
	}
	const TOptional<FString> Text = LayoutReaderActions::ScalarText(Json);
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

/** A value that is true, or {"Value": …, "Is": …}. */
bool FLayoutReader::ReadCondition(const FJson& Json, const FString& Pointer, FLayoutCondition& OutCondition)
{
	if (!Json.is_object() || Json.contains("If"))
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
