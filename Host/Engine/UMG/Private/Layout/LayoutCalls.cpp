// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutCalls.h"

#include "Blueprint/UserWidget.h"

namespace LayoutCalls
{
	void PassOn(const UFunction& From, const uint8* Locals, UFunction& To, FLayoutParameterBlock& OutBlock)
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

	TSharedPtr<FLayoutParameterBlock> Make(const FLayoutFunctionCall& Call, const FLayoutScope& Scope)
	{
		UObject* Target = Call.Library ? Call.Library->GetDefaultObject() : Scope.FindTarget(Call.Target);
		UFunction* Function = Target ? Target->FindFunction(Call.Function) : nullptr;
		if (!Function)
		{
			return nullptr; // the widget was taken out of the tree meanwhile, or the object is not there
		}
		const TSharedPtr<FLayoutParameterBlock> Block = MakeShared<FLayoutParameterBlock>(*Function);
		if (Call.bPassArgumentsOn && Scope.Event)
		{
			PassOn(*Scope.Event, Scope.Locals, *Function, *Block);
		}
		for (const FLayoutAssignment& Argument : Call.Arguments)
		{
			const FProperty* Parameter = Function->FindPropertyByName(Argument.Property);
			if (Parameter && !LayoutValues::Evaluate(*Argument.Value, Scope, *Parameter, Block->Get(*Parameter)))
			{
				// Better nothing than a call with a value that nobody entered.
				UE_LOG(LogTemp, Warning, TEXT("%s: %s is not called, for '%s' is not a %s."), *Scope.Panel->GetClass()->GetName(), *Function->GetName(),
					*LayoutValues::EvaluateText(*Argument.Value, Scope), *LayoutTypes::Describe(*Parameter));
				return nullptr;
			}
		}
		Block->Call(*Target);
		return Block;
	}
}
