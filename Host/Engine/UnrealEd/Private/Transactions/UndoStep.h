// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Editor/Transactor.h"
#include "Templates/UniquePtr.h"

class FObjectRecord;

/**
 * What the objects of a step were before and after it. As long as the buffer has the step, these objects stay alive, and so does what
 * their values refer to.
 */
class FUndoStep final : public FTransaction
{
public:
	explicit FUndoStep(const FText& InTitle);
	virtual ~FUndoStep() override;

	//~ Begin ITransaction
	virtual void SaveObject(UObject* Object) override;
	//~ End ITransaction

	/** Nothing more is recorded. @return whether anything is different now. */
	bool Finish();

	/** Gives the objects back what they had before the step, or what they had after it, and dirties their packages. */
	void Undo();
	void Redo();

	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	TArray<TUniquePtr<FObjectRecord>> Records; // in the order of the first changes
	TSet<const UObject*> Saved; // those with a record, until the step ends
};
