// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostPackages.h"

class UDataTable;

/**
 * How data tables are kept in asset files:
 * { "Class": "/Script/Engine.DataTable", "RowStruct": "/Script/Module.Struct", "Rows": { "Name": "(Field=Value,…)", … } }
 */
class FDataTableStorage
{
public:
	static void Register();

private:
	static UObject* Read(const HostPackages::FDocument& Document, UPackage* Package);
	static TOptional<FString> Write(const UObject* Asset);
	static bool ReadRow(UDataTable& Table, const FString& RowName, const FString& RowText);
};
