// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutRunner.h"

#include "Blueprint/UserWidget.h"
#include "Layout/LayoutCalls.h"
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

	/** Then goes on by what the function returned; not at all when it could not be called. */
	void Call(const FLayoutAction& Action, const FLayoutScope& Scope)
	{
		const TSharedPtr<FLayoutParameterBlock> Block = LayoutCalls::Make(Action.Function, Scope);
		const FBoolProperty* Result = Block.IsValid() ? CastField<FBoolProperty>(Block->GetResultProperty()) : nullptr;
		if (Result)
		{
			Run(Result->GetPropertyValue(Block->Get(*Result)) ? Action.Then : Action.Else, Scope);
		}
	}

	void CallParent(const FLayoutScope& Scope)
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
					if (UObject* Target = Scope.FindTarget(Action.Target))
					{
						Assign(*Target, Action.Assignment.Property, *Action.Assignment.Value, Scope);
					}
					break;
				case FLayoutAction::EKind::Call: Call(Action, Scope); break;
				case FLayoutAction::EKind::CallParent: CallParent(Scope); break;
			}
		}
	}
}
