// Copyright Velmorant. All Rights Reserved.

#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/Commands.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HostAssertions.h"
#include "HostSnapshot.h"
#include "Styling/AppStyle.h"
#include "UiTestEditor.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "MenuBuilderTest"

namespace MenuBuilderTest
{
	class FMenuCommands : public TCommands<FMenuCommands>
	{
	public:
		FMenuCommands()
			: TCommands(FName(TEXT("MenuCommands")), LOCTEXT("Desc", "Menu"), NAME_None, FName(TEXT("NoStyle")))
		{
		}

		virtual void RegisterCommands() override
		{
			UI_COMMAND(Paint, "Paint Wall", "Paints the wall", EUserInterfaceActionType::Button, FInputChord());
			UI_COMMAND(Grid, "Show Grid", "Shows the grid", EUserInterfaceActionType::ToggleButton, FInputChord());
		}

		TSharedPtr<FUICommandInfo> Paint;
		TSharedPtr<FUICommandInfo> Grid;
	};
}

using MenuBuilderTest::FMenuCommands;

class MenuBuilder : public FUiTestEditor
{
protected:
	MenuBuilder() { FMenuCommands::Register(); }

	static FText Text(const TCHAR* String) { return FText::FromString(String); }
	static FSlateIcon Icon(const TCHAR* Key) { return FSlateIcon(FAppStyle::GetAppStyleSetName(), Key); }

	FUIAction Noting(const TCHAR* What)
	{
		return FUIAction(FExecuteAction::CreateLambda([this, What] { Ran.Add(What); }), FCanExecuteAction::CreateLambda([this] { return bAllowed; }));
	}

	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	TArray<FString> Ran;
	bool bAllowed = true;
};

TEST_F(MenuBuilder, ShowsSectionsAndEntriesInOrder)
{
	Commands->MapAction(FMenuCommands::Get().Paint, Noting(TEXT("paint")));
	FMenuBuilder Menu(true, Commands);
	Menu.BeginSection("Empty", Text(TEXT("Nothing")));
	Menu.EndSection();
	Menu.BeginSection("Walls", Text(TEXT("The Walls")));
	Menu.AddMenuEntry(FMenuCommands::Get().Paint, NAME_None, TAttribute<FText>(), TAttribute<FText>(), Icon(TEXT("Icons.Settings")));
	Menu.AddMenuEntry(FMenuCommands::Get().Paint, "Again", Text(TEXT("Paint twice")), Text(TEXT("Two coats")));
	Menu.EndSection();
	Menu.BeginSection("More");
	Menu.AddMenuEntry(Text(TEXT("Ask")), Text(TEXT("Asks")), Icon(TEXT("Icons.Help")), Noting(TEXT("ask")));
	Menu.AddWidget(SNew(STextBlock).Text(Text(TEXT("free"))), FText::GetEmpty());
	Menu.AddWidget(SNew(SButton).Text(Text(TEXT("Press"))), Text(TEXT("Labelled")));
	Menu.EndSection();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Menu.MakeWidget())),
		"menu\n"
		"  section Walls [The Walls]\n"
		"    entry Paint [Paint Wall] (icon: Icons.Settings, tip: Paints the wall)\n"
		"    entry Again [Paint twice] (missing icon: MenuCommands.Paint, tip: Two coats)\n"
		"  section More\n"
		"    entry [Ask] (icon: Icons.Help, tip: Asks)\n"
		"    text \"free\"\n"
		"    horizontal\n"
		"      text \"Labelled\"\n"
		"      button [Press]\n");
}

TEST_F(MenuBuilder, CommandsDoWhatTheirListSays)
{
	Commands->MapAction(FMenuCommands::Get().Paint, Noting(TEXT("paint")));
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(FMenuCommands::Get().Paint);
	Builder.AddMenuEntry(FMenuCommands::Get().Grid);
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();

	EXPECT_EQ(Refusal(HostSnapshot::Click(Menu, TEXT("Paint Wall"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Menu, TEXT("Show Grid"))), "The entry \"Show Grid\" is disabled.") << "nobody mapped it";
	bAllowed = false;
	EXPECT_EQ(Refusal(HostSnapshot::Click(Menu, TEXT("Paint Wall"))), "The entry \"Paint Wall\" is disabled.");
	EXPECT_EQ(Ran, TArray<FString>{TEXT("paint")});
}

TEST_F(MenuBuilder, WithoutACommandListNoCommandCanRun)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.AddMenuEntry(FMenuCommands::Get().Paint);
	EXPECT_EQ(Refusal(HostSnapshot::Click(Builder.MakeWidget(), TEXT("Paint Wall"))), "The entry \"Paint Wall\" is disabled.");
}

