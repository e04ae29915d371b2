// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostPackages.h"

#include <nlohmann/json_fwd.hpp>

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
	static bool ReadRows(const HostPackages::FDocument& Document, const nlohmann::ordered_json& Rows, UDataTable& Table);
	static bool ReadRow(UDataTable& Table, const FString& RowName, const FString& RowText);
};
