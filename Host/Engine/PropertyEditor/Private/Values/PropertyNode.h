// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostScratchValue.h"
#include "Templates/SharedPointer.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"

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

	/** Not to be called by others than MakeRoot() and nodes. */
	explicit FPropertyNode(FProperty* InProperty, int32 InIndex = INDEX_NONE);

	bool IsRoot() const { return Property == nullptr; }
	/** Null for the root. Good while the node has values. */
	FProperty* GetProperty() const { return Property; }
	TSharedPtr<FPropertyNode> GetParent() const { return Parent.Pin(); }

	/** Where the value lies in each object. False, and nothing else known, when an object or an element is gone, or there never was an object. */
	bool GetValues(TArray<void*>& OutValues) const;
	bool HasValues() const;

	/** The objects; empty when one of them is gone. */
	TArray<UObject*> GetObjects() const;
	/** Of the root: whether an object is gone. */
	bool HasLostObjects() const;
	/** Of the root: those that are not gone. */
	TArray<UObject*> GetRemainingObjects() const;
	/** What all objects are; null without objects. */
	UClass* GetClass() const;

	/** Editable members of an object or struct, or elements of a container, brought in step with the objects first. */
	const TArray<TSharedRef<FPropertyNode>>& GetChildren();
	/** The first child of that name, or with bRecurse anything below; elements of arrays have no name. Null when there is none. */
	TSharedPtr<FPropertyNode> FindChild(FName Name, bool bRecurse);

	bool IsContainer() const;
	/** Elements of sets cannot be changed in place. */
	bool IsInSet() const;
	/** Whether people may only look at it, or at something around it. */
	bool IsReadOnly() const;

	/** The member's name, or "[2]", "[Key]" for elements. */
	FString GetName() const;
	/** From the object on: "Rooms[2].Title". */
	FString GetPath() const;
	FText GetDisplayName() const;

	/** Raised when a handle changed the value, or something around it. */
	FSimpleMulticastDelegate OnValueChanged;
	/** Raised when a handle changed something below it. */
	FSimpleMulticastDelegate OnChildValueChanged;

	/** What the objects had before interactive changes that no undo knows of yet, one per object; empty between interactions. */
	TArray<TSharedRef<FScratchValue>> ValuesBeforeInteraction;

private:
	void* GoFrom(void* ParentValue, const FPropertyNode& ParentNode) const;
	TSharedRef<FPropertyNode> AddChild(FProperty* ChildProperty, int32 ChildIndex = INDEX_NONE);
	void AddMembers(const UStruct* Struct);
	void FitArray(const FArrayProperty& Array);
	void FitKeyed(const FProperty& KeyProperty, FProperty& ElementProperty);
	TArray<const void*> CollectCommonKeys() const;

	FProperty* Property; // null for the root
	int32 Index; // among the elements of an array
	TSharedPtr<FScratchValue> Key; // of an element of a map, or the element of a set
	FString KeyText;
	TWeakPtr<FPropertyNode> Parent;
	TArray<TWeakObjectPtr<UObject>> Objects; // of the root
	TArray<TSharedRef<FPropertyNode>> Children;
	bool bHasMembers = false; // whether Children holds the members of a struct or object
};
