// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostScratchValue.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "UObject/UnrealType.h"
#include "Values/PropertyPlace.h"
#include "Values/ShownObjects.h"

class FPropertyKind;

/**
 * One property of all objects of a details panel, or, at the top, the objects themselves.
 *
 * Holds no address: each access walks from the objects down, so that values that moved are found and values that went away are not.
 * A node keeps those below it alive, and nothing else: not the objects, not the nodes above.
 */
class FPropertyNode : public TSharedFromThis<FPropertyNode>
{
public:
	/** The top of a tree. Objects of different classes share the properties of their nearest common class. */
	static TSharedRef<FPropertyNode> MakeRoot(const TArray<UObject*>& Objects);
	/** A member or element of what Above stands for. */
	static TSharedRef<FPropertyNode> MakeBelow(const TSharedRef<FPropertyNode>& Above, FProperty* Property, TUniquePtr<IPropertyPlace> Place);

	bool IsRoot() const { return Property == nullptr; }
	/** Null for the root. Good while the node has values. */
	FProperty* GetProperty() const { return Property; }
	const FPropertyKind& GetKind() const { return Kind; }
	/** Not for the root. */
	const IPropertyPlace& GetPlace() const { return *Place; }
	/** For the root only. */
	const FShownObjects& GetShown() const { return *Shown; }
	TSharedPtr<FPropertyNode> GetParent() const { return Parent.Pin(); }
	/** From the object on: "Rooms[2].Title". */
	FString GetPath() const;

	/** The objects; empty when one of them is gone. */
	TArray<UObject*> GetObjects() const;
	/** Where the value lies in each object. False, and nothing else known, when an object or an element is gone, or there never was an object. */
	bool GetValues(TArray<void*>& OutValues) const;
	bool HasValues() const;

	/** Editable members of an object or struct, or elements of a container, brought in step with the objects first. */
	const TArray<TSharedRef<FPropertyNode>>& GetChildren();
	/** The first child of that name, or with bRecurse anything below; elements of arrays have no name. Null when there is none. */
	TSharedPtr<FPropertyNode> FindChild(FName Name, bool bRecurse);

	/** Elements of sets cannot be changed in place. */
	bool IsInSet() const;
	/** Whether people may only look at it, or at something around it. */
	bool IsReadOnly() const;

	/** Raised when a handle changed the value, or something around it. */
	FSimpleMulticastDelegate OnValueChanged;
	/** Raised when a handle changed something below it. */
	FSimpleMulticastDelegate OnChildValueChanged;

	/** What the objects had before interactive changes that no undo knows of yet, one per object; empty between interactions. */
	TArray<TSharedRef<FScratchValue>> ValuesBeforeInteraction;

private:
	explicit FPropertyNode(FProperty* InProperty);

	void AddMembers(const UStruct* Struct);

	FProperty* Property; // null for the root
	const FPropertyKind& Kind;
	TUniquePtr<IPropertyPlace> Place; // null for the root
	TWeakPtr<FPropertyNode> Parent;
	TUniquePtr<FShownObjects> Shown; // of the root
	TArray<TSharedRef<FPropertyNode>> Children;
	bool bHasMembers = false; // whether Children holds the members of a struct or object
};
