// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/ITransaction.h"
#include "Templates/UniquePtr.h"
#include "UObject/Object.h"
#include "Transactor.generated.h"

class FObjectRecord;

/**
 * One step of undo: what its objects were before and after it. While somebody can undo or redo it, it keeps alive its objects and
 * what their values refer to.
 */
class UNREALED_API FTransaction : public ITransaction
{
public:
	explicit FTransaction(const FText& InTitle);
	virtual ~FTransaction() override;

	FText GetTitle() const { return Title; }

	//~ Begin ITransaction
	virtual void SaveObject(UObject* Object) override;
	//~ End ITransaction

	//~ Host: for the buffer that has the step

	/** Nothing more is recorded. @return whether anything is different now. */
	bool Finish();

	/** Gives the objects back what they had before the step, or what they had after it, and dirties their packages. */
	void Undo();
	void Redo();

	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	FText Title;
	TArray<TUniquePtr<FObjectRecord>> Records; // in the order of the first changes
	TSet<const UObject*> Saved; // those with a record
};

/** The steps that can be undone and redone. GEditor has one. */
UCLASS(Abstract, Transient)
class UNREALED_API UTransactor : public UObject
{
	GENERATED_BODY()

public:
	/** Opens a step, or joins the one that is open. @return how many are open around it. */
	virtual int32 Begin(const TCHAR* /* SessionContext */, const FText& /* Description */) { return INDEX_NONE; }

	/** Ends what Begin() opened; the outermost end enters the step, behind which nothing can be redone any more. @return as Begin(). */
	virtual int32 End() { return INDEX_NONE; }

	/** Forgets all steps, an open one too: what it changed stays. */
	virtual void Reset(const FText& /* Reason */) {}

	/** Whether a step is open. */
	virtual bool IsActive() const { return false; }

	/** Steps that can be undone or redone; the oldest is the first. */
	virtual int32 GetQueueLength() const { return 0; }
	/** Null when there is no such step. */
	virtual const FTransaction* GetTransaction(int32 /* QueueIndex */) const { return nullptr; }
	/** How many are undone: the last ones of the queue. */
	virtual int32 GetUndoCount() const { return 0; }

	/** False when nothing can be undone, or a step is open. Without bCanRedo the step is forgotten. */
	virtual bool Undo(bool /* bCanRedo */ = true) { return false; }
	virtual bool Redo() { return false; }
};
