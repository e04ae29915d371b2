// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutRunner.h"

#include "Blueprint/UserWidget.h"
#include "UObject/StrongObjectPtr.h"

namespace LayoutRunner
{
	/** How many lists of actions may run inside one another: no panel needs that many, and the stack holds many more. */
	static const int32 MaxDepth = 100;

	/** Counts the lists of actions that are running, those of branches included. One too many ends them all: else each would go on, and run into it again. */
	struct FDepth
	{
		FDepth() { ++Running; }
		~FDepth()
		{
			if (--Running == 0)
			{
				bRunaway = false;
			}
		}

		static inline int32 Running = 0;
		static inline bool bRunaway = false;
	};

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

	/** Then goes on by what the function returned; not at all when it could not be called. */
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
		if (const FBoolProperty* Result = CastField<FBoolProperty>(Function->GetReturnProperty()))
		{
			const bool bResult = Result->GetPropertyValue(Block.Get(*Result));
			Run(bResult ? Action.Then : Action.Else, Scope);
		}
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
		const FDepth Depth;
		if (FDepth::Running > MaxDepth && !FDepth::bRunaway)
		{
			FDepth::bRunaway = true;
			UE_LOG(LogTemp, Error, TEXT("%s: the actions of '%s' raise it again and again; they have been stopped."), *Scope.Panel->GetClass()->GetName(), *Scope.Event->GetName());
		}
		for (const FLayoutAction& Action : Actions)
		{
			if (FDepth::bRunaway)
			{
				return;
			}
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
