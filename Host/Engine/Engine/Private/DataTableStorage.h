// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostJson.h"
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
	static bool Write(const UObject* Asset, FHostJson& OutJson);
	static bool ReadRows(const HostPackages::FDocument& Document, const FHostJson& Rows, UDataTable& Table);
	static bool ReadRow(UDataTable& Table, const FString& RowName, const FString& RowText);
};
