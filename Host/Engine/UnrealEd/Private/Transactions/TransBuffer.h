// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor/Transactor.h"
#include "Templates/SharedPointer.h"
#include "Transactions/UndoStep.h"
#include "TransBuffer.generated.h"

/** The editor's steps of undo, without a limit to their number. */
UCLASS()
class UNREALED_API UTransBuffer : public UTransactor
{
	GENERATED_BODY()

public:
	//~ Begin UTransactor
	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) override;
	virtual int32 End() override;
	virtual void Reset(const FText& Reason) override;
	virtual bool IsActive() const override { return ActiveCount > 0; }
	virtual int32 GetQueueLength() const override { return Steps.Num(); }
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const override;
	virtual int32 GetUndoCount() const override { return UndoCount; }
	virtual bool Undo(bool bCanRedo = true) override;
	virtual bool Redo() override;
	//~ End UTransactor

	//~ Begin UObject
	virtual void BeginDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	//~ End UObject

private:
	bool CanApply() const { return !IsActive() && !GIsTransacting; }

	TArray<TSharedRef<FUndoStep>> Steps; // shared: whoever is told of an undo may empty the buffer
	int32 UndoCount = 0; // the last ones of Steps are undone
	TSharedPtr<FUndoStep> Open; // GUndo
	int32 ActiveCount = 0; // calls of Begin() without an End()
};
