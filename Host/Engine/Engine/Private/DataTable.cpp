// Copyright Velmorant. All Rights Reserved.

#include "Engine/DataTable.h"

#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <new>

DEFINE_LOG_CATEGORY_STATIC(LogDataTable, Log, All);

UDataTable::~UDataTable()
{
	EmptyTable();
}

void UDataTable::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UDataTable* This = static_cast<UDataTable*>(InThis);
	for (const TPair<FName, uint8*>& Row : This->RowMap)
	{
		for (const FProperty* Property : This->RowStruct->GetReferenceProperties())
		{
			Property->CollectReferences(Property->ContainerPtrToValuePtr(Row.Value), Collector);
		}
	}
	Super::AddReferencedObjects(InThis, Collector);
}

TArray<FName> UDataTable::GetRowNames() const
{
	TArray<FName> Names;
	RowMap.GetKeys(Names);
	return Names;
}

void UDataTable::AddRow(FName RowName, const FTableRowBase& RowData)
{
	if (RowStruct == nullptr)
	{
		UE_LOG(LogDataTable, Error, TEXT("%s has no row struct; the row %s was not added."), *GetPathName(), *RowName.ToString());
		return;
	}
	RowStruct->CopyScriptStruct(MakeRow(RowName), &RowData);
}

void UDataTable::EmptyTable()
{
	for (const TPair<FName, uint8*>& Row : RowMap)
	{
		FreeRow(Row.Value);
	}
	RowMap.Empty();
}

uint8* UDataTable::MakeRow(FName RowName)
{
	uint8*& Row = RowMap.FindOrAdd(RowName);
	if (Row == nullptr)
	{
		Row = static_cast<uint8*>(::operator new(RowStruct->GetStructureSize(), std::align_val_t(RowStruct->GetMinAlignment())));
		RowStruct->InitializeStruct(Row);
	}
	return Row;
}

void UDataTable::FreeRow(uint8* Row)
{
	RowStruct->DestroyStruct(Row);
	::operator delete(Row, std::align_val_t(RowStruct->GetMinAlignment()));
}

uint8* UDataTable::FindRow(const UScriptStruct& WantedStruct, FName RowName, const TCHAR* ContextString, bool bWarnIfRowMissing) const
{
	if (!Fits(WantedStruct, ContextString))
	{
		return nullptr;
	}
	if (RowName.IsNone())
	{
		UE_LOG(LogDataTable, Error, TEXT("%s: a row of %s was wanted without a name."), ContextString, *GetPathName());
		return nullptr;
	}
	uint8* Row = FindRowUnchecked(RowName);
	if (Row == nullptr && bWarnIfRowMissing)
	{
		UE_LOG(LogDataTable, Warning, TEXT("%s: %s has no row %s."), ContextString, *GetPathName(), *RowName.ToString());
	}
	return Row;
}

bool UDataTable::Fits(const UScriptStruct& WantedStruct, const TCHAR* ContextString) const
{
	if (RowStruct != nullptr && RowStruct->IsChildOf(&WantedStruct))
	{
		return true;
	}
	UE_LOG(LogDataTable, Error, TEXT("%s: the rows of %s are not of struct %s."), ContextString, *GetPathName(), *WantedStruct.GetName());
	return false;
}
