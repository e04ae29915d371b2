// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/LayoutModel.h"
#include "UObject/UnrealType.h"

class UUserWidget;
class UWidget;

/** What can be known of a path before anything runs. */
struct FLayoutType
{
	const FProperty* Property = nullptr; // null for the panel and its widgets
	const UStruct* Struct = nullptr; // what has members: a class or a struct; null for plain values
	bool bOpen = false; // a member of an object of any class: nothing more is known before it runs
};

/** The names that values and actions can use, and their types. */
struct FLayoutTypes
{
	const UFunction* Event = nullptr; // whose parameters are at hand; may be null
	UClass* PanelClass = nullptr;
	TMap<FName, UClass*> Widgets; // and the objects that are none

	/** The class of a widget or object by name, of the panel for None; null when there is none. */
	UClass* FindTarget(FName Name) const;
};

/** Reading reflected objects by the names that a layout uses. */
namespace LayoutTypes
{
	/** How a member of an object is read: by a function without parameters (GetX, X, IsX), or as a property. Both null: no member that Blueprints read. */
	struct FMember
	{
		UFunction* Getter = nullptr;
		const FProperty* Property = nullptr;
		bool bHidden = false; // there is one, which Blueprints cannot read
	};
	FMember FindMember(const UStruct& Owner, const FString& Name);

	/** How a property of an object is given a value: by a function SetX with one parameter, or as a property. */
	struct FSetter
	{
		UFunction* Function = nullptr;
		const FProperty* Property = nullptr; // of the function's parameter, or the property itself

		bool IsValid() const { return Property != nullptr; }
	};
	FSetter FindSetter(const UClass& Owner, FName Name);

	/** Parameters without the result, in order. */
	TArray<const FProperty*> ParametersOf(const UFunction& Function);

	bool IsSameType(const FProperty& A, const FProperty& B);

	/** The type a path leads to; unset with a reason. */
	TOptional<FLayoutType> TypeOf(const FLayoutPath& Path, const FLayoutTypes& Types, FString& OutReason);

	/** The type that the call's result, or a member of it, has; unset with a reason. The call itself is sound. */
	TOptional<FLayoutType> TypeOfResult(const FLayoutValue& Value, const FLayoutTypes& Types, FString& OutReason);

	/** "text", "number", …: how a person would call it. */
	FString Describe(const FProperty& Property);
}

/** A parameter block of one reflected function: initialised values that are destroyed with it. */
class FLayoutParameterBlock
{
public:
	explicit FLayoutParameterBlock(UFunction& InFunction);
	~FLayoutParameterBlock();

	FLayoutParameterBlock(const FLayoutParameterBlock&) = delete;
	FLayoutParameterBlock& operator=(const FLayoutParameterBlock&) = delete;

	void* GetData() { return Memory.GetData(); }
	/** Null when the function returns nothing. */
	const FProperty* GetResultProperty() const { return Function.GetReturnProperty(); }

	void* Get(const FProperty& Property) { return Property.ContainerPtrToValuePtr<void>(GetData()); }
	void Call(UObject& Object);

private:
	UFunction& Function;
	TArray<uint8> Storage;
	TArrayView<uint8> Memory; // within Storage, aligned for any parameter
};
