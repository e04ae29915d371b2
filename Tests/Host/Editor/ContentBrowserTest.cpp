// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetData.h"
#include "AssetTestEditor.h"
#include "ContentBrowserMenuContexts.h"
#include "ContentBrowserModule.h"
#include "HostContentBrowser.h"
#include "Misc/DelayedAutoRegister.h"
#include "TestAssets.h"
#include "ToolMenus.h"
#include "UObject/Package.h"

using ContentBrowser = FAssetTestEditor;

namespace ContentBrowserTest
{
	std::vector<std::string> Ran; // names of the assets that an entry was run on, in order

	void RunOnSelected(const FToolMenuContext& Context)
	{
		const UContentBrowserAssetContextMenuContext* Assets = UContentBrowserAssetContextMenuContext::FindContextWithAssets(Context);
		ASSERT_NE(Assets, nullptr);
		for (const UTestAsset* Asset : Assets->LoadSelectedObjects<UTestAsset>())
		{
			Ran.push_back(Utf8(Asset->GetName()));
		}
	}

	void AddEntry(FToolMenuSection& Section, const char* Name, const TCHAR* Label)
	{
		FToolUIAction Action;
		Action.ExecuteAction = FToolMenuExecuteAction::CreateStatic(&RunOnSelected);
		Section.AddMenuEntry(FName(Name), FText::FromString(Label), FText::FromString(TEXT("Tip")), FSlateIcon(), Action);
	}

	/** As asset definitions do it: recorded when the program is loaded, run in every editor. */
	FDelayedAutoRegisterHelper Registration(EDelayedRegisterRunPhase::EndOfEngineInit, [] {
		UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateLambda([] {
			FToolMenuOwnerScoped OwnerScoped("ContentBrowserTest");
			FToolMenuSection& Section = UE::ContentBrowser::ExtendToolMenu_AssetContextMenu(UTestAsset::StaticClass())->FindOrAddSection("GetAssetActions");
			Section.AddDynamicEntry(NAME_None, FNewToolMenuSectionDelegate::CreateLambda([](FToolMenuSection& InSection) {
				AddEntry(InSection, "First", TEXT("Do the first"));
				AddEntry(InSection, "Second", TEXT("Do the second"));
			}));
			FToolMenuSection& Special =
				UE::ContentBrowser::ExtendToolMenu_AssetContextMenu(UTestSpecialAsset::StaticClass())->FindOrAddSection("GetAssetActions");
			AddEntry(Special, "Special", TEXT("Do something special"));
		}));
	});

	TArray<FAssetData> DataOf(const TArray<UObject*>& Assets)
	{
		TArray<FAssetData> Data;
		for (const UObject* Asset : Assets)
		{
			Data.Emplace(Asset);
		}
		return Data;
	}

	std::vector<std::string> Names(const TArray<FHostMenuEntry>& Menu)
	{
		std::vector<std::string> Result;
		for (const FHostMenuEntry& Entry : Menu)
		{
			Result.push_back(Utf8(Entry.Name));
		}
		return Result;
	}

	UTestAsset* MakeSpecial()
	{
		return NewObject<UTestSpecialAsset>(CreatePackage(TEXT("/Game/Special")), FName("Special"), RF_Public | RF_Standalone);
	}
}

TEST_F(ContentBrowser, MenuRunsOnTheSelectedAssetsInTheirOrder)
{
	ContentBrowserTest::Ran.clear();
	UObject* Left = MakeAsset(TEXT("/Game/Left"));
	UObject* Right = MakeAsset(TEXT("/Game/Right"));
	HostContentBrowser::SetSelection(ContentBrowserTest::DataOf({Right, Left}));

	EXPECT_EQ(ContentBrowserTest::Names(HostContentBrowser::GetContextMenu()), (std::vector<std::string>{"First", "Second"}));
	const FHostInputResult Result = HostContentBrowser::RunContextMenuEntry(TEXT("Do the second"));
	EXPECT_TRUE(Result.bDone) << Utf8(Result.Reason);
	EXPECT_EQ(ContentBrowserTest::Ran, (std::vector<std::string>{"Right", "Left"}));
}

TEST_F(ContentBrowser, MenuIsThereInEveryEditor)
{
	Restart();
	HostContentBrowser::SetSelection(ContentBrowserTest::DataOf({MakeAsset(TEXT("/Game/Left"))}));

	EXPECT_EQ(ContentBrowserTest::Names(HostContentBrowser::GetContextMenu()), (std::vector<std::string>{"First", "Second"}))
		<< "once, not once per editor before";
}

