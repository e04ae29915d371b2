// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/LayoutTypes.h"

/** What an action can see while it runs. */
struct FLayoutScope
{
	UUserWidget* Panel = nullptr;
	const UFunction* Event = nullptr;
	const uint8* Locals = nullptr; // the event's parameters

	/** The panel for None, otherwise a widget or object of the layout; null for one that is not there just now. */
	UObject* FindTarget(FName Name) const;
};

/** Values at run time, and constants on their way into properties. */
namespace LayoutValues
{
	/** Finds a widget that a constant names; null when there is none of that name. */
	using FWidgetFinder = TFunctionRef<UObject*(const FString& Name)>;

	/** Gives a property the value that a text stands for. False with a reason when the text does not fit the type. */
	bool SetFromText(const FProperty& Property, void* Dest, const FString& Text, FWidgetFinder FindWidget, FString& OutReason);

	/** How a property's value reads in a text. */
	FString ToText(const FProperty& Property, const void* Value);

	/**
	 * Works a value out into a property.
	 * @return false when it does not fit; the property may then hold anything of its type. A path that leads nowhere just now leaves it
	 * as it is.
	 */
	bool Evaluate(const FLayoutValue& Value, const FLayoutScope& Scope, const FProperty& Property, void* Dest);

	FString EvaluateText(const FLayoutValue& Value, const FLayoutScope& Scope);

	/** The object that a path or a function's result leads to; null when it leads nowhere just now. */
	UObject* EvaluateObject(const FLayoutValue& Value, const FLayoutScope& Scope);
	bool IsMet(const FLayoutCondition& Condition, const FLayoutScope& Scope);
	bool IsTrue(const FString& Text);

	/** Checks paths, and constants against the type they go into. */
	bool Check(const FLayoutValue& Value, const FLayoutTypes& Types, const FProperty* Property, FString& OutPointer, FString& OutReason);
	bool Check(const FLayoutCondition& Condition, const FLayoutTypes& Types, FString& OutPointer, FString& OutReason);
}