TEST_F(MenuBuilder, TogglesShowTheirState)
{
	bool bGrid = false;
	FUIAction Toggle(FExecuteAction::CreateLambda([&bGrid] { bGrid = !bGrid; }));
	Toggle.GetActionCheckState = FGetActionCheckState::CreateLambda([&bGrid] { return bGrid ? ECheckBoxState::Checked : ECheckBoxState::Unchecked; });
	Commands->MapAction(FMenuCommands::Get().Grid, Toggle);
	FMenuBuilder Builder(true, Commands);
	Builder.AddMenuEntry(FMenuCommands::Get().Grid, NAME_None, TAttribute<FText>(), FText::GetEmpty(), Icon(TEXT("Icons.Info")));
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Menu)), "menu\n  entry Grid [Show Grid] (unchecked, icon: Icons.Info)\n");
	EXPECT_EQ(Refusal(HostSnapshot::Click(Menu, TEXT("Grid"))), "");
	EXPECT_EQ(Utf8(HostSnapshot::Take(Menu)), "menu\n  entry Grid [Show Grid] (checked, icon: Icons.Info)\n");
}

TEST_F(MenuBuilder, AnEntryWithoutAnActionSaysSo)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.AddMenuEntry(Text(TEXT("Later")), FText::GetEmpty(), FSlateIcon(), FUIAction());
	EXPECT_EQ(Refusal(HostSnapshot::Click(Builder.MakeWidget(), TEXT("Later"))), "The entry \"Later\" does nothing.");
}

TEST_F(MenuBuilder, ChoosingAnEntryClosesTheMenuUnlessItIsToStay)
{
	for (const bool bCloses : {true, false})
	{
		SCOPED_TRACE(bCloses);
		int32 NumMade = 0;
		// clang-format off
		const TSharedRef<SComboButton> Button = SNew(SComboButton)
			.OnGetMenuContent_Lambda([&]
			{
				++NumMade;
				FMenuBuilder Menu(bCloses, nullptr);
				Menu.AddMenuEntry(Text(TEXT("Go")), FText::GetEmpty(), FSlateIcon(), Noting(TEXT("go")));
				return Menu.MakeWidget();
			});
		// clang-format on
		Button->SetIsOpen(true);
		EXPECT_EQ(Refusal(HostSnapshot::Click(Button, TEXT("Go"))), "");
		EXPECT_EQ(Button->IsOpen(), !bCloses);
		Button->SetIsOpen(false);
		Button->SetIsOpen(true);
		EXPECT_EQ(NumMade, 2) << "made anew at each opening";
	}
	EXPECT_EQ(Ran.Num(), 2);
}

TEST_F(MenuBuilder, AllOpenMenusCanBeDismissed)
{
	const TSharedRef<SComboButton> First = SNew(SComboButton);
	const TSharedRef<SComboButton> Second = SNew(SComboButton);
	First->SetIsOpen(true);
	Second->SetIsOpen(true);
	FSlateApplication::Get().DismissAllMenus();
	EXPECT_FALSE(First->IsOpen());
	EXPECT_FALSE(Second->IsOpen());
}

TEST_F(MenuBuilder, SectionsThatDoNotMatchAreAMistake)
{
	FMenuBuilder Open(true, nullptr);
	Open.BeginSection("A");
	EXPECT_THROW(Open.BeginSection("B"), FHostAssertionFailure);
	EXPECT_THROW(Open.MakeWidget(), FHostAssertionFailure);
	FMenuBuilder Closed(true, nullptr);
	EXPECT_THROW(Closed.EndSection(), FHostAssertionFailure);
}

#undef LOCTEXT_NAMESPACE
