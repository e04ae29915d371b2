// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/ITransaction.h"
#include "UObject/Object.h"
#include "Transactor.generated.h"

/** One step that can be undone. */
class UNREALED_API FTransaction : public ITransaction
{
public:
	FText GetTitle() const { return Title; }

protected:
	explicit FTransaction(const FText& InTitle)
		: Title(InTitle)
	{
	}

private:
	FText Title;
};

/** The steps that can be undone and redone. GEditor has one. */
UCLASS(Abstract)
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
