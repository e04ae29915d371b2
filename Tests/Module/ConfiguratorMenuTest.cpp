// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "ContentBrowserMenuContexts.h"
#include "HostContentBrowser.h"
#include "HostPackages.h"
#include "LevelVariantSets.h"
#include "ToolMenus.h"
#include "VelmorantConfiguratorDataAsset.h"

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace ConfiguratorMenuTest
{
	const char* const TwoConfigurators = R"({"name": "Tower"}, {"name": "Loft"})";

	void Select(const TArray<UObject*>& Assets)
	{
		TArray<FAssetData> Data;
		for (const UObject* Asset : Assets)
		{
			Data.Emplace(Asset);
		}
		HostContentBrowser::SetSelection(Data);
	}

	void Pick(const TCHAR* Label)
	{
		const FHostInputResult Result = HostContentBrowser::RunContextMenuEntry(Label);
		ASSERT_TRUE(Result.bDone) << ToUtf8(Result.Reason);
	}

	std::vector<std::string> MenuLabels()
	{
		std::vector<std::string> Labels;
		for (const FHostMenuEntry& Entry : HostContentBrowser::GetContextMenu())
		{
			Labels.push_back(ToUtf8(Entry.Label));
		}
		return Labels;
	}

	/** The assets last shown, by name. */
	std::vector<std::string> LastSync()
	{
		std::vector<std::string> Names;
		if (HostContentBrowser::GetSyncHistory().IsEmpty())
		{
			return {"no sync"};
		}
		const HostContentBrowser::FSync& Sync = HostContentBrowser::GetSyncHistory().Last();
		EXPECT_FALSE(Sync.bAllowLockedBrowsers);
		EXPECT_TRUE(Sync.bFocusContentBrowser);
		for (const FAssetData& Asset : Sync.Assets)
		{
			Names.push_back(ToUtf8(Asset.AssetName));
		}
		return Names;
	}
}

using namespace ConfiguratorMenuTest;

/** The context menu of configurator data assets in the content browser. */
class ConfiguratorMenu : public FConfiguratorTest
{
};

TEST_F(ConfiguratorMenu, HasThreeEntriesInOneSection)
{
	StartWithConfigurators(OneRoomConfigurator);
	Select({CreateAsset(TEXT("Tower"))});

	std::vector<std::string> Entries;
	FName LastSection;
	for (const FHostMenuEntry& Entry : HostContentBrowser::GetContextMenu())
	{
		if (ToUtf8(Entry.Name).starts_with("ConfiguratorDataAsset_"))
		{
			EXPECT_TRUE(LastSection.IsNone() || Entry.Section == LastSection) << "all entries stand in one section";
			LastSection = Entry.Section;
			EXPECT_EQ(ToUtf8(Entry.IconStyle) + " " + ToUtf8(Entry.IconKey), "VelmorantEditorStyle Velmorant.Editor.LogoGrey");
			EXPECT_TRUE(Entry.bEnabled);
			Entries.push_back(ToUtf8(Entry.Name) + ": " + ToUtf8(Entry.Label) + " | " + ToUtf8(Entry.ToolTip));
		}
	}
	EXPECT_THAT(Entries, ElementsAre("ConfiguratorDataAsset_CreateLevelVariantSet: Create LevelVariantSet | Create a LevelVariantSet with data configurator in the same folder", "ConfiguratorDataAsset_UpdateLevelVariantSetData: Update LevelVariantSet Data | Update Configurator Data from lastest updated request data", "ConfiguratorDataAsset_CreateLevelVariantActor: Place LevelVariantActor into Level | Place a LevelVariantActor in current level with the data of configurator"));
}

