// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"
#include "SSearchableComboBox.h"
#include "UiTestEditor.h"
#include "Widgets/Text/STextBlock.h"

class SearchableComboBox : public FUiTestEditor
{
protected:
	using FOption = TSharedPtr<FString>;

	static TArray<FOption> MakeOptions(const TArray<FString>& Texts)
	{
		TArray<FOption> Options;
		for (const FString& Text : Texts)
		{
			Options.Add(MakeShared<FString>(Text));
		}
		return Options;
	}

	TSharedRef<SSearchableComboBox> MakeCombo(bool bAlwaysSelect = false)
	{
		// clang-format off
		return
			SAssignNew(Combo, SSearchableComboBox)
			.Tag(FName(TEXT("Woods")))
			.OptionsSource(&Options)
			.bAlwaysSelectItem(bAlwaysSelect)
			.InitiallySelectedItem(Options[0])
			.OnGenerateWidget_Lambda([](FOption Option) -> TSharedRef<SWidget>
			{
				return SNew(STextBlock).Text(FText::FromString(*Option));
			})
			.OnSelectionChanged_Lambda([this](FOption Option, ESelectInfo::Type How)
			{
				Heard.Add(FString::Printf(TEXT("%s %d"), Option.IsValid() ? **Option : TEXT("nothing"), static_cast<int32>(How)));
			})
			[
				SNew(STextBlock)
				.Text_Lambda([this]() { return FText::FromString(Combo.IsValid() && Combo->GetSelectedItem().IsValid() ? *Combo->GetSelectedItem() : FString()); })
			];
		// clang-format on
	}

	std::string Shown() const { return Utf8(HostSnapshot::Take(Combo.ToSharedRef())); }

	TArray<FString> TakeHeard()
	{
		const TArray<FString> Result = Heard;
		Heard.Empty();
		return Result;
	}

	TArray<FOption> Options = MakeOptions({TEXT("Ash"), TEXT("Oak, dark"), TEXT("Oak, light")});
	TArray<FString> Heard;
	TSharedPtr<SSearchableComboBox> Combo;
};

TEST_F(SearchableComboBox, OpensOnASearchBoxAboveItsOptions)
{
	MakeCombo();
	EXPECT_EQ(Shown(), "combo Woods \"Ash\" (3 options)\n");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Woods"))), "");
	Wait();
	EXPECT_EQ(Shown(), R"(combo Woods "Ash" (3 options)
  vertical
    search [Search] ""
    list (3 items)
      item (selected)
        text "Ash"
      item
        text "Oak, dark"
      item
        text "Oak, light"
)");
	EXPECT_TRUE(Heard.IsEmpty()) << "opening selects nothing";
}

TEST_F(SearchableComboBox, TheSearchLeavesOptionsWithAllWordsAndAPickClosesTheMenu)
{
	MakeCombo();
	HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Woods"));
	EXPECT_EQ(Refusal(HostSnapshot::Type(Combo.ToSharedRef(), TEXT("Search"), TEXT("LIGHT oak"))), "");
	Wait();
	EXPECT_NE(Shown().find("list (1 item)\n      item\n        text \"Oak, light\"\n"), std::string::npos) << Shown();
	EXPECT_EQ(Refusal(HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Oak, light"))), "");
	EXPECT_EQ(Shown(), "combo Woods \"Oak, light\" (3 options)\n");
	EXPECT_EQ(TakeHeard(), TArray<FString>{TEXT("Oak, light 2")});
	HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Woods"));
	Wait();
	EXPECT_NE(Shown().find("list (3 items)"), std::string::npos) << "each opening searches anew";
}

TEST_F(SearchableComboBox, ChoosesByTextWithoutOpening)
{
	MakeCombo();
	FString Reason;
	EXPECT_EQ(HostSnapshot::GetOptions(Combo.ToSharedRef(), TEXT("Woods"), Reason), (TArray<FString>{TEXT("Ash"), TEXT("Oak, dark"), TEXT("Oak, light")}));
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Combo.ToSharedRef(), TEXT("Woods"), TEXT("Oak, dark"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Combo.ToSharedRef(), TEXT("Woods"), TEXT("Zinc"))), "The combo \"Woods\" has no option \"Zinc\".");
	EXPECT_EQ(TakeHeard(), TArray<FString>{TEXT("Oak, dark 2")});
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(SearchableComboBox, OptionsAreTheSameWhenTheirPointersAre)
{
	MakeCombo();
	Combo->SetSelectedItem(Options[0], ESelectInfo::Direct);
	EXPECT_TRUE(Heard.IsEmpty());
	Combo->SetSelectedItem(MakeShared<FString>(TEXT("Ash")), ESelectInfo::Direct);
	EXPECT_EQ(TakeHeard(), TArray<FString>{TEXT("Ash 3")});
}

TEST_F(SearchableComboBox, TellsOfTheSamePickOnlyWhenAsked)
{
	for (const bool bAlways : {false, true})
	{
		SCOPED_TRACE(bAlways ? "asked" : "not asked");
		MakeCombo(bAlways);
		HostSnapshot::Choose(Combo.ToSharedRef(), TEXT("Woods"), TEXT("Ash"));
		EXPECT_EQ(TakeHeard(), bAlways ? TArray<FString>{TEXT("Ash 2")} : TArray<FString>());
	}
}

TEST_F(SearchableComboBox, ReadsItsOptionsOnlyWhenAskedTo)
{
	MakeCombo();
	Options.Add(MakeShared<FString>(TEXT("Oak")));
	EXPECT_EQ(Shown(), "combo Woods \"Ash\" (3 options)\n");
	HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Woods"));
	HostSnapshot::Type(Combo.ToSharedRef(), TEXT("Search"), TEXT("oak"));
	Wait();
	EXPECT_NE(Shown().find("list (2 items)"), std::string::npos) << Shown();
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Combo.ToSharedRef(), TEXT("Woods"), TEXT("Oak"))), "The combo \"Woods\" has no option \"Oak\".");
	Combo->RefreshOptions();
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Combo.ToSharedRef(), TEXT("Woods"), TEXT("Oak"))), "");
}

TEST_F(SearchableComboBox, RefreshedOptionsGoThroughTheSearchAndKeepTheSelection)
{
	MakeCombo();
	HostSnapshot::Click(Combo.ToSharedRef(), TEXT("Woods"));
	HostSnapshot::Type(Combo.ToSharedRef(), TEXT("Search"), TEXT("oak"));
	Options = MakeOptions({TEXT("Oak"), TEXT("Elm")});
	Combo->RefreshOptions();
	Wait();
	EXPECT_NE(Shown().find("list (1 item)\n      item\n        text \"Oak\"\n"), std::string::npos) << Shown();
	EXPECT_TRUE(Heard.IsEmpty());
}
