// Copyright Velmorant. All Rights Reserved.

#include "Objects/ObjectTable.h"

#include <type_traits>

static_assert(std::is_trivially_copyable_v<FObjectItem>);

FObjectTable& FObjectTable::Get()
{
	static FObjectTable* const Table = new FObjectTable();
	return *Table;
}

int32 FObjectTable::Enter(UObject* Object, bool bNative)
{
	const int32 Index = FreeSlots.IsEmpty() ? Items.AddDefaulted() : FreeSlots.Pop();
	FObjectItem& Item = Items[Index];
	Item = FObjectItem();
	Item.Object = Object;
	Item.SerialNumber = ++LastSerialNumber;
	Item.bNative = bNative;
	Item.Mark = CurrentMark;
	return Index;
}

void FObjectTable::Renew(int32 Index)
{
	Items[Index].bGarbage = false;
	Items[Index].Mark = CurrentMark;
}

void FObjectTable::Release(int32 Index)
{
	Items[Index].Object = nullptr;
	FreeSlots.Add(Index);
}
