// Copyright Velmorant. All Rights Reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HostSnapshot.h"
#include "HostToolMenus.h"
#include "Styling/AppStyle.h"
#include "TestToolPanel.h"
#include "ToolMenus.h"
#include "UiTestEditor.h"
#include "Widgets/Text/STextBlock.h"

class ToolMenus : public FUiTestEditor
{
protected:
	static FText Text(const TCHAR* String) { return FText::FromString(String); }

	FToolUIAction Noting(const TCHAR* What)
	{
		FToolUIAction Action;
		Action.ExecuteAction = FToolMenuExecuteAction::CreateLambda([this, What](const FToolMenuContext& Context) {
			const UTestListItem* Item = Context.FindContext<UTestListItem>();
			Ran.Add(FString(What) + TEXT(" ") + (Item ? *Item->DisplayName : TEXT("nothing")));
		});
		return Action;
	}

	static std::string LabelsOf(FName Menu, const FToolMenuContext& Context = FToolMenuContext())
	{
		std::string Labels;
		for (const FHostMenuEntry& Entry : HostToolMenus::List(Menu, Context))
		{
			Labels += (Labels.empty() ? "" : ", ") + Utf8(Entry.Section.ToString()) + ":" + Utf8(Entry.Label);
		}
		return Labels;
	}

	TArray<FString> Ran;
};

TEST_F(ToolMenus, RunsStartUpCallbacksOnceMenusAreReady)
{
	HostToolMenus::Stop();
	const auto Note = [this](const TCHAR* What) { return FSimpleMulticastDelegate::FDelegate::CreateLambda([this, What] { Ran.Add(What); }); };
	UToolMenus::RegisterStartupCallback(Note(TEXT("early")));
	EXPECT_TRUE(Ran.IsEmpty());
	HostToolMenus::Start();
	HostToolMenus::Start();
	EXPECT_EQ(Ran, TArray<FString>{TEXT("early")});
	UToolMenus::RegisterStartupCallback(Note(TEXT("late")));
	EXPECT_EQ(Ran, (TArray<FString>{TEXT("early"), TEXT("late")}));
	Restart();
	EXPECT_EQ(Ran.Num(), 2) << "callbacks belong to one editor";
}

TEST_F(ToolMenus, MakesDynamicEntriesForEachContext)
{
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Test.Menu")->FindOrAddSection("GetAssetActions");
	Section.AddDynamicEntry(NAME_None, FNewToolMenuSectionDelegate::CreateLambda([this](FToolMenuSection& InSection) {
		if (const UTestListItem* Item = InSection.Context.FindContext<UTestListItem>())
		{
			InSection.AddMenuEntry("Open", Text(*(TEXT("Open ") + Item->DisplayName)), FText(), FSlateIcon(), Noting(TEXT("open")));
		}
	}));
	EXPECT_EQ(LabelsOf("Test.Menu"), "");
	UTestListItem* Item = NewObject<UTestListItem>();
	Item->DisplayName = TEXT("Oak");
	EXPECT_EQ(LabelsOf("Test.Menu", FToolMenuContext(Item)), "GetAssetActions:Open Oak");
	EXPECT_EQ(LabelsOf("Test.Menu", FToolMenuContext(Item)), "GetAssetActions:Open Oak") << "made anew, not added once more";
	EXPECT_TRUE(HostToolMenus::Run("Test.Menu", FToolMenuContext(Item), TEXT("Open Oak")).bDone);
	EXPECT_EQ(Ran, TArray<FString>{TEXT("open Oak")});
}

TEST_F(ToolMenus, ShowsWhatItsParentsHoldFirst)
{
	UToolMenus* Menus = UToolMenus::Get();
	Menus->ExtendMenu("Test.Child")->FindOrAddSection("S").AddMenuEntry("C", Text(TEXT("child")), FText(), FSlateIcon(), FExecuteAction());
	Menus->RegisterMenu("Test.Parent")->FindOrAddSection("S").AddMenuEntry("P", Text(TEXT("parent")), FText(), FSlateIcon(), FExecuteAction());
	EXPECT_EQ(LabelsOf("Test.Child"), "S:child");
	Menus->RegisterMenu("Test.Child", "Test.Parent");
	EXPECT_EQ(LabelsOf("Test.Child"), "S:parent, S:child");
}

TEST_F(ToolMenus, RefusesEntriesThatCannotRun)
{
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Test.Menu")->FindOrAddSection("S");
	FToolUIAction Never = Noting(TEXT("never"));
	Never.CanExecuteAction = FToolMenuCanExecuteAction::CreateLambda([](const FToolMenuContext&) { return false; });
	FToolUIAction Hidden = Noting(TEXT("hidden"));
	Hidden.IsActionVisibleDelegate = FToolMenuIsActionButtonVisible::CreateLambda([](const FToolMenuContext&) { return false; });
	Section.AddMenuEntry("Never", Text(TEXT("Never")), FText(), FSlateIcon(), Never);
	Section.AddMenuEntry("Hidden", Text(TEXT("Hidden")), FText(), FSlateIcon(), Hidden);
	Section.AddMenuEntry("Empty", Text(TEXT("Empty")), FText(), FSlateIcon(), FUIAction());
	const FToolMenuContext Context;
	EXPECT_EQ(Refusal(HostToolMenus::Run("Test.Menu", Context, TEXT("Never"))), "The menu entry \"Never\" is disabled.");
	EXPECT_EQ(Refusal(HostToolMenus::Run("Test.Menu", Context, TEXT("Hidden"))), "The menu Test.Menu has no entry \"Hidden\".");
	EXPECT_EQ(Refusal(HostToolMenus::Run("Test.Menu", Context, TEXT("Empty"))), "The menu entry \"Empty\" does nothing by itself.");
	EXPECT_TRUE(Ran.IsEmpty());
}

