// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostScratchValue.h"
#include "PropertyHandle.h"
#include "Templates/UniquePtr.h"
#include "UObject/UnrealType.h"

class FPropertyNode;

/** New values for a property, one per object: made first, looked at, then written together. */
class FPropertyChange
{
public:
	/** Starts with the values that the objects have. Without objects there is nothing to write. */
	explicit FPropertyChange(FPropertyNode& InNode);

	int32 Num() const { return NewValues.Num(); }
	void* GetNewValue(int32 ObjectIndex) const { return NewValues[ObjectIndex]->Get(); }

	/**
	 * Tells the objects, writes, tells the objects again, then the listeners of the property, of what is below it and of what is above it.
	 * All that is one step of undo; interactive changes belong to the step of the change that ends them.
	 * A value that is there already is written, dirties and is told like any other; only a step does not come of it.
	 * @return a failure, with nothing written, when there is no value (any more) or it lies in a set
	 */
	FPropertyAccess::Result Apply(EPropertyValueSetFlags::Type Flags, EPropertyChangeType::Type ChangeType = EPropertyChangeType::ValueSet);

private:
	bool Write() const;
	void KeepValuesBeforeInteraction(const TArray<void*>& Values) const;
	void TakeInteractionBack(const TArray<void*>& Values) const;
	void TellObjects(const TArray<UObject*>& Objects, EPropertyChangeType::Type ChangeType) const;
	void TellListeners() const;

	TSharedRef<FPropertyNode> Node; // held: listeners may close the panel
	TArray<TUniquePtr<FScratchValue>> NewValues;
};
