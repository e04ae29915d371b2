// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"
#include "UiTestEditor.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

class Snapshot : public FUiTestEditor
{
protected:
	static FText Text(const TCHAR* String) { return FText::FromString(String); }
};

TEST_F(Snapshot, ShowsOneWidgetALineAsAPersonSeesIt)
{
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SBox)[ SNew(STextBlock).Text(Text(TEXT("Say \"hi\"\nand go"))) ]
		]
		+ SVerticalBox::Slot()
		[
			SNew(SEditableText).Tag(FName(TEXT("Key"))).Text(Text(TEXT("K-1"))).IsReadOnly(true)
		]
		+ SVerticalBox::Slot()
		[
			SNew(SCheckBox).IsChecked(ECheckBoxState::Checked).IsEnabled(false)[ SNew(STextBlock).Text(Text(TEXT("Force"))) ]
		]
		+ SVerticalBox::Slot()
		[
			SNew(SHorizontalBox).Tag(FName(TEXT("Busy"))).Visibility(EVisibility::Collapsed)
			+ SHorizontalBox::Slot()[ SNew(STextBlock).Text(Text(TEXT("never seen"))) ]
		]
		+ SVerticalBox::Slot()
		[
			SNew(SButton).Text(Text(TEXT("Go"))).ToolTipText(Text(TEXT("Goes")))
		];
	// clang-format on
	EXPECT_EQ(Utf8(HostSnapshot::Take(Root)),
		"vertical\n"
		"  text \"Say \\\"hi\\\"\\nand go\"\n"
		"  edit Key \"K-1\" (read-only)\n"
		"  checkbox [Force] (disabled, checked)\n"
		"  horizontal Busy (hidden)\n"
		"  button [Go] (tip: Goes)\n");
}

TEST_F(Snapshot, TellsNeitherTheTextNorTheLengthOfAPassword)
{
	const auto LineOf = [](const TCHAR* Password) {
		return Utf8(HostSnapshot::Take(SNew(SEditableText).Tag(FName(TEXT("Secret"))).IsPassword(true).Text(Text(Password))));
	};
	EXPECT_EQ(LineOf(TEXT("")), "edit Secret \"\"\n");
	EXPECT_EQ(LineOf(TEXT("x")), LineOf(TEXT("a much longer secret")));
	EXPECT_EQ(LineOf(TEXT("x")).find('x'), std::string::npos);

	const TSharedRef<SWidget> Box = SNew(SEditableTextBox).Tag(FName(TEXT("Secret"))).IsPassword(true).Text(Text(TEXT("pa55")));
	FString Reason;
	EXPECT_FALSE(HostSnapshot::Read(Box, TEXT("Secret"), Reason).Get(TEXT("pa55")).Contains(TEXT("pa55")));
	EXPECT_EQ(Utf8(HostSnapshot::Take(Box)).find("pa55"), std::string::npos);
	EXPECT_FALSE(FHostWidgetAccess::TextOf(*Box).Contains(TEXT("pa55")));
}

TEST_F(Snapshot, RefusesWhatAPersonCouldNotDo)
{
	int32 NumClicks = 0;
	const auto Button = [&NumClicks](const TCHAR* Label) {
		return SNew(SButton).Text(Text(Label)).OnClicked_Lambda([&NumClicks] {
			++NumClicks;
			return FReply::Handled();
		});
	};
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[ SNew(SBox).IsEnabled(false)[ Button(TEXT("In disabled")) ] ]
		+ SVerticalBox::Slot()[ SNew(SBox).Visibility(EVisibility::Hidden)[ Button(TEXT("In hidden")) ] ]
		+ SVerticalBox::Slot()[ SNew(SBox).Tag(FName(TEXT("Left")))[ Button(TEXT("Twice")) ] ]
		+ SVerticalBox::Slot()[ SNew(SBox).Tag(FName(TEXT("Right")))[ Button(TEXT("Twice")) ] ]
		+ SVerticalBox::Slot()[ SNew(SEditableText).Tag(FName(TEXT("Fixed"))).IsReadOnly(true) ];
	// clang-format on
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root, TEXT("In disabled"))), "The button \"In disabled\" is disabled.");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root, TEXT("In hidden"))), "The button \"In hidden\" is hidden.");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root, TEXT("Nowhere"))), "There is no widget \"Nowhere\".");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root, TEXT("Twice"))), "\"Twice\" means 2 widgets; say which one, as in Outer/Twice.");
	EXPECT_EQ(Refusal(HostSnapshot::Type(Root, TEXT("Fixed"), TEXT("new"))), "The edit \"Fixed\" is read-only.");
	EXPECT_EQ(Refusal(HostSnapshot::Check(Root, TEXT("Fixed"), true)), "The edit \"Fixed\" takes no such input.");
	EXPECT_EQ(NumClicks, 0);
	EXPECT_EQ(Refusal(HostSnapshot::Click(Root, TEXT("Right/Twice"))), "");
	EXPECT_EQ(NumClicks, 1);
}

