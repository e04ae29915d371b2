// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "DataTable.generated.h"

/** What the rows of data tables derive from. */
USTRUCT()
struct ENGINE_API FTableRowBase
{
	GENERATED_BODY()

	virtual ~FTableRowBase() = default;
};

/** Rows of one struct, by name. Names ignore case. */
UCLASS(BlueprintType)
class ENGINE_API UDataTable : public UObject
{
	GENERATED_BODY()

public:
	virtual ~UDataTable() override;

	/** The struct of all rows. Set once, before the first row is added. */
	UPROPERTY()
	TObjectPtr<UScriptStruct> RowStruct;

	const UScriptStruct* GetRowStruct() const { return RowStruct; }

	/** In the order in which the rows were added. */
	TArray<FName> GetRowNames() const;

	virtual const TMap<FName, uint8*>& GetRowMap() const { return RowMap; }
	virtual const TMap<FName, uint8*>& GetRowMap() { return RowMap; }

	/** The row's memory, of struct RowStruct; null when there is no such row. Says nothing about it. */
	uint8* FindRowUnchecked(FName RowName) const { return RowMap.FindRef(RowName); }

	/**
	 * The row, if T is its struct or one above it. Null with an error in the log for another T or a None name,
	 * null with a warning for a missing row.
	 */
	template<class T>
	T* FindRow(FName RowName, const TCHAR* ContextString, bool bWarnIfRowMissing = true) const
	{
		return reinterpret_cast<T*>(FindRow(*T::StaticStruct(), RowName, ContextString, bWarnIfRowMissing));
	}

	template<class T>
	T* FindRow(FName RowName, const FString& ContextString, bool bWarnIfRowMissing = true) const
	{
		return FindRow<T>(RowName, *ContextString, bWarnIfRowMissing);
	}

	template<class T>
	void ForeachRow(const FString& ContextString, TFunctionRef<void(const FName& Key, const T& Value)> Predicate) const
	{
		if (Fits(*T::StaticStruct(), *ContextString))
		{
			for (const TPair<FName, uint8*>& Row : RowMap)
			{
				Predicate(Row.Key, *reinterpret_cast<const T*>(Row.Value));
			}
		}
	}

	/** Copies RowData, which must be of struct RowStruct. A row of that name is replaced in its place. */
	virtual void AddRow(FName RowName, const FTableRowBase& RowData);

	void EmptyTable();

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend class FDataTableStorage;

	uint8* FindRow(const UScriptStruct& WantedStruct, FName RowName, const TCHAR* ContextString, bool bWarnIfRowMissing) const;
	bool Fits(const UScriptStruct& WantedStruct, const TCHAR* ContextString) const;
	uint8* MakeRow(FName RowName);
	void FreeRow(uint8* Row);

	TMap<FName, uint8*> RowMap; // rows are owned
};
