// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"
#include "UiTestEditor.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STileView.h"

class ListView : public FUiTestEditor
{
protected:
	using FItem = TSharedPtr<FString>;

	void AddItems(int32 Num)
	{
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Items.Add(MakeShared<FString>(FString::Printf(TEXT("Item %d"), Items.Num())));
		}
	}

	TSharedRef<SListView<FItem>> MakeList(ESelectionMode::Type Mode = ESelectionMode::Single)
	{
		// clang-format off
		return SNew(SListView<FItem>)
			.Tag(FName(TEXT("List")))
			.ListItemsSource(&Items)
			.SelectionMode(Mode)
			.OnGenerateRow_Lambda([this](FItem Item, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow>
			{
				++NumRowsMade;
				return SNew(STableRow<FItem>, Owner).ToolTipText(FText::FromString(TEXT("tip of ") + *Item))
				[
					SNew(STextBlock).Text(FText::FromString(*Item))
				];
			})
			.OnSelectionChanged_Lambda([this](FItem Item, ESelectInfo::Type How)
			{
				Heard.Add(FString::Printf(TEXT("%s %d"), Item.IsValid() ? **Item : TEXT("nothing"), static_cast<int32>(How)));
			});
		// clang-format on
	}

	TArray<FItem> Items;
	TArray<FString> Heard;
	int32 NumRowsMade = 0;
};

TEST_F(ListView, MakesRowsAtTheTickAndOnlyForWhatShows)
{
	AddItems(100000);
	const TSharedRef<SListView<FItem>> List = MakeList();
	EXPECT_EQ(List->GetChildren()->Num(), 0);
	Wait();
	EXPECT_EQ(List->GetChildren()->Num(), STableViewBase::HostRowsInView);
	EXPECT_EQ(NumRowsMade, STableViewBase::HostRowsInView);

	List->RequestListRefresh();
	List->RequestListRefresh();
	Wait();
	EXPECT_EQ(NumRowsMade, STableViewBase::HostRowsInView) << "rows of unchanged items are kept";
	List->RebuildList();
	Wait();
	EXPECT_EQ(NumRowsMade, 2 * STableViewBase::HostRowsInView);
}

TEST_F(ListView, ChoosesAnItemFarDownByScrollingToIt)
{
	AddItems(1000);
	const TSharedRef<SListView<FItem>> List = MakeList();
	Wait();
	EXPECT_EQ(Refusal(HostSnapshot::Choose(List, TEXT("List"), TEXT("Item 777"))), "");
	EXPECT_EQ(Heard, TArray<FString>{TEXT("Item 777 2")});
	EXPECT_TRUE(List->IsItemSelected(Items[777]));
	EXPECT_NE(Utf8(HostSnapshot::Take(List)).find("item (selected, tip: tip of Item 777)\n    text \"Item 777\""), std::string::npos);
	EXPECT_EQ(Refusal(HostSnapshot::Choose(List, TEXT("List"), TEXT("Item 1000"))), "The list \"List\" has no item \"Item 1000\".");
}

TEST_F(ListView, TellsCodeFromAPersonAndDoesNotRepeatAPick)
{
	AddItems(3);
	const TSharedRef<SListView<FItem>> List = MakeList();
	Wait();
	List->SetSelection(Items[0]);
	HostSnapshot::Click(List, TEXT("Item 1"));
	HostSnapshot::Click(List, TEXT("tip of Item 1"));
	List->ClearSelection();
	List->ClearSelection();
	EXPECT_EQ(Heard, (TArray<FString>{TEXT("Item 0 3"), TEXT("Item 1 2"), TEXT("nothing 3")}));
}

