// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutRunner.h"

#include "Blueprint/UserWidget.h"
#include "UObject/StrongObjectPtr.h"

namespace LayoutRunner
{
	void Assign(UObject& Target, FName Property, const FLayoutValue& Value, const FLayoutScope& Scope)
	{
		const LayoutTypes::FSetter Setter = LayoutTypes::FindSetter(*Target.GetClass(), Property);
		if (!Setter.IsValid())
		{
			return;
		}
		if (Setter.Function)
		{
			FLayoutParameterBlock Block(*Setter.Function);
			if (LayoutValues::Evaluate(Value, Scope, *Setter.Property, Block.Get(*Setter.Property)))
			{
				Block.Call(Target);
			}
			return;
		}
		LayoutValues::Evaluate(Value, Scope, *Setter.Property, Setter.Property->ContainerPtrToValuePtr<void>(&Target));
		if (UWidget* Widget = Cast<UWidget>(&Target))
		{
			Widget->SynchronizeProperties();
		}
	}

	static void PassOn(const UFunction& From, const uint8* Locals, UFunction& To, FLayoutParameterBlock& OutBlock)
	{
		const TArray<const FProperty*> Given = LayoutTypes::ParametersOf(From);
		const TArray<const FProperty*> Wanted = LayoutTypes::ParametersOf(To);
		for (int32 Index = 0; Index < FMath::Min(Given.Num(), Wanted.Num()); ++Index)
		{
			if (LayoutTypes::IsSameType(*Given[Index], *Wanted[Index]))
			{
				Wanted[Index]->CopyCompleteValue(OutBlock.Get(*Wanted[Index]), Given[Index]->ContainerPtrToValuePtr<void>(Locals));
			}
		}
	}

	static void Call(const FLayoutAction& Action, const FLayoutScope& Scope)
	{
		UObject* Target = Action.Library ? Action.Library->GetDefaultObject() : Scope.FindTarget(Action.Widget);
		UFunction* Function = Target ? Target->FindFunction(Action.Member) : nullptr;
		if (!Function)
		{
			return; // the widget was taken out of the tree meanwhile
		}
		FLayoutParameterBlock Block(*Function);
		if (Action.bPassArgumentsOn && Scope.Event)
		{
			PassOn(*Scope.Event, Scope.Locals, *Function, Block);
		}
		for (const FLayoutAssignment& Argument : Action.Arguments)
		{
			const FProperty* Parameter = Function->FindPropertyByName(Argument.Property);
			if (Parameter && !LayoutValues::Evaluate(*Argument.Value, Scope, *Parameter, Block.Get(*Parameter)))
			{
				// Better nothing than a call with a value that nobody entered.
				UE_LOG(LogTemp, Warning, TEXT("%s: %s is not called, for '%s' is not a %s."), *Scope.Panel->GetClass()->GetName(), *Function->GetName(),
					*LayoutValues::EvaluateText(*Argument.Value, Scope), *LayoutTypes::Describe(*Parameter));
				return;
			}
		}
		Block.Call(*Target);
	}

	static void CallParent(const FLayoutScope& Scope)
	{
		UClass* ScriptClass = Cast<UClass>(Scope.Event->GetOuter());
		UClass* ParentClass = ScriptClass ? ScriptClass->GetSuperClass() : nullptr;
		UFunction* Function = ParentClass ? ParentClass->FindFunctionByName(Scope.Event->GetFName()) : nullptr;
		if (Function)
		{
			Scope.Panel->ProcessEvent(Function, const_cast<uint8*>(Scope.Locals));
		}
	}

	void Run(const TArray<FLayoutAction>& Actions, const FLayoutScope& Scope)
	{
		const TStrongObjectPtr<UUserWidget> HeldWhileRunning(Scope.Panel);
		for (const FLayoutAction& Action : Actions)
		{
			if (Action.When.IsSet() && !LayoutValues::IsMet(Action.When.GetValue(), Scope))
			{
				continue;
			}
			switch (Action.Kind)
			{
				case FLayoutAction::EKind::Set:
					if (UObject* Target = Scope.FindTarget(Action.Widget))
					{
						Assign(*Target, Action.Member, *Action.To, Scope);
					}
					break;
				case FLayoutAction::EKind::Call: Call(Action, Scope); break;
				case FLayoutAction::EKind::CallParent: CallParent(Scope); break;
			}
		}
	}
}
