// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Misc/ScopeExit.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/WidgetText.h"
#include "ToolMenus.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace MenusTest
{
	const FName MenuName = TEXT("VelmorantTests.Menu");
	const FName OwnerName = TEXT("VelmorantTests");

	FString Describe(const UToolMenu& Menu)
	{
		TArray<FString> Parts;
		for (const FToolMenuSection& Section : Menu.Sections)
		{
			FString Part = Section.Name.ToString() + TEXT(":");
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				Part += TEXT(" ") + Entry.Name.ToString();
			}
			Parts.Add(Part);
		}
		return FString::Join(Parts, TEXT("; "));
	}

	void AddEntry(FToolMenuSection& Section, const TCHAR* Name, const TCHAR* Label)
	{
		Section.AddMenuEntry(Name, FText::FromString(Label), FText(), FSlateIcon(), FUIAction());
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMenuSectionsTest, "Velmorant.Engine.Menus.SectionsAndOrder", VelmorantTests::Flags)

bool FVelmorantMenuSectionsTest::RunTest(const FString&)
{
	ON_SCOPE_EXIT
	{
		UToolMenus::UnregisterOwner(MenusTest::OwnerName);
	};
	const FToolMenuOwnerScoped Owner(MenusTest::OwnerName);
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu(MenusTest::MenuName);
	if (!TestNotNull(TEXT("a menu can be extended before anybody registers it"), Menu))
	{
		return false;
	}
	MenusTest::AddEntry(Menu->FindOrAddSection("Tools"), TEXT("A"), TEXT("A first"));
	MenusTest::AddEntry(Menu->FindOrAddSection("Late"), TEXT("C"), TEXT("C"));
	MenusTest::AddEntry(Menu->FindOrAddSection("Tools"), TEXT("B"), TEXT("B"));
	MenusTest::AddEntry(Menu->FindOrAddSection("Tools"), TEXT("A"), TEXT("A second"));
	Menu->AddSection("Early", TAttribute<FText>(), FToolMenuInsert("Tools", EToolMenuInsertType::Before));
	MenusTest::AddEntry(*Menu->FindSection("Early"), TEXT("E"), TEXT("E"));
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu(MenusTest::MenuName, FToolMenuContext());
	TestEqualSensitive(TEXT("sections in order and where they were put; entries as added, once each"), *MenusTest::Describe(*Generated), TEXT("Early: E; Tools: A B; Late: C"));
	const FToolMenuEntry* Replaced = Generated->FindSection("Tools")->FindEntry("A");
	TestTrue(TEXT("an entry of a name that is there replaces it"), Replaced && Replaced->Label.Get().ToString().Equals(TEXT("A second")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMenuOwnersTest, "Velmorant.Engine.Menus.Owners", VelmorantTests::Flags)

bool FVelmorantMenuOwnersTest::RunTest(const FString&)
{
	UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("VelmorantTests.Owned");
	{
		const FToolMenuOwnerScoped Owner(MenusTest::OwnerName);
		MenusTest::AddEntry(Menu->FindOrAddSection("Mine"), TEXT("A"), TEXT("A"));
	}
	UToolMenus::UnregisterOwner(MenusTest::OwnerName);
	TestEqualSensitive(TEXT("what an owner added goes with it"), *MenusTest::Describe(*UToolMenus::Get()->GenerateMenu("VelmorantTests.Owned", FToolMenuContext())), TEXT(""));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMenuStartupTest, "Velmorant.Engine.Menus.StartupCallbacks", VelmorantTests::Flags)

bool FVelmorantMenuStartupTest::RunTest(const FString&)
{
	const TSharedRef<int32> NumCalls = MakeShared<int32>(0); // where it is kept instead, it outlives the test
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([NumCalls] { ++*NumCalls; }));
	TestEqual(TEXT("once the menus are there, a start-up callback runs at once"), *NumCalls, 1);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMenuBuilderTest, "Velmorant.Engine.Menus.Builder", VelmorantTests::Flags)

bool FVelmorantMenuBuilderTest::RunTest(const FString&)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.BeginSection("First", INVTEXT("VELMORANT FIRST"));
	Builder.AddMenuEntry(INVTEXT("Velmorant entry"), INVTEXT("Tip"), FSlateIcon(), FUIAction(FExecuteAction::CreateLambda([] {})), "Entry");
	Builder.EndSection();
	Builder.BeginSection("Empty", INVTEXT("VELMORANT EMPTY"));
	Builder.EndSection();
	Builder.BeginSection("Last", INVTEXT("VELMORANT LAST"));
	Builder.AddMenuEntry(INVTEXT("Velmorant last entry"), FText(), FSlateIcon(), FUIAction(), "LastEntry");
	Builder.EndSection();
	const FString Texts = FString::Join(VelmorantTests::CollectTexts(Builder.MakeWidget()), TEXT("; "));
	const int32 First = Texts.Find(TEXT("VELMORANT FIRST"), ESearchCase::IgnoreCase);
	const int32 Entry = Texts.Find(TEXT("Velmorant entry"));
	const int32 Last = Texts.Find(TEXT("VELMORANT LAST"), ESearchCase::IgnoreCase);
	const int32 LastEntry = Texts.Find(TEXT("Velmorant last entry"), ESearchCase::CaseSensitive);
	TestTrue(TEXT("headings stand above their entries, sections in their order"), First != INDEX_NONE && First < Entry && Entry < Last && Last < LastEntry);
	VelmorantTests::RecordBelief(*this, TEXT("the heading of a section without entries shows"), Texts.Contains(TEXT("VELMORANT EMPTY")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantMenuCommandsTest, "Velmorant.Engine.Menus.Commands", VelmorantTests::Flags)

bool FVelmorantMenuCommandsTest::RunTest(const FString&)
{
	const TSharedPtr<FUICommandInfo> Mapped = FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantPro_OpenProSettings");
	const TSharedPtr<FUICommandInfo> Other = FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantSDK_OpenSDKSettings");
	if (!TestValid(TEXT("a command of the module"), Mapped) || !TestValid(TEXT("another"), Other))
	{
		return false;
	}
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	List->MapAction(Mapped, FExecuteAction::CreateLambda([] {}), FCanExecuteAction());
	FMenuBuilder Builder(true, List);
	Builder.AddMenuEntry(Mapped);
	Builder.AddMenuEntry(Other);
	const TSharedRef<SWidget> Menu = Builder.MakeWidget();
	TestTrue(TEXT("an entry reads like its command, and can be chosen when the menu's list maps it"), VelmorantTests::IsTextEnabled(Menu, *Mapped->GetLabel().ToString()));
	VelmorantTests::RecordBelief(*this, TEXT("a menu entry for a command that its list does not map"), VelmorantTests::IsTextEnabled(Menu, *Other->GetLabel().ToString()) ? TEXT("enabled") : TEXT("disabled or not there"));
	return true;
}

#endif
