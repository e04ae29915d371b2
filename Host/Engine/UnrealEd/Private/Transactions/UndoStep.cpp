// Copyright Velmorant. All Rights Reserved.

#include "Transactions/UndoStep.h"

#include "Transactions/ObjectRecord.h"

namespace UndoStep
{
	/** All objects are told before the first changes and after the last has changed: no one sees half of a step. */
	void Apply(const TArray<FObjectRecord*>& Records, void (FObjectRecord::*Restore)())
	{
		const TGuardValue<bool> Transacting(GIsTransacting, true);
		for (const FObjectRecord* Record : Records)
		{
			Record->GetObject().PreEditUndo();
		}
		for (FObjectRecord* Record : Records)
		{
			(Record->*Restore)();
		}
		for (const FObjectRecord* Record : Records)
		{
			Record->GetObject().PostEditUndo();
		}
	}
}

FUndoStep::FUndoStep(const FText& InTitle)
	: FTransaction(InTitle)
{
}

FUndoStep::~FUndoStep() = default;

void FUndoStep::SaveObject(UObject* Object)
{
	bool bSaved = false;
	Saved.Add(Object, &bSaved);
	if (!bSaved)
	{
		Records.Add(MakeUnique<FObjectRecord>(*Object));
	}
}

bool FUndoStep::Finish()
{
	Records.RemoveAll([](const TUniquePtr<FObjectRecord>& Record) { return !Record->Finish(); });
	Saved.Empty();
	return !Records.IsEmpty();
}

void FUndoStep::Undo()
{
	TArray<FObjectRecord*> LastFirst;
	for (int32 Index = Records.Num() - 1; Index >= 0; --Index)
	{
		LastFirst.Add(Records[Index].Get());
	}
	UndoStep::Apply(LastFirst, &FObjectRecord::RestoreBefore);
}

void FUndoStep::Redo()
{
	TArray<FObjectRecord*> FirstFirst;
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		FirstFirst.Add(Record.Get());
	}
	UndoStep::Apply(FirstFirst, &FObjectRecord::RestoreAfter);
}

void FUndoStep::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		Record->AddReferencedObjects(Collector);
	}
}
