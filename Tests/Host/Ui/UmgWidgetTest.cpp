// Copyright Velmorant. All Rights Reserved.

#include "Blueprint/UserWidget.h"
#include "Components/CheckBox.h"
#include "Components/EditableText.h"
#include "Components/HorizontalBox.h"
#include "Components/SizeBox.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "Slate/WidgetTransform.h"
#include "TestLoginPanel.h"
#include "TestToolPanel.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UiTestEditor.h"
#include "Widgets/SWidget.h"

class UmgWidget : public FUiTestEditor
{
protected:
	template<typename WidgetType>
	static WidgetType* Make(const TCHAR* Name)
	{
		WidgetType* Widget = NewObject<WidgetType>(GetTransientPackage(), FName(Name));
		Widget->bIsVariable = true;
		return Widget;
	}

	static UTextBlock* Label(const TCHAR* String)
	{
		UTextBlock* Text = NewObject<UTextBlock>();
		Text->SetText(FText::FromString(String));
		return Text;
	}
};

TEST_F(UmgWidget, ValuesReachTheSlateWidgetBeforeAndAfterItIsMade)
{
	UEditableText* Text = Make<UEditableText>(TEXT("Key"));
	Text->SetText(FText::FromString(TEXT("before")));
	Text->SetIsReadOnly(true);
	const TSharedRef<SWidget> Widget = Text->TakeWidget();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "edit Key \"before\" (read-only)\n");
	Text->SetText(FText::FromString(TEXT("after")));
	Text->SetIsReadOnly(false);
	Text->SetIsEnabled(false);
	Text->SetToolTipText(FText::FromString(TEXT("a tip")));
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "edit Key \"after\" (disabled, tip: a tip)\n");
	Text->SetVisibility(ESlateVisibility::Hidden);
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "edit Key \"after\" (hidden, disabled, tip: a tip)\n");
	EXPECT_EQ(Text->TakeWidget(), Widget) << "made once, as long as somebody holds it";
}

TEST_F(UmgWidget, TypedTextComesBack)
{
	UEditableText* Text = Make<UEditableText>(TEXT("Key"));
	const TStrongObjectPtr<UEditableText> Kept(Text);
	{
		const TSharedRef<SWidget> Widget = Text->TakeWidget();
		EXPECT_EQ(Refusal(HostSnapshot::Type(Widget, TEXT("key"), TEXT("typed"))), "");
	}
	EXPECT_EQ(Text->GetText().ToString(), TEXT("typed")) << "also when it does not show any more";
	EXPECT_EQ(Utf8(HostSnapshot::Take(Text->TakeWidget())), "edit Key \"typed\"\n");
}

TEST_F(UmgWidget, ACheckBoxThatCodeSetsTellsNobody)
{
	UCheckBox* Box = Make<UCheckBox>(TEXT("Box"));
	UTestLoginPanel* Listener = nullptr;
	WriteLayout("Login", R"("ParentClass": "/Script/TestPanels.TestLoginPanel", "Tree": {"Class": "VerticalBox", "Children": [
		{"Class": "EditableText", "Name": "UserName"}, {"Class": "Button", "Name": "Submit"}]})");
	Listener = Cast<UTestLoginPanel>(MakePanel(TEXT("Login")));
	ASSERT_NE(Listener, nullptr) << Problems();
	Listener->Happened.Empty();
	Box->OnCheckStateChanged.AddDynamic(Listener, &UTestLoginPanel::SetRememberMe);
	const TSharedRef<SWidget> Widget = Box->TakeWidget();
	Box->SetIsChecked(true);
	EXPECT_TRUE(Listener->Happened.IsEmpty());
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "checkbox Box (checked)\n");
	HostSnapshot::Click(Widget, TEXT("Box"));
	EXPECT_EQ(Listener->Happened, TArray<FString>{TEXT("forget")});
	EXPECT_FALSE(Box->IsChecked());
}

TEST_F(UmgWidget, PanelsShowTheirChildrenInOrderAndFollowChanges)
{
	UVerticalBox* Box = NewObject<UVerticalBox>();
	UTextBlock* First = Label(TEXT("First"));
	UTextBlock* Second = Label(TEXT("Second"));
	EXPECT_NE(Box->AddChild(First), nullptr);
	const TSharedRef<SWidget> Widget = Box->TakeWidget();
	Box->AddChild(Second);
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "vertical\n  text \"First\"\n  text \"Second\"\n");
	EXPECT_EQ(Second->GetParent(), Box);

	UHorizontalBox* Other = NewObject<UHorizontalBox>();
	Other->AddChild(First);
	EXPECT_EQ(Box->GetAllChildren().Num(), 1) << "a widget is in one place";
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "vertical\n  text \"Second\"\n");
	Second->RemoveFromParent();
	EXPECT_EQ(Second->GetParent(), nullptr);
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "vertical\n");
	EXPECT_EQ(Box->AddChild(nullptr), nullptr);
}

TEST_F(UmgWidget, ASizeBoxHoldsOneChildAndItsSizes)
{
	USizeBox* Box = NewObject<USizeBox>();
	Box->SetMinDesiredHeight(10.0f);
	EXPECT_EQ(Box->GetMinDesiredHeight(), 10.0f);
	UTextBlock* First = Label(TEXT("First"));
	EXPECT_NE(Box->SetContent(First), nullptr);
	EXPECT_EQ(Box->AddChild(Label(TEXT("Second"))), nullptr) << "there is no room";
	EXPECT_EQ(Box->GetContent(), First);
	const TSharedRef<SWidget> Widget = Box->TakeWidget();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "text \"First\"\n");
	Box->SetContent(Label(TEXT("Third")));
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "text \"Third\"\n");
	EXPECT_EQ(First->GetParent(), nullptr);
}

TEST_F(UmgWidget, MakesWidgetsOnlyOfClassesThatCanBeMade)
{
	WriteLayout("Tool", R"("ParentClass": "/Script/TestPanels.TestToolPanel", "Tree": {"Class": "TextBlock", "Name": "Label"})");
	UUserWidget* Panel = MakePanel(TEXT("Tool"));
	ASSERT_NE(Panel, nullptr) << Problems();
	EXPECT_EQ(CreateWidget<UUserWidget>(Panel, UTestLoginPanel::StaticClass()), nullptr) << "abstract";
	EXPECT_EQ(CreateWidget<UUserWidget>(Panel, nullptr), nullptr);
	EXPECT_EQ(CreateWidget<UUserWidget>(static_cast<UUserWidget*>(nullptr), Panel->GetClass()), nullptr);
	UUserWidget* Inner = CreateWidget<UUserWidget>(Panel, Panel->GetClass());
	ASSERT_NE(Inner, nullptr);
	EXPECT_EQ(Inner->GetTypedOuter<UUserWidget>(), Panel);
	EXPECT_NE(Panel->WidgetTree->ConstructWidget<UTextBlock>(), nullptr);
	EXPECT_EQ(Panel->WidgetTree->ConstructWidget<UWidget>(UPanelWidget::StaticClass()), nullptr);
}

TEST_F(UmgWidget, ATransformIsTheIdentityUntilItIsChanged)
{
	FWidgetTransform Transform;
	EXPECT_TRUE(Transform.IsIdentity());
	Transform.Angle = 90.0f;
	EXPECT_FALSE(Transform.IsIdentity());
	EXPECT_EQ(Transform, FWidgetTransform(FVector2D(0.0, 0.0), FVector2D(1.0, 1.0), FVector2D(0.0, 0.0), 90.0f));
}
