// Copyright Velmorant. All Rights Reserved.

#include "Engine/DataTable.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "LevelTestEditor.h"
#include "TestActors.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

class DataTable : public FLevelTestEditor
{
protected:
	DataTable()
	{
		Table = NewObject<UDataTable>(CreatePackage(TEXT("/Game/Icons")), TEXT("Icons"), RF_Public | RF_Standalone);
		Table->RowStruct = FTestRow::StaticStruct();
		Add(TEXT("House"), TEXT("A \"house\", old"), 5);
		Add(TEXT("Door"), TEXT("Tür"), 3);
	}

	void Add(const TCHAR* Name, const TCHAR* Title, int32 Size)
	{
		FTestRow Row;
		Row.Title = Title;
		Row.Size = Size;
		Table->AddRow(Name, Row);
	}

	static std::string NamesOf(const UDataTable& Of)
	{
		std::string Names;
		for (const FName Name : Of.GetRowNames())
		{
			Names += Utf8(Name.ToString()) + ";";
		}
		return Names;
	}

	UDataTable* Table = nullptr;
};

TEST_F(DataTable, KeepsRowsInOrderAndReplacesInPlace)
{
	Add(TEXT("Zoo"), TEXT(""), 1);
	Add(TEXT("house"), TEXT("New"), 9);
	EXPECT_EQ(NamesOf(*Table), "House;Door;Zoo;");
	EXPECT_EQ(Table->FindRow<FTestRow>(TEXT("HOUSE"), TEXT("Test"))->Size, 9);
}

TEST_F(DataTable, SaysWhatIsWrongWithALookUp)
{
	EXPECT_EQ(Table->FindRow<FTestRow>(TEXT("Roof"), TEXT("Test"), false), nullptr);
	EXPECT_TRUE(GetLog("LogDataTable").empty());
	EXPECT_EQ(Table->FindRow<FTestRow>(TEXT("Roof"), TEXT("Test")), nullptr);
	EXPECT_EQ(Table->FindRow<FTestRow>(NAME_None, TEXT("Test")), nullptr);
	EXPECT_EQ(Table->FindRow<FTestOtherRow>(TEXT("House"), TEXT("Test")), nullptr) << "rows are of another struct";
	EXPECT_NE(Table->FindRow<FTableRowBase>(TEXT("House"), TEXT("Test")), nullptr) << "a struct above it fits";
	EXPECT_EQ(GetLog("LogDataTable").size(), 3u);
}

TEST_F(DataTable, KeepsAliveWhatItsRowsName)
{
	FTestRow Row;
	Row.Kept = NewObject<UTestPlainObject>();
	const TWeakObjectPtr<UObject> Weak = Row.Kept.Get();
	Table->AddRow(TEXT("Keeper"), Row);
	const TStrongObjectPtr<UDataTable> Root(Table);
	HostObjects::CollectGarbage();
	EXPECT_TRUE(Weak.IsValid());
	Table->EmptyTable();
	HostObjects::CollectGarbage();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(DataTable, LoadsBackEqual)
{
	ASSERT_TRUE(HostPackages::Save(Table->GetPackage()).Succeeded());
	Restart();
	const UDataTable* Loaded = Cast<UDataTable>(HostPackages::LoadAsset(TEXT("/Game/Icons")));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(NamesOf(*Loaded), "House;Door;");
	EXPECT_EQ(Utf8(Loaded->FindRow<FTestRow>(TEXT("House"), TEXT("Test"))->Title), "A \"house\", old");
	EXPECT_EQ(Utf8(Loaded->FindRow<FTestRow>(TEXT("Door"), TEXT("Test"))->Title), "Tür");
}

TEST_F(DataTable, RefusesFilesThatMakeNoTable)
{
	struct FCase
	{
		const char* Behaviour;
		const char* Members;
		const char* Message;
	};
	const FCase Cases[] = {
		{"no struct", "\"Rows\": {}", "RowStruct"},
		{"a struct that is no row", "\"RowStruct\": \"/Script/Engine.FResponseChannel\"", "RowStruct"},
		{"a row that is no text", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"A\": 3}", "Rows/A"},
		{"a row that does not fit", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"B\": \"Size=\"}", "Rows/B"},
		{"a good row before one that does not fit", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"A\": \"(Size=1)\", \"B\": \"Size=\"}", "Rows/B"},
		{"rows in a list", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": []", "Rows: this is no object"},
		{"rows alike but for letter case", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"A\": \"(Size=1)\", \"a\": \"(Size=2)\"}", "Rows/a: there is a row of that name already"},
		{"a row without name", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"\": \"(Size=1)\"}", "no row can have that name"},
		{"a row called None", "\"RowStruct\": \"/Script/TestActors.TestRow\", \"Rows\": {\"none\": \"(Size=1)\"}", "Rows/none: no row can have that name"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		HostProblems::Clear();
		Project.Write("Content/Broken.uasset.json", std::string("{\"Class\": \"/Script/Engine.DataTable\", ") + Case.Members + "}");
		EXPECT_EQ(HostPackages::LoadAsset(TEXT("/Game/Broken")), nullptr);
		EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), nullptr, TEXT("/Game/Broken.Broken"), nullptr, LOAD_Quiet), nullptr) << "half a table is left behind";
		ASSERT_GE(HostProblems::GetAll().Num(), 1);
		EXPECT_NE(Utf8(HostProblems::GetAll()[0].Message).find(Case.Message), std::string::npos) << Utf8(HostProblems::GetAll()[0].Message);
	}
}
