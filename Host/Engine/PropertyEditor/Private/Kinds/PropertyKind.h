// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "PropertyHandle.h"

class FPropertyNode;
class SWidget;

/**
 * What the property editor does with the values of one kind of property: reads and writes them, turns them into texts and back, shows
 * them in widgets, and knows what lies below them. This one fits whatever is a line of text.
 *
 * Kinds have no state and live as long as the process. What takes a node deals with all its objects; the nodes are of this kind.
 * A further kind is a class of its own and a row in PropertyKinds.cpp.
 */
class FPropertyKind
{
public:
	/** Null is the property of a root; it has no value. */
	static const FPropertyKind& Of(const FProperty* Property);

	virtual ~FPropertyKind() = default;

	//~ Values
	/** The property that stores the value: of an enum, its integer. */
	virtual const FProperty* GetStorage(const FProperty& Property) const { return &Property; }
	/** What a reference leads to; soft references are loaded. Fails for values that are none. */
	virtual FPropertyAccess::Result ReadObject(const FPropertyNode& Node, UObject*& OutObject) const;
	virtual FPropertyAccess::Result WriteObject(FPropertyNode& Node, UObject* Object, EPropertyValueSetFlags::Type Flags) const;

	//~ Texts
	/** Whether all of Text is a value; then Value has it. */
	virtual bool Import(const FProperty& Property, const FString& Text, void* Value, UObject* Owner) const;
	/** As people read it. */
	virtual FPropertyAccess::Result ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32 PortFlags) const;
	/** What stands in a text box: numbers without needless digits, everything else in full. */
	virtual FString GetEditText(const FPropertyNode& Node, const void* Value) const;
	/** What is no value of the type leaves the old one. */
	virtual void CommitText(FPropertyNode& Node, const FText& Typed) const;
	/** Whether there is infinity, or what is no number, in a value or its members: it would spread to all that is worked out from it. */
	virtual bool IsEndless(const FProperty& Property, const void* Value) const;

	//~ Widgets
	/** Whether the value is shown as a whole, so that its members need no rows: numbers, texts, and the engine's own small structs. */
	virtual bool IsShownWhole(const FProperty& Property) const;
	/** Something to see and, unless it is read-only, to change the value with. */
	virtual TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node) const;
	/** What stands behind the value. The null widget where there is nothing. */
	virtual TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node) const;

	//~ What lies below, and the type
	/** Whether it has elements, which come and go. */
	virtual bool IsContainer() const { return false; }
	/** The struct whose members lie below the value; null for other values. */
	virtual const UStruct* FindStruct(const FProperty& Property) const;
	/** Brings the nodes of a container's elements in step with its values, one per object. */
	virtual void FitElements(const TSharedRef<FPropertyNode>& Node, const TArray<void*>& Values, TArray<TSharedRef<FPropertyNode>>& InOutElements) const;
	/** What customizations may call the type, the most special name first. */
	virtual TArray<FName> GetTypeNames(const FProperty& Property) const;
};
