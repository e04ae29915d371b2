// Copyright Velmorant. All Rights Reserved.

#include "Transactions/TransBuffer.h"

int32 UTransBuffer::Begin(const TCHAR*, const FText& Description)
{
	if (ActiveCount == 0)
	{
		Open = MakeShared<FUndoStep>(Description);
		GUndo = Open.Get();
	}
	return ActiveCount++;
}

int32 UTransBuffer::End()
{
	if (ActiveCount == 0)
	{
		return INDEX_NONE; // the buffer was emptied within the step
	}
	if (--ActiveCount > 0)
	{
		return ActiveCount;
	}
	GUndo = nullptr;
	const TSharedRef<FUndoStep> Ended = Open.ToSharedRef();
	Open.Reset();
	if (Ended->Finish())
	{
		Steps.RemoveAt(Steps.Num() - UndoCount, UndoCount);
		UndoCount = 0;
		Steps.Add(Ended);
	}
	return 0;
}

void UTransBuffer::Reset(const FText&)
{
	if (Open.IsValid())
	{
		GUndo = nullptr;
		Open.Reset();
	}
	ActiveCount = 0;
	UndoCount = 0;
	Steps.Empty();
}

const FTransaction* UTransBuffer::GetTransaction(int32 QueueIndex) const
{
	return Steps.IsValidIndex(QueueIndex) ? &*Steps[QueueIndex] : nullptr;
}

bool UTransBuffer::Undo(bool bCanRedo)
{
	if (!CanApply() || UndoCount == Steps.Num())
	{
		return false;
	}
	++UndoCount;
	const int32 Index = Steps.Num() - UndoCount;
	const TSharedRef<FUndoStep> Step = Steps[Index];
	if (!bCanRedo)
	{
		Steps.RemoveAt(Index);
		--UndoCount;
	}
	Step->Undo();
	return true;
}

bool UTransBuffer::Redo()
{
	if (!CanApply() || UndoCount == 0)
	{
		return false;
	}
	const TSharedRef<FUndoStep> Step = Steps[Steps.Num() - UndoCount];
	--UndoCount;
	Step->Redo();
	return true;
}

void UTransBuffer::BeginDestroy()
{
	Reset(FText());
	Super::BeginDestroy();
}

void UTransBuffer::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UTransBuffer* This = static_cast<UTransBuffer*>(InThis);
	for (const TSharedRef<FUndoStep>& Step : This->Steps)
	{
		Step->AddReferencedObjects(Collector);
	}
	if (This->Open.IsValid())
	{
		This->Open->AddReferencedObjects(Collector);
	}
	Super::AddReferencedObjects(InThis, Collector);
}