TEST_F(ToolMenus, OpensMenusOfComboButtons)
{
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Test.ToolBar")->FindOrAddSection("PluginTools");
	Section.AddEntry(FToolMenuEntry::InitComboButton("Tools", FUIAction(), FNewToolMenuDelegate::CreateLambda([this](UToolMenu* SubMenu) {
		SubMenu->FindOrAddSection("Inner", Text(TEXT("Inner"))).AddMenuEntry("Go", Text(TEXT("Go")), FText(), FSlateIcon(), Noting(TEXT("go")));
	}),
		Text(TEXT("Tools")), Text(TEXT("Opens tools"))));
	const TSharedRef<SWidget> ToolBar = HostToolMenus::Open("Test.ToolBar", FToolMenuContext());
	EXPECT_TRUE(HostSnapshot::Click(ToolBar, TEXT("Tools")).bDone);
	EXPECT_EQ(Utf8(HostSnapshot::Take(ToolBar)),
		"menu Test.ToolBar\n" // extended, but registered by nobody
		"  section PluginTools\n"
		"    menu button Tools [Tools] (tip: Opens tools)\n"
		"      menu\n"
		"        section Inner [Inner]\n"
		"          entry Go [Go]\n");
	EXPECT_TRUE(HostSnapshot::Click(ToolBar, TEXT("Go")).bDone);
	EXPECT_EQ(Ran, TArray<FString>{TEXT("go nothing")});
	EXPECT_EQ(Utf8(HostSnapshot::Take(ToolBar)).find("Inner"), std::string::npos) << "the menu has closed";
}

TEST_F(ToolMenus, MakesTheContentAnewByAnyOfItsForms)
{
	int32 NumMade = 0;
	const auto MakeText = [&NumMade]() -> TSharedRef<SWidget> { return SNew(STextBlock).Text(FText::AsNumber(++NumMade)); };
	const struct
	{
		const TCHAR* Form;
		FNewToolMenuChoice Choice;
	} Cases[] = {
		{TEXT("Content"), FOnGetContent::CreateLambda(MakeText)},
		{TEXT("Widget"), FNewToolMenuWidget::CreateLambda([&MakeText](const FToolMenuContext&) { return MakeText(); })},
		{TEXT("Builder"), FNewMenuDelegate::CreateLambda([&MakeText](FMenuBuilder& Menu) { Menu.AddWidget(MakeText(), FText::GetEmpty()); })},
	};
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Test.Menu")->FindOrAddSection("S");
	for (const auto& Case : Cases)
	{
		Section.AddEntry(FToolMenuEntry::InitComboButton(Case.Form, FUIAction(), Case.Choice, Text(Case.Form)));
	}
	const TSharedRef<SWidget> Menu = HostToolMenus::Open("Test.Menu", FToolMenuContext());
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Utf8(Case.Form));
		NumMade = 0;
		for (const TCHAR* Number : {TEXT("1"), TEXT("2")})
		{
			EXPECT_TRUE(HostSnapshot::Click(Menu, Case.Form).bDone);
			EXPECT_NE(Utf8(HostSnapshot::Take(Menu)).find("text \"" + Utf8(Number) + "\""), std::string::npos);
			EXPECT_TRUE(HostSnapshot::Click(Menu, Case.Form).bDone);
		}
		EXPECT_EQ(NumMade, 2);
	}
}

TEST_F(ToolMenus, ToolbarsShowLabelsOnlyBesideIconsOfTheCalloutStyle)
{
	const FSlateIcon Icon(FAppStyle::GetAppStyleSetName(), "Icons.Help");
	FToolMenuSection& Section = UToolMenus::Get()->RegisterMenu("Test.ToolBar", NAME_None, EMultiBoxType::SlimHorizontalToolBar)->FindOrAddSection("S");
	Section.AddEntry(FToolMenuEntry::InitComboButton("Plain", FUIAction(), FOnGetContent(), Text(TEXT("Plain Label")), Text(TEXT("Plain tip")), Icon));
	FToolMenuEntry Callout = FToolMenuEntry::InitComboButton("Callout", FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([] { return false; })), FOnGetContent(), Text(TEXT("Callout Label")), FText(), Icon);
	Callout.StyleNameOverride = "CalloutToolbar";
	Section.AddEntry(Callout);
	const TSharedRef<SWidget> ToolBar = HostToolMenus::Open("Test.ToolBar", FToolMenuContext());
	EXPECT_EQ(Utf8(HostSnapshot::Take(ToolBar)),
		"toolbar Test.ToolBar\n"
		"  section S\n"
		"    menu button Plain (icon: Icons.Help, tip: Plain tip)\n"
		"    menu button Callout [Callout Label] (disabled, icon: Icons.Help)\n");
	EXPECT_EQ(Refusal(HostSnapshot::Click(ToolBar, TEXT("Plain tip"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Click(ToolBar, TEXT("Callout"))), "The menu button \"Callout\" is disabled.");
}