TEST_F(ConfiguratorMenu, CanBeTranslated)
{
	StartWithConfigurators(OneRoomConfigurator);
	UContentBrowserAssetContextMenuContext* Selection = NewObject<UContentBrowserAssetContextMenuContext>();
	Selection->SelectedAssets.Emplace(CreateAsset(TEXT("Tower")));
	const FName MenuName = UE::ContentBrowser::ExtendToolMenu_AssetContextMenu(UVelmorantConfiguratorDataAsset::StaticClass())->MenuName;

	std::vector<std::string> Keys;
	for (const FToolMenuSection& MenuSection : UToolMenus::Get()->GenerateMenu(MenuName, FToolMenuContext(Selection))->Sections)
	{
		for (const FToolMenuEntry& Entry : MenuSection.Blocks)
		{
			for (const FText& Text : {Entry.Label.Get(), Entry.ToolTip.Get()})
			{
				const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
				if (Namespace.IsSet() && Namespace.GetValue().Equals(TEXT("UConfiguratorDataAsset_AssetDefinition"), ESearchCase::CaseSensitive))
				{
					Keys.push_back(ToUtf8(FTextInspector::GetKey(Text).GetValue()));
				}
			}
		}
	}
	EXPECT_THAT(Keys, ElementsAre("ConfiguratorDataAsset_CreateLevelVariantSet", "ConfiguratorDataAsset_CreateLevelVariantSetTooltip", "ConfiguratorDataAsset_UpdateLevelVariantSetData", "ConfiguratorDataAsset_UpdateLevelVariantSetDataTooltip", "ConfiguratorDataAsset_CreateLevelVariantActor", "ConfiguratorDataAsset_CreateLevelVariantActorTooltip"));
}

TEST_F(ConfiguratorMenu, IsForConfiguratorDataAssetsOnly)
{
	StartEditor();
	Select({MakeLevelVariantSets(TEXT("/Game"), TEXT("Sets"))});
	EXPECT_THAT(MenuLabels(), Not(Contains("Create LevelVariantSet")));
}

TEST_F(ConfiguratorMenu, IsThereInEveryEditorOfOneProcessOnce)
{
	for (int32 Start = 0; Start < 2; ++Start)
	{
		StartWithConfigurators(OneRoomConfigurator);
		Select({CreateAsset(TEXT("Tower"))});
		EXPECT_THAT(MenuLabels(), Contains("Create LevelVariantSet").Times(1));
	}
}

TEST_F(ConfiguratorMenu, RunsOnTheSelectedAssetsInTheirOrderAndShowsThem)
{
	StartWithConfigurators(TwoConfigurators);
	UVelmorantConfiguratorDataAsset* Tower = CreateAsset(TEXT("Tower"));
	UVelmorantConfiguratorDataAsset* Loft = CreateAsset(TEXT("Loft"));
	Select({Loft, Tower});
	Pick(TEXT("Create LevelVariantSet"));

	EXPECT_THAT(LastSync(), ElementsAre("Configurator_Loft", "Configurator_Tower"));
	EXPECT_EQ(ToUtf8(Loft->LevelVariantSets.ToString()), "/Game/Velmorant/Configurator/LevelVariant_Loft.LevelVariant_Loft");
	EXPECT_FALSE(Tower->LevelVariantSets.IsNull());

	Select({Tower, Loft});
	Pick(TEXT("Place LevelVariantActor into Level"));
	EXPECT_THAT(LastSync(), ElementsAre("Configurator_Tower", "Configurator_Loft"));
	EXPECT_EQ(TakeOutcomes().back().Title, "Found LevelVariant at Current Level") << "the second asset finds the first one's actor";
}

TEST_F(ConfiguratorMenu, LoadsSelectedAssetsThatAreOnDiskOnly)
{
	StartWithConfigurators(OneRoomConfigurator);
	const FAssetData Data(CreateAsset(TEXT("Tower")));
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	StartWithProject();
	ASSERT_EQ(FindAsset(TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower")), nullptr);
	HostContentBrowser::SetSelection({Data});
	Pick(TEXT("Create LevelVariantSet"));
	EXPECT_THAT(DescribeVariants(FindAsset(TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"))), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
}

TEST_F(ConfiguratorMenu, ShowsTheAssetsWhateverCameOfTheOperation)
{
	StartWithConfigurators(OneRoomConfigurator);
	UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower"));
	Select({Asset});
	Pick(TEXT("Update LevelVariantSet Data"));
	EXPECT_EQ(TakeOutcomes().back().Title, "Success Configuration Updated");
	EXPECT_THAT(LastSync(), ElementsAre("Configurator_Tower"));

	const int32 NumSyncs = HostContentBrowser::GetSyncHistory().Num();
	Asset->ConfiguratorName = TEXT("Gone");
	Pick(TEXT("Update LevelVariantSet Data"));
	EXPECT_EQ(TakeOutcomes().back().Title, "Fail Configuration Updated ");
	EXPECT_EQ(HostContentBrowser::GetSyncHistory().Num(), NumSyncs + 1);
}
