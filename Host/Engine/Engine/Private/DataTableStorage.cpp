// Copyright Velmorant. All Rights Reserved.

#include "DataTableStorage.h"

#include "Engine/DataTable.h"
#include "HostProblems.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <nlohmann/json.hpp>

namespace DataTableStorage
{
	using FJson = nlohmann::ordered_json; // rows keep their order

	FString GetText(const FJson& Object, const char* Key)
	{
		const auto Found = Object.find(Key);
		return Found != Object.end() && Found->is_string() ? FString(UTF8_TO_TCHAR(Found->get_ref<const std::string&>().c_str())) : FString();
	}
}

void FDataTableStorage::Register()
{
	HostPackages::RegisterReader(UDataTable::StaticClass()->GetClassPathName(), &Read, &Write);
}

UObject* FDataTableStorage::Read(const HostPackages::FDocument& Document, UPackage* Package)
{
	using namespace DataTableStorage;
	const FJson Json = FJson::parse(TCHAR_TO_UTF8(*Document.Json), nullptr, false);
	const FString StructPath = Json.is_object() ? GetText(Json, "RowStruct") : FString();
	UScriptStruct* RowStruct = StructPath.IsEmpty() ? nullptr : FindObject<UScriptStruct>(nullptr, *StructPath);
	if (RowStruct == nullptr || !RowStruct->IsChildOf(FTableRowBase::StaticStruct()))
	{
		HostProblems::Report(Document.File, 0, FString::Printf(TEXT("RowStruct: \"%s\" is no struct of table rows"), *StructPath), TEXT("give the path of one, \"/Script/Module.Struct\""));
		return nullptr;
	}
	UDataTable* Table = NewObject<UDataTable>(Package, FName(Document.AssetName), RF_Public | RF_Standalone | RF_Transactional);
	Table->RowStruct = RowStruct;
	const FJson Rows = Json.value("Rows", FJson::object());
	for (const auto& [Name, Value] : Rows.items())
	{
		const FString RowName = UTF8_TO_TCHAR(Name.c_str());
		if (!Value.is_string() || !ReadRow(*Table, RowName, FString(UTF8_TO_TCHAR(Value.get_ref<const std::string&>().c_str()))))
		{
			HostProblems::Report(Document.File, 0, FString::Printf(TEXT("Rows/%s: this is not the text of a %s"), *RowName, *RowStruct->GetName()), TEXT("write it as \"(Field=Value,Field=Value)\""));
			Table->ClearFlags(RF_Public | RF_Standalone);
			Table->MarkAsGarbage();
			return nullptr;
		}
	}
	return Table;
}

bool FDataTableStorage::ReadRow(UDataTable& Table, const FString& RowName, const FString& RowText)
{
	return Table.RowStruct->ImportText(*RowText, Table.MakeRow(FName(RowName)), &Table, 0, nullptr, Table.RowStruct->GetName()) != nullptr;
}

TOptional<FString> FDataTableStorage::Write(const UObject* Asset)
{
	using namespace DataTableStorage;
	const UDataTable* Table = CastChecked<UDataTable>(Asset);
	if (Table->RowStruct == nullptr)
	{
		return TOptional<FString>();
	}
	FJson::object_t Rows; // filled at its end: an ordered object looks its keys up one by one
	for (const TPair<FName, uint8*>& Row : Table->GetRowMap())
	{
		FString Text;
		Table->RowStruct->ExportText(Text, Row.Value, nullptr, nullptr, 0, nullptr);
		Rows.emplace_back(TCHAR_TO_UTF8(*Row.Key.ToString()), TCHAR_TO_UTF8(*Text));
	}
	FJson Json;
	Json["Class"] = TCHAR_TO_UTF8(*Table->GetClass()->GetPathName());
	Json["RowStruct"] = TCHAR_TO_UTF8(*Table->RowStruct->GetPathName());
	Json["Rows"] = std::move(Rows);
	return FString(UTF8_TO_TCHAR((Json.dump(1, '\t') + "\n").c_str()));
}
