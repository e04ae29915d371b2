// Copyright Velmorant. All Rights Reserved.

#include "Values/ShownObjects.h"

#include "UObject/Class.h"

FShownObjects::FShownObjects(const TArray<UObject*>& InObjects)
{
	for (UObject* Object : InObjects)
	{
		if (IsValid(Object))
		{
			Objects.AddUnique(TWeakObjectPtr<UObject>(Object));
		}
	}
}

TArray<UObject*> FShownObjects::GetAll() const
{
	const TArray<UObject*> Remaining = GetRemaining();
	return Remaining.Num() == Objects.Num() ? Remaining : TArray<UObject*>();
}

TArray<UObject*> FShownObjects::GetRemaining() const
{
	TArray<UObject*> Result;
	for (const TWeakObjectPtr<UObject>& Object : Objects)
	{
		if (Object.IsValid())
		{
			Result.Add(Object.Get());
		}
	}
	return Result;
}

bool FShownObjects::HasLost() const
{
	return GetRemaining().Num() != Objects.Num();
}

UClass* FShownObjects::FindCommonClass() const
{
	const TArray<UObject*> All = GetAll();
	UClass* Common = All.IsEmpty() ? nullptr : All[0]->GetClass();
	for (const UObject* Object : All)
	{
		while (!Object->IsA(Common))
		{
			Common = Common->GetSuperClass();
		}
	}
	return Common;
}
