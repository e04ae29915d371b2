// Copyright Velmorant. All Rights Reserved.

#include "DetailsTest.h"

#include "Editor.h"
#include "Engine/World.h"
#include "HostSnapshot.h"
#include "PaletteFile.h"
#include "UObject/Package.h"
#include "Widgets/Layout/SBox.h"

FDetailsTest::FDetailsTest()
{
	WriteProjectFile("Content/Style.uasset.json", PaletteFile);
	WriteIcons();
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantProUI.VelmorantProUISettings]\n"
											   "StyleConfiguration=/Game/Style.Style\n"
											   "+FontIcons=(FontID=\"Ship\",IconDataTable=\"/Game/Ship.Ship\",Font=\"/Game/Face.Face\")\n"
											   "+FontIcons=(FontID=\"House\",IconDataTable=\"/Game/House.House\")\n"
											   "+FontIcons=(FontID=\"Empty\")\n");
	StartEditor();
}

void FDetailsTest::TearDown()
{
	View.Reset();
	FToolkitTest::TearDown();
}

void FDetailsTest::WriteIcons() const
{
	WriteProjectFile("Content/Ship.uasset.json", R"j({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/VelmorantProUI.FontIconRow", "Rows": {
		"anchor": "(Character=\"⚓\",IconStyles=(\"Bold\",\"Thin\"),SearchTags=(\"port\",\"black ship\",\"buoy\"))",
		"sail-boat": "(Character=\"⛵\",IconStyles=(\"Thin\"),SearchTags=(\"regatta\"))",
		"boat-house": "(Character=\"🏠\",IconStyles=(\"Bold\"),SearchTags=(\"regatta\",\"boat\"))",
		"Buoy": "(Character=\"b\",IconStyles=(\"Bold\",\"Thin\"))"}})j");
	WriteProjectFile("Content/House.uasset.json", R"j({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/VelmorantProUI.FontIconRow", "Rows": {
		"door": "(Character=\"d\",IconStyles=(\"Round\",\"Thin\"),SearchTags=(\"entry\"))"}})j");
	WriteProjectFile("Content/Face.uasset.json", R"({"Class": "/Script/Engine.Font", "Format": 1, "Objects": [{"Name": "Face", "Class": "/Script/Engine.Font",
		"Properties": {"CompositeFont": {"DefaultTypeface": {"Fonts": [{"Name": "Bold"}, {"Name": "Thin"}]}}}}]})");
}

AVlmInteractiveSpot* FDetailsTest::SpawnSpot()
{
	return GEditor->GetEditorWorldContext().World()->SpawnActor<AVlmInteractiveSpot>();
}

void FDetailsTest::Open(const TArray<UObject*>& Objects)
{
	for (const UObject* Object : Objects)
	{
		Object->GetPackage()->SetDirtyFlag(false);
	}
	View = MakeUnique<FHostDetailsView>(Objects);
	View->GetWidget();
	Wait(0.0);
}

AVlmInteractiveSpot* FDetailsTest::OpenIcon(const TCHAR* Font, const TCHAR* Style, const TCHAR* Icon)
{
	AVlmInteractiveSpot* Spot = SpawnSpot();
	Spot->Icon = FFontIconHandler(Font, Style, Icon);
	Open({Spot});
	return Spot;
}

void FDetailsTest::Expect(const FHostInputResult& Result)
{
	EXPECT_TRUE(Result.bDone) << ToUtf8(Result.Reason);
	Wait(0.0);
}

void FDetailsTest::Choose(const TCHAR* Row, const TCHAR* Option)
{
	Expect(HostSnapshot::Choose(View->GetWidget(), Row, Option));
}

void FDetailsTest::Type(const TCHAR* Widget, const TCHAR* Text)
{
	Expect(HostSnapshot::Type(View->GetWidget(), Widget, Text));
}

void FDetailsTest::Click(const TCHAR* Widget)
{
	Expect(HostSnapshot::Click(View->GetWidget(), Widget));
}

void FDetailsTest::Check(const TCHAR* Widget, bool bOn)
{
	Expect(HostSnapshot::Check(View->GetWidget(), Widget, bOn));
}

std::vector<std::string> FDetailsTest::Options(const TCHAR* Row) const
{
	FString Reason;
	const std::vector<std::string> Result = ToUtf8(HostSnapshot::GetOptions(View->GetWidget(), Row, Reason));
	EXPECT_TRUE(Reason.IsEmpty()) << ToUtf8(Reason);
	return Result;
}

std::string FDetailsTest::Read(const TCHAR* Row) const
{
	FString Reason;
	const TOptional<FString> Value = HostSnapshot::Read(View->GetWidget(), Row, Reason);
	return Value.IsSet() ? ToUtf8(*Value) : "(" + ToUtf8(Reason) + ")";
}

std::string FDetailsTest::Snapshot() const
{
	return ToUtf8(HostSnapshot::Take(View->GetWidget()));
}

namespace DetailsTest
{
	/** All widgets of the role, in order. */
	void Collect(SWidget& Widget, const TCHAR* Role, TArray<FHostWidgetDescription>& OutWidgets)
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(Widget);
		if (Description.Role == Role)
		{
			OutWidgets.Add(Description);
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(Widget))
		{
			Collect(*Child, Role, OutWidgets);
		}
	}
}

std::string FDetailsTest::ReadPart(const TCHAR* Row, const TCHAR* Role) const
{
	FString Reason;
	TArray<FHostWidgetDescription> Parts;
	if (const TSharedPtr<SWidget> Widget = HostSnapshot::Find(View->GetWidget(), Row, Reason))
	{
		DetailsTest::Collect(*Widget, Role, Parts);
	}
	return Parts.IsEmpty() ? "(no such part " + ToUtf8(Reason) + ")" : ToUtf8(Parts[0].Value.Get(FString()));
}

std::vector<std::string> FDetailsTest::BoxSizes(const TCHAR* Row) const
{
	std::vector<std::string> Sizes;
	for (const SBox* Box : All<SBox>(Row))
	{
		for (const FString& Size : FHostWidgetAccess::Describe(*Box).Notes)
		{
			Sizes.push_back(ToUtf8(Size));
		}
	}
	return Sizes;
}

std::vector<std::string> FDetailsTest::Tiles() const
{
	TArray<FHostWidgetDescription> Items;
	DetailsTest::Collect(*View->GetWidget(), TEXT("item"), Items);
	std::vector<std::string> Tiles;
	for (const FHostWidgetDescription& Item : Items)
	{
		Tiles.push_back(Item.bSelected ? "[" + ToUtf8(Item.ToolTip) + "]" : ToUtf8(Item.ToolTip));
	}
	return Tiles;
}
