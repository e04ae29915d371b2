// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "UObject/StrongObjectPtr.h"

/** Of the 1,023 characters that a name can have; the rest is for what getters, setters and listeners put before and behind. */
constexpr int32 MaxNameLength = 900;

class UClass;
struct FLayoutFunctionCall;
struct FLayoutValue;

/** "ListCount", "Item.DisplayName", "UserName.Text": a parameter, a widget or the panel, and members from there on. */
struct FLayoutPath
{
	TArray<FString> Parts; // never empty
	bool bNot = false; // the opposite, as a truth value

	FString ToString() const { return FString::Join(Parts, TEXT(".")); }
};

/** A stretch of a text: as written, or what a path leads to. */
struct FLayoutPiece
{
	FString Literal;
	TOptional<FLayoutPath> Path;
};

/** Whether a value is true; with Is, whether it reads the same as that. */
struct FLayoutCondition
{
	TSharedPtr<const FLayoutValue> Value;
	TSharedPtr<const FLayoutValue> Is; // may be null
};

/** Something that is worked out when it is needed: a text with paths in it, a list of values, one of two values, or what a function returns. */
struct FLayoutValue
{
	enum class EKind : uint8
	{
		Text,
		List,
		Choice,
		Result,
	};

	EKind Kind = EKind::Text;
	FString Pointer; // where it stands in the document

	TArray<FLayoutPiece> Pieces;
	TArray<TSharedRef<const FLayoutValue>> Elements;
	FLayoutCondition If;
	TSharedPtr<const FLayoutValue> Then;
	TSharedPtr<const FLayoutValue> Else;
	TSharedPtr<const FLayoutFunctionCall> Call; // Result
	TArray<FString> Members; // Result: from what is returned on; may be empty

	/** The path when the value is nothing but one, so that it can be passed on with its type. */
	const FLayoutPath* GetSolePath() const
	{
		return Kind == EKind::Text && Pieces.Num() == 1 && Pieces[0].Path.IsSet() && !Pieces[0].Path.GetValue().bNot ? &Pieces[0].Path.GetValue() : nullptr;
	}

	/** Whether it is a text without paths. */
	bool IsConstantText() const
	{
		return Kind == EKind::Text && !Pieces.ContainsByPredicate([](const FLayoutPiece& Piece) { return Piece.Path.IsSet(); });
	}
};

/** A property of the panel or of a widget with the value to give it. */
struct FLayoutAssignment
{
	FName Property;
	TSharedPtr<const FLayoutValue> Value;
};

/** Which function, of what, with which arguments. */
struct FLayoutFunctionCall
{
	FName Target; // a widget or object; None: the panel itself
	FName Function;
	UClass* Library = nullptr; // the native class of a static function, instead of a target
	TArray<FLayoutAssignment> Arguments;
	bool bPassArgumentsOn = false; // those of the event, by position
};

/** One step of what an event does. */
struct FLayoutAction
{
	enum class EKind : uint8
	{
		Set,
		Call,
		CallParent,
	};

	EKind Kind = EKind::Set;
	TOptional<FLayoutCondition> When;
	FName Target; // Set: a widget or object; None: the panel itself
	FLayoutAssignment Assignment; // Set
	FLayoutFunctionCall Function; // Call
	TArray<FLayoutAction> Then; // Call: what follows when the function returned true
	TArray<FLayoutAction> Else; // Call: and when it returned false
};

struct FLayoutWidget
{
	UClass* Class = nullptr;
	FName Name; // None: the widget cannot be named by anybody
	FString Pointer;
	TArray<FLayoutAssignment> Properties;
	TArray<FLayoutAssignment> Slot; // how it lies in the panel around it
	TArray<FLayoutWidget> Children;
};

/** What happens when a widget or object (None: the panel itself) raises an event. */
struct FLayoutCall
{
	FName Source;
	FName Event;
	TArray<FLayoutAction> Actions;

	FName GetListenerName() const
	{
		return FName(*FString::Printf(TEXT("BndEvt__%s_%s"), Source.IsNone() ? TEXT("self") : *Source.ToString(), *Event.ToString()));
	}
};

struct FLayoutEvent
{
	FName Name;
	TArray<FLayoutAction> Actions;
};

/** Something that is no widget, by a name of the layout's own. Asked for anew at each use. */
struct FLayoutObject
{
	FName Name;
	UClass* Class = nullptr;
	TSharedPtr<const FLayoutValue> Value;
};

/** A layout that was read and found sound. */
struct FWidgetLayout
{
	UClass* ParentClass = nullptr;
	TArray<FLayoutAssignment> Properties; // of the panel
	FLayoutWidget Tree;
	TArray<FLayoutObject> Objects; // each knows those before it
	TArray<FLayoutEvent> Functions; // of the layout's own, without parameters
	TArray<FLayoutEvent> Events;
	TArray<FLayoutCall> Calls;
	TArray<TStrongObjectPtr<UClass>> UsedClasses; // those of widget blueprints would go otherwise

	const FLayoutObject* FindObject(FName Name) const
	{
		return Objects.FindByPredicate([Name](const FLayoutObject& Object) { return Object.Name == Name; });
	}
};
