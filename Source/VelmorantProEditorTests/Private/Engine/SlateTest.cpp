// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "SSearchableComboBox.h"
#include "Support/TestFlags.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STileView.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace SlateTest
{
	using FItem = TSharedPtr<FString>;

	TSharedRef<ITableRow> MakeTile(FItem Item, const TSharedRef<STableViewBase>& Owner)
	{
		return SNew(STableRow<FItem>, Owner)[SNew(STextBlock).Text(FText::FromString(*Item))];
	}

	FString Describe(const FItem& Item, ESelectInfo::Type Info)
	{
		return (Item ? *Item : FString(TEXT("nothing"))) + (Info == ESelectInfo::Direct ? TEXT(" directly") : TEXT(" by somebody"));
	}

	TArray<FItem> MakeItems(std::initializer_list<const TCHAR*> Names)
	{
		TArray<FItem> Items;
		for (const TCHAR* Name : Names)
		{
			Items.Add(MakeShared<FString>(Name));
		}
		return Items;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTileViewTest, "Velmorant.Engine.Slate.TileViewSource", VelmorantTests::Flags)

bool FVelmorantTileViewTest::RunTest(const FString&)
{
	using namespace SlateTest;
	TArray<FItem> First = MakeItems({TEXT("anchor"), TEXT("boat")});
	const TArray<FItem> Second = MakeItems({TEXT("door")});
	const TSharedRef<STileView<FItem>> View = SNew(STileView<FItem>).ListItemsSource(&First).OnGenerateTile_Static(&MakeTile);
	TestEqual(TEXT("the array is not copied"), View->GetItems().Num(), 2);
	First = MakeItems({TEXT("anchor"), TEXT("boat"), TEXT("buoy")});
	TestEqual(TEXT("another content of the same array is its own"), View->GetItems().Num(), 3);
	View->RequestListRefresh();
	View->SetSelection(First[0]);
	TestTrue(TEXT("an item can be selected before it was drawn"), View->IsItemSelected(First[0]));
	View->SetItemsSource(&Second);
	TestTrue(TEXT("another array is shown at once"), View->HasValidItemsSource() && View->GetItems().Num() == 1);
	VelmorantTests::RecordBelief(*this, TEXT("selected items of a tile view after another source"), View->GetNumItemsSelected());
	View->ClearItemsSource();
	TestFalse(TEXT("a view may have no source"), View->HasValidItemsSource());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantTileSelectionTest, "Velmorant.Engine.Slate.TileSelection", VelmorantTests::Flags)

bool FVelmorantTileSelectionTest::RunTest(const FString&)
{
	using namespace SlateTest;
	TArray<FItem> Items = MakeItems({TEXT("anchor"), TEXT("boat")});
	TArray<FString> Heard;
	const auto Hear = [&Heard](FItem Item, ESelectInfo::Type Info) { Heard.Add(Describe(Item, Info)); };
	// clang-format off
	const TSharedRef<STileView<FItem>> View =
		SNew(STileView<FItem>)
		.ListItemsSource(&Items)
		.SelectionMode(ESelectionMode::Single)
		.OnGenerateTile_Static(&MakeTile)
		.OnSelectionChanged_Lambda(Hear);
	// clang-format on
	View->SetSelection(Items[0]);
	View->SetSelection(Items[1]);
	TestEqual(TEXT("single selection"), View->GetNumItemsSelected(), 1);
	View->ClearSelection();
	TestEqualSensitive(TEXT("code selects directly, and clearing tells of no item"), *FString::Join(Heard, TEXT(", ")), TEXT("anchor directly, boat directly, nothing directly"));
	Heard.Empty();
	View->ClearSelection();
	VelmorantTests::RecordBelief(*this, TEXT("clearing an empty selection of a tile view tells"), Heard.Num() > 0);
	Heard.Empty();
	View->SetSelection(Items[1], ESelectInfo::OnMouseClick);
	TestEqualSensitive(TEXT("who selects is told apart"), *FString::Join(Heard, TEXT(", ")), TEXT("boat by somebody"));
	Heard.Empty();
	View->SetSelection(Items[1], ESelectInfo::OnMouseClick);
	VelmorantTests::RecordBelief(*this, TEXT("picking the selected tile again tells"), Heard.Num() > 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantComboBoxTest, "Velmorant.Engine.Slate.ComboBox", VelmorantTests::Flags)

bool FVelmorantComboBoxTest::RunTest(const FString&)
{
	using namespace SlateTest;
	TArray<FItem> Options = MakeItems({TEXT("Bold"), TEXT("Thin")});
	TArray<FString> Heard;
	// clang-format off
	const TSharedRef<SComboBox<FItem>> Box =
		SNew(SComboBox<FItem>)
		.OptionsSource(&Options)
		.OnGenerateWidget_Lambda([](FItem Item) { return SNew(STextBlock).Text(FText::FromString(*Item)); })
		.OnSelectionChanged_Lambda([&Heard](FItem Item, ESelectInfo::Type Info) { Heard.Add(Describe(Item, Info)); });
	// clang-format on
	TestInvalid(TEXT("nothing is selected at first"), Box->GetSelectedItem());
	Box->SetSelectedItem(Options[1], ESelectInfo::Direct);
	TestTrue(TEXT("an option can be selected"), Box->GetSelectedItem() == Options[1]);
	Options = MakeItems({TEXT("Round")});
	Box->RefreshOptions();
	TestTrue(TEXT("other options leave the selected item"), Box->GetSelectedItem().IsValid() && Box->GetSelectedItem()->Equals(TEXT("Thin")));
	Box->SetSelectedItem(Options[0], ESelectInfo::OnMouseClick);
	TestTrue(TEXT("an option of another array can be selected then"), Box->GetSelectedItem() == Options[0]);
	TestEqualSensitive(TEXT("who selects is told apart"), *FString::Join(Heard, TEXT(", ")), TEXT("Thin directly, Round by somebody"));
	Heard.Empty();
	Box->SetSelectedItem(Options[0], ESelectInfo::OnMouseClick);
	VelmorantTests::RecordBelief(*this, TEXT("picking the chosen option of a combo box again tells"), Heard.Num() > 0);
	Box->ClearSelection();
	VelmorantTests::RecordBelief(*this, TEXT("what a combo box tells when its selection goes"), FString::Join(Heard, TEXT(", ")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSearchableComboBoxTest, "Velmorant.Engine.Slate.SearchableComboBox", VelmorantTests::Flags)

bool FVelmorantSearchableComboBoxTest::RunTest(const FString&)
{
	using namespace SlateTest;
	TArray<FItem> Options = MakeItems({TEXT("Oak"), TEXT("Ash")});
	TArray<FString> Heard;
	// clang-format off
	const TSharedRef<SSearchableComboBox> Box =
		SNew(SSearchableComboBox)
		.OptionsSource(&Options)
		.OnGenerateWidget_Lambda([](FItem Item) { return SNew(STextBlock).Text(FText::FromString(*Item)); })
		.OnSelectionChanged_Lambda([&Heard](FItem Item, ESelectInfo::Type Info) { Heard.Add(Describe(Item, Info)); });
	// clang-format on
	TestInvalid(TEXT("nothing is selected at first"), Box->GetSelectedItem());
	Box->SetSelectedItem(Options[1], ESelectInfo::Direct);
	Options = MakeItems({TEXT("Oak"), TEXT("Ash"), TEXT("Birch")});
	Box->RefreshOptions();
	TestTrue(TEXT("other options leave the selected item"), Box->GetSelectedItem().IsValid() && Box->GetSelectedItem()->Equals(TEXT("Ash")));
	Box->SetSelectedItem(Options[2], ESelectInfo::OnMouseClick);
	TestTrue(TEXT("one of them can be selected then"), Box->GetSelectedItem() == Options[2]);
	TestEqualSensitive(TEXT("who selects is told apart"), *FString::Join(Heard, TEXT(", ")), TEXT("Ash directly, Birch by somebody"));
	Heard.Empty();
	Box->SetSelectedItem(Options[2], ESelectInfo::OnMouseClick);
	VelmorantTests::RecordBelief(*this, TEXT("picking the chosen option of a searchable combo box again tells"), Heard.Num() > 0);
	Box->ClearSelection();
	TestInvalid(TEXT("a selection can be cleared"), Box->GetSelectedItem());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSearchBoxTest, "Velmorant.Engine.Slate.SearchBox", VelmorantTests::Flags)

bool FVelmorantSearchBoxTest::RunTest(const FString&)
{
	TArray<FString> Heard;
	const TSharedRef<SSearchBox> Box = SNew(SSearchBox).OnTextChanged_Lambda([&Heard](const FText& Text) { Heard.Add(Text.ToString()); });
	Box->SetText(INVTEXT("boat"));
	TestEqualSensitive(TEXT("the text is the one that was set"), *Box->GetText().ToString(), TEXT("boat"));
	VelmorantTests::RecordBelief(*this, TEXT("times a search box tells of a text that code sets"), Heard.Num());
	return true;
}

#endif
