// Copyright Velmorant. All Rights Reserved.

#include "DataTableStorage.h"

#include "Engine/DataTable.h"
#include "HostJsonMembers.h"
#include "HostProblems.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace DataTableStorage
{
	FString ToText(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	FString GetText(const FHostJson& Object, const char* Key)
	{
		const auto Found = Object.find(Key);
		return Found != Object.end() && Found->is_string() ? ToText(Found->get_ref<const std::string&>()) : FString();
	}

	bool Refuse(const HostPackages::FDocument& Document, const FString& Message, const TCHAR* Remedy)
	{
		HostProblems::Report(Document.File, 0, Message, Remedy);
		return false;
	}

	/** A refused file leaves nothing behind to be found under its name. */
	void TakeBack(UDataTable& Table)
	{
		const FName FreeName = MakeUniqueObjectName(GetTransientPackage(), UDataTable::StaticClass(), Table.GetFName());
		Table.Rename(*FreeName.ToString(), GetTransientPackage(), REN_DontCreateRedirectors | REN_DoNotDirty);
		Table.ClearFlags(RF_Public | RF_Standalone);
		Table.MarkAsGarbage();
	}
}

void FDataTableStorage::Register()
{
	HostPackages::RegisterReader(UDataTable::StaticClass()->GetClassPathName(), &Read, &Write);
}

UObject* FDataTableStorage::Read(const HostPackages::FDocument& Document, UPackage* Package)
{
	using namespace DataTableStorage;
	const FString StructPath = GetText(Document.Json, "RowStruct");
	UScriptStruct* RowStruct = StructPath.IsEmpty() ? nullptr : FindObject<UScriptStruct>(nullptr, *StructPath);
	if (RowStruct == nullptr || !RowStruct->IsChildOf(FTableRowBase::StaticStruct()))
	{
		Refuse(Document, FString::Printf(TEXT("RowStruct: \"%s\" is no struct of table rows"), *StructPath), TEXT("Give the path of one, \"/Script/Module.Struct\"."));
		return nullptr;
	}
	UDataTable* Table = NewObject<UDataTable>(Package, FName(Document.AssetName), RF_Public | RF_Standalone | RF_Transactional);
	Table->RowStruct = RowStruct;
	const auto Rows = Document.Json.find("Rows");
	if (Rows == Document.Json.end() || ReadRows(Document, *Rows, *Table))
	{
		return Table;
	}
	TakeBack(*Table);
	return nullptr;
}

bool FDataTableStorage::ReadRows(const HostPackages::FDocument& Document, const FHostJson& Rows, UDataTable& Table)
{
	using namespace DataTableStorage;
	if (!Rows.is_object())
	{
		return Refuse(Document, TEXT("Rows: this is no object"), TEXT("Write it as {\"Name\": \"(Field=Value,Field=Value)\"}."));
	}
	for (const auto& [Name, Value] : Rows.items())
	{
		const FString RowName = ToText(Name);
		const bool bNamed = RowName.Len() < NAME_SIZE && !FName(RowName).IsNone();
		if (!bNamed || Table.FindRowUnchecked(FName(RowName)) != nullptr)
		{
			const TCHAR* const Problem = bNamed ? TEXT("there is a row of that name already, letter case aside") : TEXT("no row can have that name");
			return Refuse(Document, FString::Printf(TEXT("Rows/%s: %s"), *RowName.Left(60), Problem), TEXT("Give the row another name."));
		}
		if (!Value.is_string() || !ReadRow(Table, RowName, ToText(Value.get_ref<const std::string&>())))
		{
			return Refuse(Document, FString::Printf(TEXT("Rows/%s: this is not the text of a %s"), *RowName, *Table.RowStruct->GetName()), TEXT("Write it as \"(Field=Value,Field=Value)\"."));
		}
	}
	return true;
}

bool FDataTableStorage::ReadRow(UDataTable& Table, const FString& RowName, const FString& RowText)
{
	return Table.RowStruct->ImportText(*RowText, Table.MakeRow(FName(RowName)), &Table, 0, nullptr, Table.RowStruct->GetName()) != nullptr;
}

bool FDataTableStorage::Write(const UObject* Asset, FHostJson& OutJson)
{
	const UDataTable* Table = CastChecked<UDataTable>(Asset);
	if (Table->RowStruct == nullptr)
	{
		return false;
	}
	OutJson["Class"] = TCHAR_TO_UTF8(*Table->GetClass()->GetPathName());
	OutJson["RowStruct"] = TCHAR_TO_UTF8(*Table->RowStruct->GetPathName());
	FHostJson& Rows = OutJson["Rows"] = FHostJson::object();
	for (const TPair<FName, uint8*>& Row : Table->GetRowMap())
	{
		FString Text;
		Table->RowStruct->ExportText(Text, Row.Value, nullptr, nullptr, 0, nullptr);
		Rows[TCHAR_TO_UTF8(*Row.Key.ToString())] = TCHAR_TO_UTF8(*Text);
	}
	return true;
}
