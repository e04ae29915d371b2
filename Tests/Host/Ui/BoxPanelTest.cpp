// Copyright Velmorant. All Rights Reserved.

#include "HostSnapshot.h"
#include "UiTestEditor.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

class BoxPanel : public FUiTestEditor
{
protected:
	static TSharedRef<STextBlock> Label(const TCHAR* String) { return SNew(STextBlock).Text(FText::FromString(String)); }
};

TEST_F(BoxPanel, KeepsSlotsInTheOrderWrittenWithTheirLayout)
{
	// clang-format off
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox)
		.IsEnabled(false)
		+ SHorizontalBox::Slot().AutoWidth().Padding(2.0f).VAlign(VAlign_Center)[ Label(TEXT("A")) ]
		+ SHorizontalBox::Slot().FillWidth(3.0f).Padding(FMargin(1.0f, 2.0f))[ Label(TEXT("B")) ]
		+ SHorizontalBox::Slot();
	// clang-format on
	EXPECT_EQ(Utf8(FHostWidgetAccess::TextOf(*Box)), "A B");
	EXPECT_FALSE(Box->IsEnabled());
	auto& Slots = static_cast<TPanelChildren<SHorizontalBox::FSlot>&>(*Box->GetChildren());
	ASSERT_EQ(Slots.Num(), 3);
	EXPECT_EQ(Slots[0].SizeParam.SizeRule, FSizeParam::SizeRule_Auto);
	EXPECT_EQ(Slots[0].GetPadding().Left, 2.0f);
	EXPECT_EQ(Box->GetChildren()->GetChildAt(2), SNullWidget::NullWidget);
}

TEST_F(BoxPanel, AddsSlotsLater)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	const TSharedRef<SWidget> Middle = Label(TEXT("Middle"));
	Box->AddSlot().AutoHeight()[Label(TEXT("Last"))];
	Box->AddSlot(0)[Label(TEXT("First"))];
	Box->AddSlot(1)[Middle];
	EXPECT_EQ(Utf8(FHostWidgetAccess::TextOf(*Box)), "First Middle Last");
	Box->ClearChildren();
	EXPECT_EQ(Box->GetChildren()->Num(), 0);
}

TEST_F(BoxPanel, AttributesAreAskedEachTime)
{
	int32 NumAsked = 0;
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text_Lambda([&NumAsked] { return FText::AsNumber(++NumAsked); });
	EXPECT_EQ(Text->GetText().ToString(), TEXT("1"));
	EXPECT_EQ(Text->GetText().ToString(), TEXT("2"));
	Text->SetText(FText::FromString(TEXT("fixed")));
	EXPECT_EQ(Text->GetText().ToString(), TEXT("fixed"));
	EXPECT_EQ(NumAsked, 2);
}

TEST_F(BoxPanel, AnEmptyBorderIsASwatchOfItsColour)
{
	// clang-format off
	const TSharedRef<SWidget> Swatch = SNew(SBox).WidthOverride(25.0f).HeightOverride(25.0f)
	[
		SNew(SBorder).BorderBackgroundColor(FLinearColor(1.0f, 0.0f, 1.0f, 1.0f))
	];
	// clang-format on
	EXPECT_EQ(Utf8(HostSnapshot::Take(Swatch)), "swatch \"" + Utf8(FLinearColor(1.0f, 0.0f, 1.0f, 1.0f).ToString()) + "\"\n");
}

TEST_F(BoxPanel, WidgetsAreAssignedBeforeTheyAreConstructed)
{
	TSharedPtr<STextBlock> Assigned;
	TWeakPtr<SWidget> Weak;
	const TSharedRef<SWidget> Box = SNew(SBox)[SAssignNew(Assigned, STextBlock).Text(FText::FromString(TEXT("A")))];
	const TSharedRef<SWidget> Other = SAssignNew(Weak, SBox);
	ASSERT_TRUE(Assigned.IsValid());
	EXPECT_EQ(Assigned->GetText().ToString(), TEXT("A"));
	EXPECT_EQ(Weak.Pin(), Other);
}
