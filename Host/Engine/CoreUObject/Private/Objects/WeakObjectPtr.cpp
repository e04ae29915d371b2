// Copyright Velmorant. All Rights Reserved.

#include "UObject/WeakObjectPtr.h"

#include "Objects/ObjectTable.h"
#include "UObject/Object.h"

FWeakObjectPtr::FWeakObjectPtr(const UObject* Object)
{
	if (Object)
	{
		Index = static_cast<int32>(Object->GetUniqueID());
		SerialNumber = FObjectTable::Get().GetItem(Index).SerialNumber;
	}
}

UObject* FWeakObjectPtr::Get(bool bEvenIfGarbage) const
{
	const FObjectItem* Item = FObjectTable::Get().FindItem(Index, SerialNumber);
	return Item && !Item->bUnreachable && (bEvenIfGarbage || !Item->bGarbage) ? Item->Object : nullptr;
}