TEST_F(ListView, RefusesClicksOnRowsThatAreAboutToGo)
{
	AddItems(3);
	const TSharedRef<SListView<FItem>> List = MakeList();
	Wait();
	Items.RemoveAt(0);
	List->RequestListRefresh();
	EXPECT_EQ(Refusal(HostSnapshot::Click(List, TEXT("Item 0"))), "The item \"Item 0\" is about to be replaced: the list has changed.");
	Wait();
	EXPECT_EQ(Refusal(HostSnapshot::Click(List, TEXT("Item 0"))), "There is no widget \"Item 0\".");
	EXPECT_EQ(Refusal(HostSnapshot::Click(List, TEXT("Item 1"))), "");
}

TEST_F(ListView, ItemsThatComeAndGoAreSeenOnlyWithARefresh)
{
	AddItems(3);
	const TSharedRef<SListView<FItem>> List = MakeList();
	Wait();
	const std::string Before = Utf8(HostSnapshot::Take(List));
	AddItems(1);
	Items.RemoveAt(0);
	List->SetItemsSource(&Items); // is the source already
	Wait();
	EXPECT_EQ(Utf8(HostSnapshot::Take(List)), Before);
	EXPECT_EQ(Refusal(HostSnapshot::Choose(List, TEXT("List"), TEXT("Item 3"))), "The list \"List\" has no item \"Item 3\".");
	List->RequestListRefresh();
	EXPECT_EQ(Refusal(HostSnapshot::Choose(List, TEXT("List"), TEXT("Item 3"))), "");
	EXPECT_TRUE(List->IsItemSelected(Items[2]));

	const TArray<FItem> Others = {MakeShared<FString>(TEXT("Other"))};
	List->SetItemsSource(&Others);
	EXPECT_EQ(List->GetNumItemsSelected(), 0);
	Wait();
	EXPECT_NE(Utf8(HostSnapshot::Take(List)).find("(1 item)\n  item (tip: tip of Other)"), std::string::npos);
}

TEST_F(ListView, AnItemThatLeftCannotStaySelected)
{
	AddItems(2);
	const TSharedRef<SListView<FItem>> List = MakeList();
	List->SetSelection(Items[1]);
	Items.RemoveAt(1);
	List->RequestListRefresh();
	Wait();
	EXPECT_EQ(List->GetNumItemsSelected(), 0);
	EXPECT_EQ(Heard.Last(), TEXT("nothing 3"));
}

TEST_F(ListView, ScrollsToAnItemAtTheNextTick)
{
	AddItems(500);
	const TSharedRef<SListView<FItem>> List = MakeList();
	Wait();
	List->RequestScrollIntoView(Items[499]);
	List->RequestScrollIntoView(MakeShared<FString>(TEXT("stranger")));
	Wait();
	EXPECT_EQ(Utf8(HostSnapshot::Take(List)).find("\"Item 499\""), std::string::npos) << "the last wish counts, and a stranger is none";

	List->RequestScrollIntoView(Items[499]);
	Items.RemoveAt(0, 400);
	EXPECT_EQ(Utf8(HostSnapshot::Take(List)).find("\"Item 499\""), std::string::npos) << "not before the tick";
	Wait();
	EXPECT_NE(Utf8(HostSnapshot::Take(List)).find("\"Item 499\""), std::string::npos) << "wherever it stands by then";
}

TEST_F(ListView, TilesAreAListOfTiles)
{
	AddItems(2);
	// clang-format off
	const TSharedRef<SWidget> Tiles = SNew(STileView<FItem>)
		.ListItemsSource(&Items)
		.ItemWidth(35.0f)
		.ItemHeight(40.0f)
		.OnGenerateTile_Lambda([](FItem Item, const TSharedRef<STableViewBase>& Owner) -> TSharedRef<ITableRow>
		{
			return SNew(STableRow<FItem>, Owner)[ SNew(STextBlock).Text(FText::FromString(*Item)) ];
		});
	// clang-format on
	EXPECT_EQ(Utf8(HostSnapshot::Take(Tiles)), "tiles (busy, 2 items, 35 x 40 each)\n");
	Wait();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Tiles)), "tiles (2 items, 35 x 40 each)\n  item\n    text \"Item 0\"\n  item\n    text \"Item 1\"\n");
}