TEST_F(ContentBrowser, MenuOfASubclassBeginsWithThatOfItsParent)
{
	UObject* Special = ContentBrowserTest::MakeSpecial();
	HostContentBrowser::SetSelection(ContentBrowserTest::DataOf({Special}));
	EXPECT_EQ(ContentBrowserTest::Names(HostContentBrowser::GetContextMenu()), (std::vector<std::string>{"First", "Second", "Special"}));

	HostContentBrowser::SetSelection(ContentBrowserTest::DataOf({Special, MakeAsset(TEXT("/Game/Plain"))}));
	EXPECT_EQ(ContentBrowserTest::Names(HostContentBrowser::GetContextMenu()), (std::vector<std::string>{"First", "Second"}))
		<< "only what all selected assets have";
}

TEST_F(ContentBrowser, LoadsWhatIsSelectedAndLeavesOutOtherTypes)
{
	ContentBrowserTest::Ran.clear();
	WriteContent("Stored.uasset.json", MakeTestAssetFile("Stored", R"("Count": 3)"));
	TArray<FAssetData> Selection;
	Selection.Emplace(FName("/Game/Stored"), FName("/Game"), FName("Stored"), UTestAsset::StaticClass()->GetClassPathName());
	HostContentBrowser::SetSelection(Selection);
	EXPECT_TRUE(HostContentBrowser::RunContextMenuEntry(TEXT("first")).bDone);
	EXPECT_EQ(ContentBrowserTest::Ran, std::vector<std::string>{"Stored"});

	UContentBrowserAssetContextMenuContext* Context = NewObject<UContentBrowserAssetContextMenuContext>();
	UObject* Special = ContentBrowserTest::MakeSpecial();
	Context->SelectedAssets = ContentBrowserTest::DataOf({MakeAsset(TEXT("/Game/Plain")), Special});
	EXPECT_EQ(Context->LoadSelectedObjects<UTestSpecialAsset>(), TArray<UTestSpecialAsset*>{Cast<UTestSpecialAsset>(Special)});
	EXPECT_EQ(Context->LoadSelectedObjects<UTestAsset>().Num(), 2) << "subclasses count";
}

TEST_F(ContentBrowser, RefusesWhatCannotRunAndSaysWhy)
{
	EXPECT_NE(Utf8(HostContentBrowser::RunContextMenuEntry(TEXT("First")).Reason).find("No asset is selected"), std::string::npos);
	EXPECT_TRUE(HostContentBrowser::GetContextMenu().IsEmpty());

	HostContentBrowser::SetSelection(ContentBrowserTest::DataOf({MakeAsset(TEXT("/Game/Left"))}));
	const FHostInputResult Result = HostContentBrowser::RunContextMenuEntry(TEXT("Third"));
	EXPECT_FALSE(Result.bDone);
	EXPECT_NE(Utf8(Result.Reason).find("Third"), std::string::npos) << Utf8(Result.Reason);

	FAssetData Unknown(FName("/Game/X"), FName("/Game"), FName("X"), FTopLevelAssetPath(TEXT("/Script/Gone.Thing")));
	HostContentBrowser::SetSelection({Unknown});
	EXPECT_FALSE(HostContentBrowser::RunContextMenuEntry(TEXT("First")).bDone);
}

TEST_F(ContentBrowser, RemembersWhatItWasAskedToShow)
{
	const TArray<UObject*> Assets = {MakeAsset(TEXT("/Game/Left")), MakeAsset(TEXT("/Game/Right"))};
	IContentBrowserSingleton::Get().SyncBrowserToAssets(Assets, false, true);
	FModuleManager::LoadModuleChecked<FContentBrowserModule>("ContentBrowser").Get().SyncBrowserToAssets(TArray<FAssetData>(), true, false);

	ASSERT_EQ(HostContentBrowser::GetSyncHistory().Num(), 2);
	EXPECT_EQ(Utf8(HostContentBrowser::GetSyncHistory()[0].Assets[1].AssetName), "Right");
	EXPECT_FALSE(HostContentBrowser::GetSyncHistory()[0].bAllowLockedBrowsers);
	EXPECT_TRUE(HostContentBrowser::GetSyncHistory()[0].bFocusContentBrowser);
	EXPECT_TRUE(HostContentBrowser::GetSyncHistory()[1].bAllowLockedBrowsers);
	EXPECT_FALSE(HostContentBrowser::GetSyncHistory()[1].bFocusContentBrowser);
	EXPECT_TRUE(HostContentBrowser::GetSelection().IsEmpty()) << "what was shown last is selected";
}
