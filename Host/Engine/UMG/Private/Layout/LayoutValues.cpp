// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutValues.h"

#include "Blueprint/UserWidget.h"
#include "Layout/LayoutFunctions.h"

UObject* FLayoutScope::FindTarget(FName Widget) const
{
	return Widget.IsNone() ? static_cast<UObject*>(Panel) : Panel->GetWidgetFromName(Widget);
}

namespace LayoutValues
{
	/** What a path led to; keeps what it had to make on the way. */
	struct FDatum
	{
		UObject* Object = nullptr; // the panel or a widget, or what an object property holds
		const FProperty* Property = nullptr; // null for the panel and its widgets
		const void* Value = nullptr;
		TArray<TSharedPtr<FLayoutParameterBlock>> Blocks;
	};

	static void TakeProperty(FDatum& Datum, const FProperty& Property, const void* Value)
	{
		Datum.Property = &Property;
		Datum.Value = Value;
		const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
		Datum.Object = Object ? Object->GetObjectPropertyValue(Value) : nullptr;
	}

	static bool TakeRoot(FDatum& Datum, const FString& Part, const FLayoutScope& Scope)
	{
		if (const FProperty* Parameter = Scope.Event ? Scope.Event->FindPropertyByName(FName(*Part)) : nullptr)
		{
			TakeProperty(Datum, *Parameter, Parameter->ContainerPtrToValuePtr<void>(Scope.Locals));
			return true;
		}
		Datum.Object = Part == TEXT("self") ? Scope.Panel : Scope.FindTarget(FName(*Part));
		return Datum.Object != nullptr;
	}

	static bool TakeMember(FDatum& Datum, const FString& Part)
	{
		if (UObject* Owner = Datum.Object)
		{
			const LayoutTypes::FMember Member = LayoutTypes::FindMember(*Owner->GetClass(), Part);
			if (Member.Getter)
			{
				const TSharedPtr<FLayoutParameterBlock> Block = MakeShared<FLayoutParameterBlock>(*Member.Getter);
				Block->Call(*Owner);
				Datum.Blocks.Add(Block);
				TakeProperty(Datum, *Member.Property, Block->Get(*Member.Property));
				return true;
			}
			if (Member.Property)
			{
				TakeProperty(Datum, *Member.Property, Member.Property->ContainerPtrToValuePtr<void>(Owner));
			}
			else if (Member.bHidden)
			{
				UE_LOG(LogTemp, Warning, TEXT("Blueprints cannot read '%s' of %s; it reads as empty in layouts."), *Part, *Owner->GetClass()->GetName());
			}
			return Member.Property != nullptr;
		}
		const FStructProperty* Struct = Datum.Property ? CastField<FStructProperty>(Datum.Property) : nullptr;
		const FProperty* Member = Struct ? LayoutTypes::FindMember(*Struct->Struct, Part).Property : nullptr;
		if (Member)
		{
			TakeProperty(Datum, *Member, Member->ContainerPtrToValuePtr<void>(Datum.Value));
		}
		return Member != nullptr;
	}

	/** False when something on the way is null just now. */
	static bool Follow(const FLayoutPath& Path, const FLayoutScope& Scope, FDatum& OutDatum)
	{
		if (!TakeRoot(OutDatum, Path.Parts[0], Scope))
		{
			return false;
		}
		for (int32 Index = 1; Index < Path.Parts.Num(); ++Index)
		{
			if (!TakeMember(OutDatum, Path.Parts[Index]))
			{
				return false;
			}
		}
		return true;
	}

	static FString ReadPath(const FLayoutPath& Path, const FLayoutScope& Scope)
	{
		FDatum Datum;
		FString Text;
		if (Follow(Path, Scope, Datum))
		{
			Text = Datum.Property ? ToText(*Datum.Property, Datum.Value) : Datum.Object->GetName();
		}
		return Path.bNot ? FString(IsTrue(Text) ? TEXT("false") : TEXT("true")) : Text;
	}

	FString EvaluateText(const FLayoutValue& Value, const FLayoutScope& Scope)
	{
		if (Value.Kind == FLayoutValue::EKind::Choice)
		{
			return EvaluateText(IsMet(Value.If, Scope) ? *Value.Then : *Value.Else, Scope);
		}
		FString Text;
		for (const FLayoutPiece& Piece : Value.Pieces)
		{
			Text += Piece.Path.IsSet() ? ReadPath(Piece.Path.GetValue(), Scope) : Piece.Literal;
		}
		return Text;
	}

	bool IsMet(const FLayoutCondition& Condition, const FLayoutScope& Scope)
	{
		const FString Text = EvaluateText(*Condition.Value, Scope);
		return Condition.Is.IsValid() ? Text.Equals(EvaluateText(*Condition.Is, Scope), ESearchCase::IgnoreCase) : IsTrue(Text);
	}

	static bool EvaluateList(const FLayoutValue& Value, const FLayoutScope& Scope, const FArrayProperty& Array, void* Dest)
	{
		FScriptArrayHelper Helper(&Array, Dest);
		Helper.Resize(Value.Elements.Num());
		bool bFits = true;
		for (int32 Index = 0; Index < Value.Elements.Num(); ++Index)
		{
			bFits &= Evaluate(*Value.Elements[Index], Scope, *Array.Inner, Helper.GetElementPtr(Index));
		}
		return bFits;
	}

	bool Evaluate(const FLayoutValue& Value, const FLayoutScope& Scope, const FProperty& Property, void* Dest)
	{
		if (Property.IsA<FDelegateProperty>())
		{
			LayoutFunctions::Bind(Value, Scope, Dest);
			return true;
		}
		const FArrayProperty* Array = CastField<FArrayProperty>(&Property);
		if (Value.Kind == FLayoutValue::EKind::List && Array)
		{
			return EvaluateList(Value, Scope, *Array, Dest);
		}
		if (Value.Kind == FLayoutValue::EKind::Choice)
		{
			return Evaluate(IsMet(Value.If, Scope) ? *Value.Then : *Value.Else, Scope, Property, Dest);
		}
		if (const FLayoutPath* Path = Value.GetSolePath())
		{
			FDatum Datum;
			if (!Follow(*Path, Scope, Datum))
			{
				return true;
			}
			const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
			if (Object && (!Datum.Object || Datum.Object->IsA(Object->PropertyClass)))
			{
				Object->SetObjectPropertyValue(Dest, Datum.Object);
				return true;
			}
			if (Datum.Property && LayoutTypes::IsSameType(*Datum.Property, Property))
			{
				Property.CopyCompleteValue(Dest, Datum.Value);
				return true;
			}
		}
		FString Reason;
		return SetFromText(
			Property, Dest, EvaluateText(Value, Scope), [&Scope](const FString& Name) { return Scope.FindTarget(FName(*Name)); }, Reason);
	}
}
