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

UClass* FLayoutReader::ReadTarget(const FJson& Json, const FString& Pointer, FName& OutTarget, FName& OutMember)
{
	const TOptional<FString> Text = ScalarText(Json);
	FString Target;
	FString Member = Text.Get(FString());
	if (Member.IsEmpty())
	{
		Complain(Pointer, TEXT("this is a text: 'Widget.Member', or 'Member' of the panel"));
		return nullptr;
	}
	if (Text.GetValue().Split(TEXT("."), &Target, &Member) && Target != TEXT("self"))
	{
		OutTarget = FName(*Target);
	}
	OutMember = FName(*Member);
	UClass* Class = Types.FindTarget(OutTarget);
	if (!Class)
	{
		Complain(Pointer, FString::Printf(TEXT("the layout has no widget '%s'"), *Target));
	}
	return Class;
}

/** "/Script/Module.Class.Function": a static function that Blueprints can call. */
UClass* FLayoutReader::ReadLibrary(const FString& Text, const FString& Pointer, FLayoutFunctionCall& OutCall)
{
	int32 Dot = INDEX_NONE;
	Text.FindLastChar(TEXT('.'), Dot);
	const FString ClassPath = Text.Left(Dot);
	OutCall.Function = FName(*Text.RightChop(Dot + 1));
	OutCall.Library = FindObject<UClass>(nullptr, *ClassPath);
	if (!OutCall.Library)
	{
		Complain(Pointer, FString::Printf(TEXT("there is no class '%s'"), *ClassPath));
		return nullptr;
	}
	const UFunction* Function = OutCall.Library->FindFunctionByName(OutCall.Function);
	if (Function && !Function->HasAllFunctionFlags(static_cast<EFunctionFlags>(FUNC_Static | FUNC_BlueprintCallable)))
	{
		Complain(Pointer, FString::Printf(TEXT("'%s' is no static function that Blueprints can call"), *OutCall.Function.ToString()));
		return nullptr;
	}
	return OutCall.Library;
}

UFunction* FLayoutReader::ReadFunction(const FJson& Json, const char* Key, const FString& Pointer, FLayoutFunctionCall& OutCall)
{
	const FString CallPointer = LayoutPointer::Child(Pointer, std::string(Key));
	const FString Text = ScalarText(Json[Key]).Get(FString());
	UClass* Class = Text.StartsWith(TEXT("/")) ? ReadLibrary(Text, CallPointer, OutCall) : ReadTarget(Json[Key], CallPointer, OutCall.Target, OutCall.Function);
	UFunction* Function = Class ? Class->FindFunctionByName(OutCall.Function) : nullptr;
	if (Function)
	{
		return CheckCall(*Class, *Function, CallPointer) ? Function : nullptr;
	}
	if (Class == Layout->ParentClass && OutCall.Target.IsNone())
	{
		Function = Scratch->FindFunctionByName(OutCall.Function); // one of the layout's own
	}
	if (Class && !Function)
	{
		Complain(CallPointer, FString::Printf(TEXT("%s has no function '%s'"), *Class->GetName(), *OutCall.Function.ToString()));
	}
	return Function;
}

bool FLayoutReader::ReadSet(const FJson& Json, const FString& Pointer, FLayoutAction& OutAction)
{
	OutAction.Kind = FLayoutAction::EKind::Set;
	const FString SetPointer = LayoutPointer::Child(Pointer, std::string("Set"));
	FName& Property = OutAction.Assignment.Property;
	UClass* Class = ReadTarget(Json["Set"], SetPointer, OutAction.Target, Property);
	if (!Class)
	{
		return false;
	}
	const LayoutTypes::FSetter Setter = LayoutTypes::FindSetter(*Class, Property);
	if (!Setter.IsValid())
	{
		Complain(SetPointer, FString::Printf(TEXT("%s has no property '%s'"), *Class->GetName(), *Property.ToString()));
		return false;
	}
	if (!Setter.Function && !LayoutAccess::CanWrite(*Setter.Property))
	{
		Complain(SetPointer, FString::Printf(TEXT("Blueprints cannot set '%s' of %s"), *Property.ToString(), *Class->GetName()), TEXT("Make it BlueprintReadWrite."));
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
	OutAction.Assignment.Value = Value;
	return true;
}

bool FLayoutReader::ReadCall(const FJson& Json, const FString& Pointer, bool bCanCallParent, FLayoutAction& OutAction)
{
	OutAction.Kind = FLayoutAction::EKind::Call;
	UFunction* Function = ReadFunction(Json, "Call", Pointer, OutAction.Function);
	if (!Function || !ReadBranches(Json, Pointer, bCanCallParent, *Function, OutAction))
	{
		return false;
	}
	OutAction.Function.bPassArgumentsOn = !Json.contains("With");
	return OutAction.Function.bPassArgumentsOn || ReadArguments(Json["With"], LayoutPointer::Child(Pointer, std::string("With")), *Function, OutAction.Function);
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

bool FLayoutReader::ReadArguments(const FJson& Json, const FString& Pointer, UFunction& Function, FLayoutFunctionCall& OutCall)
{
	if (!Json.is_object())
	{
		Complain(Pointer, TEXT("arguments are a JSON object: from the name of a parameter to its value"));
		return false;
	}
	ReadAssignments(Json, Pointer, OutCall.Arguments);
	for (const FLayoutAssignment& Argument : OutCall.Arguments)
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
