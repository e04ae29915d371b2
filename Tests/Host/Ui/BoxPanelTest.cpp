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
	SHorizontalBox::FSlot* Exposed = nullptr;
	// clang-format off
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox)
		.IsEnabled(false)
		+ SHorizontalBox::Slot().AutoWidth().Padding(2.0f).VAlign(VAlign_Center).Expose(Exposed)[ Label(TEXT("A")) ]
		+ SHorizontalBox::Slot().FillWidth(3.0f).Padding(1.0f, 2.0f, 3.0f, 4.0f)[ Label(TEXT("B")) ]
		+ SHorizontalBox::Slot();
	// clang-format on
	ASSERT_EQ(Box->NumSlots(), 3);
	EXPECT_EQ(Utf8(FHostWidgetAccess::TextOf(*Box)), "A B");
	EXPECT_FALSE(Box->IsEnabled());
	ASSERT_NE(Exposed, nullptr);
	EXPECT_EQ(Exposed->SizeParam.SizeRule, FSizeParam::SizeRule_Auto);
	EXPECT_EQ(Exposed->GetPadding(), FMargin(2.0f));
	EXPECT_EQ(Exposed->GetVerticalAlignment(), VAlign_Center);
	EXPECT_EQ(Exposed->GetHorizontalAlignment(), HAlign_Fill);
	EXPECT_EQ(Box->GetChildren()->GetChildAt(2), SNullWidget::NullWidget);
}

TEST_F(BoxPanel, AddsAndRemovesSlotsLater)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox);
	const TSharedRef<SWidget> Middle = Label(TEXT("Middle"));
	Box->AddSlot().AutoHeight()[Label(TEXT("Last"))];
	Box->AddSlot(0)[Label(TEXT("First"))];
	Box->AddSlot(1)[Middle];
	EXPECT_EQ(Utf8(FHostWidgetAccess::TextOf(*Box)), "First Middle Last");
	EXPECT_EQ(Box->RemoveSlot(Middle), 1);
	EXPECT_EQ(Box->RemoveSlot(Middle), -1);
	EXPECT_EQ(Utf8(FHostWidgetAccess::TextOf(*Box)), "First Last");
	Box->ClearChildren();
	EXPECT_EQ(Box->NumSlots(), 0);
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
	EXPECT_EQ(Assigned->GetTypeAsString(), TEXT("STextBlock"));
	EXPECT_EQ(Weak.Pin(), Other);
}
