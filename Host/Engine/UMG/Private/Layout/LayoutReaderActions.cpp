// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutAccess.h"
#include "Layout/LayoutReader.h"

#include <utility>

TArray<FLayoutAction> FLayoutReader::ReadActions(const FJson& Json, const FString& Pointer, const UFunction& Event, bool bCanCallParent)
{
	Types.Event = &Event;
	TArray<FLayoutAction> Actions = ReadActionList(Json, Pointer, bCanCallParent);
	Types.Event = nullptr;
	return Actions;
}

TArray<FLayoutAction> FLayoutReader::ReadActionList(const FJson& Json, const FString& Pointer, bool bCanCallParent)
{
	TArray<FLayoutAction> Actions;
	if (!Json.is_array())
	{
		Complain(Pointer, TEXT("what is to be done is a JSON array of actions"));
		return Actions;
	}
	for (std::size_t Index = 0; Index < Json.size(); ++Index)
	{
		FLayoutAction Action;
		if (ReadAction(Json[Index], LayoutPointer::Child(Pointer, Index), bCanCallParent, Action))
		{
			Actions.Add(MoveTemp(Action));
		}
	}
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
		return CheckKeys(Json, Pointer, {"When", "Call", "With", "Then", "Else"}) && ReadCall(Json, Pointer, bCanCallParent, OutAction);
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
	const TOptional<FString> Text = ScalarText(Json);
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
	if (!Setter.Function && !LayoutAccess::CanWrite(*Setter.Property))
	{
		Complain(SetPointer, FString::Printf(TEXT("Blueprints cannot set '%s' of %s"), *OutAction.Member.ToString(), *Class->GetName()), TEXT("Make it BlueprintReadWrite."));
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

bool FLayoutReader::ReadCall(const FJson& Json, const FString& Pointer, bool bCanCallParent, FLayoutAction& OutAction)
{
	OutAction.Kind = FLayoutAction::EKind::Call;
	const FString CallPointer = LayoutPointer::Child(Pointer, std::string("Call"));
	const FString Text = ScalarText(Json["Call"]).Get(FString());
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
	if (!CheckCall(*Class, *Function, CallPointer) || !ReadBranches(Json, Pointer, bCanCallParent, *Function, OutAction))
	{
		return false;
	}
	OutAction.bPassArgumentsOn = !Json.contains("With");
	return OutAction.bPassArgumentsOn || ReadArguments(Json["With"], LayoutPointer::Child(Pointer, std::string("With")), *Function, OutAction);
}

bool FLayoutReader::CheckCall(const UClass& Class, const UFunction& Function, const FString& Pointer)
{
	if (LayoutAccess::CanCall(Function))
	{
		return true;
	}
	Complain(Pointer, FString::Printf(TEXT("Blueprints cannot call '%s' of %s"), *Function.GetName(), *Class.GetName()),
		Function.HasAnyFunctionFlags(FUNC_BlueprintEvent) ? TEXT("It is an event: answer it under 'Events', or make it BlueprintCallable.") : TEXT("Make it BlueprintCallable."));
	return false;
}

bool FLayoutReader::ReadBranches(const FJson& Json, const FString& Pointer, bool bCanCallParent, const UFunction& Function, FLayoutAction& OutAction)
{
	for (const auto& [Key, Branch] : {std::pair("Then", &OutAction.Then), std::pair("Else", &OutAction.Else)})
	{
		if (!Json.contains(Key))
		{
			continue;
		}
		const FString BranchPointer = LayoutPointer::Child(Pointer, std::string(Key));
		if (!CastField<FBoolProperty>(Function.GetReturnProperty()))
		{
			Complain(BranchPointer, FString::Printf(TEXT("'%s' returns no truth value to go by"), *Function.GetName()));
			return false;
		}
		*Branch = ReadActionList(Json[Key], BranchPointer, bCanCallParent);
	}
	return true;
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