TEST_F(Snapshot, PrefersNamesToLabelsAndWhatShowsToWhatDoesNot)
{
	TArray<FString> Clicked;
	const auto Button = [&Clicked](const TCHAR* Name, const TCHAR* Label, EVisibility Visibility) {
		return SNew(SButton).Tag(FName(Name)).Text(Text(Label)).Visibility(Visibility).OnClicked_Lambda([&Clicked, Name] {
			Clicked.Add(Name);
			return FReply::Handled();
		});
	};
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()[ Button(TEXT("A"), TEXT("B"), EVisibility::Visible) ]
		+ SVerticalBox::Slot()[ Button(TEXT("B"), TEXT("Send"), EVisibility::Visible) ]
		+ SVerticalBox::Slot()[ Button(TEXT("C"), TEXT("Send"), EVisibility::Collapsed) ];
	// clang-format on
	HostSnapshot::Click(Root, TEXT("b"));
	HostSnapshot::Click(Root, TEXT("Send"));
	EXPECT_EQ(Clicked, (TArray<FString>{TEXT("B"), TEXT("B")}));
}

TEST_F(Snapshot, TypingTellsOfTheChangeAtOnceAndThenCommits)
{
	TArray<FString> Heard;
	// clang-format off
	const TSharedRef<SWidget> Box = SNew(SEditableTextBox)
		.HintText(FText::FromString(TEXT("Wood")))
		.OnTextChanged_Lambda([&Heard](const FText& New) { Heard.Add(TEXT("changed ") + New.ToString()); })
		.OnTextCommitted_Lambda([&Heard](const FText& New, ETextCommit::Type How)
		{
			Heard.Add(FString::Printf(TEXT("committed %s %d"), *New.ToString(), static_cast<int32>(How)));
		});
	// clang-format on
	EXPECT_EQ(Utf8(HostSnapshot::Take(Box)), "edit [Wood] \"\"\n");
	EXPECT_EQ(Refusal(HostSnapshot::Type(Box, TEXT("Wood"), TEXT("oak"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Type(Box, TEXT("Wood"), TEXT("oak"))), "");
	EXPECT_EQ(Heard, (TArray<FString>{TEXT("changed oak"), TEXT("committed oak 1"), TEXT("committed oak 1")}));
}

TEST_F(Snapshot, CheckingIsDoneOnceAndClickingToggles)
{
	TArray<ECheckBoxState> Heard;
	const TSharedRef<SWidget> Box = SNew(SCheckBox).Tag(FName(TEXT("Box"))).OnCheckStateChanged_Lambda([&Heard](ECheckBoxState State) { Heard.Add(State); });
	HostSnapshot::Check(Box, TEXT("Box"), true);
	HostSnapshot::Check(Box, TEXT("Box"), true);
	HostSnapshot::Click(Box, TEXT("Box"));
	EXPECT_EQ(Heard, (TArray<ECheckBoxState>{ECheckBoxState::Checked, ECheckBoxState::Unchecked}));
}

TEST_F(Snapshot, AWidgetLivesWhileItsHandlerTakesItAway)
{
	const TSharedRef<SBox> Root = SNew(SBox);
	TWeakPtr<SWidget> Weak;
	bool bAliveInHandler = false;
	// clang-format off
	Root->SetContent(SNew(SButton).Text(Text(TEXT("Go"))).OnClicked_Lambda([&]
	{
		Root->SetContent(SNullWidget::NullWidget);
		bAliveInHandler = Weak.IsValid();
		return FReply::Handled();
	}));
	// clang-format on
	FString Reason;
	Weak = HostSnapshot::Find(Root, TEXT("Go"), Reason);
	EXPECT_TRUE(HostSnapshot::Click(Root, TEXT("Go")).bDone);
	EXPECT_TRUE(bAliveInHandler) << "the widget is held while it handles the click";
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(Snapshot, AMenuIsMadeEachTimeItOpens)
{
	int32 NumMade = 0;
	// clang-format off
	const TSharedRef<SWidget> Button = SNew(SComboButton)
		.OnGetMenuContent_Lambda([&NumMade]() -> TSharedRef<SWidget>
		{
			++NumMade;
			return SNew(STextBlock).Text(FText::AsNumber(NumMade));
		})
		.ButtonContent()
		[
			SNew(STextBlock).Text(Text(TEXT("Tools")))
		];
	// clang-format on
	EXPECT_EQ(Utf8(HostSnapshot::Take(Button)), "menu button [Tools]\n");
	EXPECT_EQ(NumMade, 0);
	for (const char* Expected : {"menu button [Tools]\n  text \"1\"\n", "menu button [Tools]\n", "menu button [Tools]\n  text \"2\"\n"})
	{
		HostSnapshot::Click(Button, TEXT("Tools"));
		EXPECT_EQ(Utf8(HostSnapshot::Take(Button)), Expected);
	}
}

TEST_F(Snapshot, ABindingByThisDiesWithItsOwner)
{
	struct FOwner : public TSharedFromThis<FOwner>
	{
		FText GetLabel() const { return FText::FromString(TEXT("alive")); }
		FReply Clicked()
		{
			++NumClicks;
			return FReply::Handled();
		}
		TSharedRef<SWidget> Make()
		{
			return SNew(SButton).Text(this, &FOwner::GetLabel).OnClicked(this, &FOwner::Clicked);
		}

		int32 NumClicks = 0;
	};
	TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
	const TSharedRef<SWidget> Button = Owner->Make();
	EXPECT_TRUE(HostSnapshot::Click(Button, TEXT("alive")).bDone);
	EXPECT_EQ(Owner->NumClicks, 1);
	Owner.Reset();
	EXPECT_TRUE(FHostWidgetAccess::Give(Button, FHostInput()).bDone) << "nobody is called any more";
}
