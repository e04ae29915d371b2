// Copyright Velmorant. All Rights Reserved.

#include "Layout/LayoutValues.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Layout/LayoutCalls.h"
#include "Layout/LayoutFunctions.h"

UObject* FLayoutScope::FindTarget(FName Name) const
{
	if (Name.IsNone())
	{
		return Panel;
	}
	if (UWidget* Widget = Panel->GetWidgetFromName(Name))
	{
		return Widget;
	}
	const UWidgetBlueprintGeneratedClass* Class = Cast<UWidgetBlueprintGeneratedClass>(Panel->GetClass());
	const FLayoutObject* Object = Class ? Class->GetLayout()->FindObject(Name) : nullptr;
	return Object ? LayoutValues::EvaluateObject(*Object->Value, FLayoutScope{Panel}) : nullptr;
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

	void TakeProperty(FDatum& Datum, const FProperty& Property, const void* Value)
	{
		Datum.Property = &Property;
		Datum.Value = Value;
		const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
		Datum.Object = Object ? Object->GetObjectPropertyValue(Value) : nullptr;
	}

	bool TakeRoot(FDatum& Datum, const FString& Part, const FLayoutScope& Scope)
	{
		if (const FProperty* Parameter = Scope.Event ? Scope.Event->FindPropertyByName(FName(*Part)) : nullptr)
		{
			TakeProperty(Datum, *Parameter, Parameter->ContainerPtrToValuePtr<void>(Scope.Locals));
			return true;
		}
		Datum.Object = Part == TEXT("self") ? Scope.Panel : Scope.FindTarget(FName(*Part));
		return Datum.Object != nullptr;
	}

	bool TakeMember(FDatum& Datum, const FString& Part)
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

	bool TakeMembers(FDatum& Datum, const TArray<FString>& Parts, int32 First)
	{
		for (int32 Index = First; Index < Parts.Num(); ++Index)
		{
			if (!TakeMember(Datum, Parts[Index]))
			{
				return false;
			}
		}
		return true;
	}

	/** False when something on the way is null just now. */
	bool Follow(const FLayoutPath& Path, const FLayoutScope& Scope, FDatum& OutDatum)
	{
		return TakeRoot(OutDatum, Path.Parts[0], Scope) && TakeMembers(OutDatum, Path.Parts, 1);
	}

	/** The same for what a function returns. */
	bool FollowResult(const FLayoutValue& Value, const FLayoutScope& Scope, FDatum& OutDatum)
	{
		const TSharedPtr<FLayoutParameterBlock> Block = LayoutCalls::Make(*Value.Call, Scope);
		if (!Block.IsValid())
		{
			return false;
		}
		OutDatum.Blocks.Add(Block);
		TakeProperty(OutDatum, *Block->GetResultProperty(), Block->Get(*Block->GetResultProperty()));
		return TakeMembers(OutDatum, Value.Members, 0);
	}

	FString ReadDatum(const FDatum& Datum)
	{
		return Datum.Property ? ToText(*Datum.Property, Datum.Value) : Datum.Object->GetName();
	}

	FString ReadPath(const FLayoutPath& Path, const FLayoutScope& Scope)
	{
		FDatum Datum;
		const FString Text = Follow(Path, Scope, Datum) ? ReadDatum(Datum) : FString();
		return Path.bNot ? FString(IsTrue(Text) ? TEXT("false") : TEXT("true")) : Text;
	}

	UObject* EvaluateObject(const FLayoutValue& Value, const FLayoutScope& Scope)
	{
		FDatum Datum;
		const FLayoutPath* Path = Value.GetSolePath();
		const bool bFound = Path ? Follow(*Path, Scope, Datum) : Value.Kind == FLayoutValue::EKind::Result && FollowResult(Value, Scope, Datum);
		return bFound ? Datum.Object : nullptr;
	}

	FString EvaluateText(const FLayoutValue& Value, const FLayoutScope& Scope)
	{
		if (Value.Kind == FLayoutValue::EKind::Choice)
		{
			return EvaluateText(IsMet(Value.If, Scope) ? *Value.Then : *Value.Else, Scope);
		}
		if (Value.Kind == FLayoutValue::EKind::Result)
		{
			FDatum Datum;
			return FollowResult(Value, Scope, Datum) ? ReadDatum(Datum) : FString();
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

	bool EvaluateList(const FLayoutValue& Value, const FLayoutScope& Scope, const FArrayProperty& Array, void* Dest)
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

	/** An array of objects into an array of any of their classes. */
	bool PassObjects(const FDatum& Datum, const FProperty& Property, void* Dest)
	{
		const FArrayProperty* From = Datum.Property ? CastField<FArrayProperty>(Datum.Property) : nullptr;
		const FArrayProperty* To = CastField<FArrayProperty>(&Property);
		const FObjectPropertyBase* Given = From ? CastField<FObjectPropertyBase>(From->Inner) : nullptr;
		const FObjectPropertyBase* Wanted = To ? CastField<FObjectPropertyBase>(To->Inner) : nullptr;
		if (!Given || !Wanted || !Given->PropertyClass->IsChildOf(Wanted->PropertyClass))
		{
			return false;
		}
		FScriptArrayHelper Source(From, Datum.Value);
		FScriptArrayHelper Target(To, Dest);
		Target.Resize(Source.Num());
		for (int32 Index = 0; Index < Source.Num(); ++Index)
		{
			Wanted->SetObjectPropertyValue(Target.GetElementPtr(Index), Given->GetObjectPropertyValue(Source.GetElementPtr(Index)));
		}
		return true;
	}

	/** Passes a value on with its type. False when the types differ: its text may still do. */
	bool Pass(const FDatum& Datum, const FProperty& Property, void* Dest)
	{
		const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property);
		if (Object && (!Datum.Object || Datum.Object->IsA(Object->PropertyClass)))
		{
			Object->SetObjectPropertyValue(Dest, Datum.Object);
			return true;
		}
		if (PassObjects(Datum, Property, Dest))
		{
			return true;
		}
		const bool bSame = Datum.Property && LayoutTypes::IsSameType(*Datum.Property, Property);
		if (bSame)
		{
			Property.CopyCompleteValue(Dest, Datum.Value);
		}
		return bSame;
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
		const auto FindWidget = [&Scope](const FString& Name) { return Name.Len() > MaxNameLength ? nullptr : Scope.FindTarget(FName(*Name)); };
		FString Reason;
		const FLayoutPath* Path = Value.GetSolePath();
		if (!Path && Value.Kind != FLayoutValue::EKind::Result)
		{
			return SetFromText(Property, Dest, EvaluateText(Value, Scope), FindWidget, Reason);
		}
		FDatum Datum;
		if (!(Path ? Follow(*Path, Scope, Datum) : FollowResult(Value, Scope, Datum)))
		{
			return Path != nullptr; // a call that could not be made gives no value
		}
		return Pass(Datum, Property, Dest) || SetFromText(Property, Dest, ReadDatum(Datum), FindWidget, Reason);
	}
}
