// Copyright Velmorant. All Rights Reserved.

#include "AssetTypeActions_Base.h"
#include "Editor.h"
#include "EngineUtils.h"
#include "Framework/Commands/InputBindingManager.h"
#include "HostAssertions.h"
#include "HostAssetTools.h"
#include "HostEditor.h"
#include "HostModules.h"
#include "HostPlacement.h"
#include "HostPropertyEditor.h"
#include "HostStyles.h"
#include "IAssetTools.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"
#include "ToolkitTest.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <set>

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace ModuleStartupTest
{
	const char* const CheckedLine = "Log: Checked UnitVolume DefaultChannelResponses and profile exist.";

	std::vector<std::string> NewAssetNames()
	{
		std::vector<std::string> Names;
		for (const HostAssetTools::FNewAssetItem& Item : HostAssetTools::GetNewAssetMenu())
		{
			Names.push_back(ToUtf8(Item.DisplayName));
		}
		return Names;
	}

	/** Everything that the module has registered, one line each, to compare two editors. */
	std::vector<std::string> DescribeRegistrations()
	{
		std::vector<std::string> Lines;
		for (const FName Style : HostStyles::GetRegisteredStyles())
		{
			Lines.push_back("style " + ToUtf8(Style) + " " + std::to_string(HostStyles::GetBrushRegistrations(Style).Num()));
		}
		TArray<TSharedPtr<FUICommandInfo>> Commands;
		FInputBindingManager::Get().GetCommandInfosFromContext("VelmorantProEdCommands", Commands);
		for (const TSharedPtr<FUICommandInfo>& Command : Commands)
		{
			Lines.push_back("command " + ToUtf8(Command->GetCommandName()));
		}
		for (const HostAssetTools::FAdvancedCategory& Category : HostAssetTools::GetAdvancedCategories())
		{
			Lines.push_back("asset category " + ToUtf8(Category.Key));
		}
		for (const std::string& Name : NewAssetNames())
		{
			Lines.push_back("new asset " + Name);
		}
		for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems("VelmorantActors"))
		{
			Lines.push_back("placeable " + ToUtf8(Item->DisplayName));
		}
		return Lines;
	}
}

using namespace ModuleStartupTest;

class ModuleStartup : public FToolkitTest
{
protected:
	/** The steps of start-up and shut-down that were taken. @param Starting a module of the editor that cannot be asked yet */
	static std::string DescribeSteps(FName Starting = NAME_None)
	{
		const std::string Log = WholeLog();
		TArray<TSharedPtr<FUICommandInfo>> Commands;
		FInputBindingManager::Get().GetCommandInfosFromContext("VelmorantProEdCommands", Commands);
		const auto CanAsk = [Starting](FName Module) { return Module != Starting && FModuleManager::Get().IsModuleLoaded(Module); };
		const bool bProperties = CanAsk("PropertyEditor");
		const TSharedPtr<FPropertySection> Section = bProperties ? HostPropertyEditor::FindSection("Object", "Velmorant") : nullptr;
		const bool bDetails = bProperties && HostPropertyEditor::GetCustomizedTypes().Num() == 2 && HostPropertyEditor::GetNumChangeNotes() == 1 && Section.IsValid() && Section->HasAddedCategory("MinimapLevelController");
		const std::vector<std::string> Assets = CanAsk("AssetTools") ? NewAssetNames() : std::vector<std::string>();
		std::string Steps;
		const auto Add = [&Steps](bool bTaken, const char* Step) { Steps += bTaken ? std::string(" ") + Step : ""; };
		Add(Log.find("VelmorantProEditor module has been loaded") != std::string::npos, "loaded");
		Add(Log.find("LogVelmorantProEditor module has been unloaded") != std::string::npos, "unloaded");
		Add(FSlateStyleRegistry::FindSlateStyle("VelmorantEditorStyle") != nullptr, "style");
		Add(Commands.Num() == 4, "commands");
		Add(std::count(Assets.begin(), Assets.end(), "Minimap Config Asset") == 1, "assets");
		Add(bDetails, "details");
		Add(CanAsk("PlacementMode") && HostPlacement::GetItems("VelmorantActors").Num() == 12, "placement");
		Add(FEditorDelegates::OnMapLoad.IsBound(), "check");
		return Steps;
	}
};

TEST_F(ModuleStartup, GoesStepByStep)
{
	// What stands when each of the editor's modules is about to start.
	std::vector<std::string> Steps;
	HostModules::SetLoadListener([&Steps](FName Module) {
		if (Module == "AssetTools" || Module == "PropertyEditor" || Module == "PlacementMode")
		{
			Steps.push_back(ToUtf8(Module) + ":" + DescribeSteps(Module));
		}
	});
	StartEditor();
	EXPECT_THAT(Steps, ElementsAre("AssetTools: loaded style commands", "PropertyEditor: loaded style commands assets", "PlacementMode: loaded style commands assets details"));
	EXPECT_EQ(DescribeSteps(), " loaded style commands assets details placement check");

	Steps.clear();
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("PropertyEditor"));
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("VelmorantProEditor"));
	EXPECT_THAT(Steps, ElementsAre("PropertyEditor: loaded unloaded commands assets placement check")) << "the style goes first, the category last";
	HostModules::SetLoadListener(nullptr);
}

TEST_F(ModuleStartup, TellsOfItsLifeInTheLogAsWarnings)
{
	StartEditor();
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: VelmorantProEditor module has been loaded", CheckedLine));

	StopEditor();
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: LogVelmorantProEditor module has been unloaded"));
}

TEST_F(ModuleStartup, GroupsTheRuntimeClassesCategoriesInOneDetailsSection)
{
	StartEditor();
	const TSharedPtr<FPropertySection> Section = HostPropertyEditor::FindSection("Object", "Velmorant");
	ASSERT_TRUE(Section.IsValid());
	EXPECT_EQ(ToUtf8(Section->GetDisplayName()), "Velmorant");
	EXPECT_EQ(ToUtf8(*FTextInspector::GetNamespace(Section->GetDisplayName())), "FVelmorantProEditor");
	EXPECT_EQ(ToUtf8(*FTextInspector::GetKey(Section->GetDisplayName())), "Velmorant");
	std::set<FString> OfRuntimeClasses;
	TArray<UClass*> Classes;
	GetDerivedClasses(AActor::StaticClass(), Classes);
	for (const UClass* Class : Classes)
	{
		for (const FProperty* Property : Class->GetOwnProperties())
		{
			OfRuntimeClasses.insert(Class->GetPathName().StartsWith(TEXT("/Script/VelmorantPro.")) ? Property->GetMetaData(TEXT("Category")) : FString());
		}
	}
	for (const TCHAR* Category : {TEXT("VelmorantLevelConfiguration"), TEXT("VelmorantCharacter"), TEXT("VelmorantPanoramicChar"), TEXT("VelmorantPlayerController"),
			 TEXT("UnitVolumeConfig"), TEXT("UnitVolumesManager"), TEXT("ControllerSwitchPawn"), TEXT("MinimapLevelController")})
	{
		EXPECT_TRUE(Section->HasAddedCategory(Category)) << ToUtf8(FString(Category));
		EXPECT_TRUE(OfRuntimeClasses.count(Category)) << ToUtf8(FString(Category)) << " would be grouped, but no actor has it";
	}
}

TEST_F(ModuleStartup, CustomizesTheDetailsOfColorsAndIcons)
{
	StartEditor();
	EXPECT_THAT(ToUtf8(HostPropertyEditor::GetCustomizedTypes()), ElementsAre("VelmorantColorHandler", "FontIconHandler"));
	EXPECT_EQ(HostPropertyEditor::GetNumChangeNotes(), 1);
	EXPECT_TRUE(HostPropertyEditor::MakeCustomization("FontIconHandler").IsValid());
}

TEST_F(ModuleStartup, OffersActorsThatCanBePlacedAndAreThereAgainInTheSavedLevel)
{
	StartEditor();
	std::vector<std::string> Placed;
	for (const TSharedRef<FPlaceableItem>& Item : HostPlacement::GetItems("VelmorantActors"))
	{
		FText Reason;
		const AActor* Actor = HostPlacement::Place(*Item, FTransform(FVector(0.0, 0.0, 10.0)), Reason);
		ASSERT_NE(Actor, nullptr) << ToUtf8(Item->DisplayName) << ": " << ToUtf8(Reason);
		EXPECT_TRUE(Actor->IsSelected());
		EXPECT_EQ(GEditor->GetSelectedActorCount(), 1);
		Placed.push_back(ToUtf8(Actor->GetClass()->GetPathName()) + " " + ToUtf8(Actor->GetActorLabel()));
	}
	EXPECT_THAT(Placed, Contains("/VelmorantPro/Features/SunAndLights/SunSkyVlm.SunSkyVlm_C SunSkyVlm"));
	ASSERT_TRUE(HostEditor::SaveOpenMapAs(TEXT("/Game/Placed")));

	StartEditor();
	ASSERT_EQ(HostEditor::OpenMap(TEXT("/Game/Placed")), HostEditor::EOpenMap::Opened);
	std::vector<std::string> Found;
	for (FActorIterator It(GEditor->GetEditorWorldContext().World()); It; ++It)
	{
		EXPECT_EQ(It->GetActorLocation(), FVector(0.0, 0.0, 10.0));
		Found.push_back(ToUtf8(It->GetClass()->GetPathName()) + " " + ToUtf8(It->GetActorLabel()));
	}
	EXPECT_EQ(Found, Placed);
}

TEST_F(ModuleStartup, RegistersTheSameInEveryEditorOfOneProcess)
{
	StartEditor();
	const std::vector<std::string> First = DescribeRegistrations();
	const std::vector<std::string> FirstLog = TakeModuleLog();
	EXPECT_THAT(First, Contains("placeable Sun Sky Velmorant"));

	StartEditor();
	EXPECT_EQ(DescribeRegistrations(), First);
	EXPECT_EQ(TakeModuleLog(), FirstLog);
}

TEST_F(ModuleStartup, ChecksOncePerMapRequestedBeforeInitialisationEnds)
{
	int32 FurtherRequests = 2;
	FEditorDelegates::OnMapLoad.AddLambda([&FurtherRequests](const FString& Filename, FCanLoadMap& CanLoad) {
		if (FurtherRequests > 0)
		{
			--FurtherRequests;
			FEditorDelegates::OnMapLoad.Broadcast(Filename, CanLoad);
		}
	});
	StartEditor();
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: VelmorantProEditor module has been loaded", CheckedLine, CheckedLine, CheckedLine));
}

TEST_F(ModuleStartup, ChecksOnceAlthoughTheStartupMapCannotBeOpened)
{
	WriteProjectFile("Config/DefaultEngine.ini", std::string(SoundEngineIni) + "\n[/Script/EngineSettings.GameMapsSettings]\nEditorStartupMap=/Game/Maps/Tower.Tower\n");
	WriteProjectFile("Content/Maps/Tower.umap", "made by the engine");
	StartEditor();
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: VelmorantProEditor module has been loaded", CheckedLine));
	EXPECT_NE(GEditor->GetEditorWorldContext().World(), nullptr);
}

TEST_F(ModuleStartup, ChecksNothingWhenAMapIsOpenedLater)
{
	StartEditor();
	TakeModuleLog();
	ASSERT_EQ(HostEditor::OpenMap(FString()), HostEditor::EOpenMap::Opened);
	Wait(1.0);
	EXPECT_THAT(TakeModuleLog(), ElementsAre());
}

TEST_F(ModuleStartup, ShutsDownWithoutThePlacementModule)
{
	StartEditor();
	TakeModuleLog();
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("PlacementMode"));
	EXPECT_TRUE(FModuleManager::Get().UnloadModule("VelmorantProEditor"));
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("PlacementMode")) << "only unregisters where there is something to unregister from";
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: LogVelmorantProEditor module has been unloaded"));
}

TEST_F(ModuleStartup, LeavesAllButStyleAndPlacementRegisteredAtShutdown)
{
	StartEditor();
	ASSERT_TRUE(FModuleManager::Get().UnloadModule("VelmorantProEditor"));

	EXPECT_THAT(ToUtf8(HostStyles::GetRegisteredStyles()), Not(Contains("VelmorantEditorStyle")));
	EXPECT_THAT(ToUtf8(HostPlacement::GetCategories()), Not(Contains("VelmorantActors")));

	EXPECT_TRUE(FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantSDK_OpenSDKSettings").IsValid());
	ASSERT_EQ(HostAssetTools::GetAdvancedCategories().Num(), 1);
	EXPECT_EQ(ToUtf8(HostAssetTools::GetAdvancedCategories()[0].Key) + ": " + ToUtf8(HostAssetTools::GetAdvancedCategories()[0].DisplayName), "VelmorantAsset: Velmorant Assets");
	EXPECT_TRUE(HostPropertyEditor::FindSection("Object", "Velmorant").IsValid());
	EXPECT_EQ(HostPropertyEditor::GetCustomizedTypes().Num(), 2);
	EXPECT_THAT(NewAssetNames(), AllOf(Contains("Maps Linker Asset"), Contains("Minimap Config Asset")));
	const FToolMenuEntry* Button = UToolMenus::Get()->FindMenu("LevelEditor.LevelEditorToolBar.PlayToolBar")->FindSection("PluginTools")->FindEntry("VelmorantMenu");
	ASSERT_NE(Button, nullptr);
	EXPECT_TRUE(Button->CommandList->IsActionMapped(FInputBindingManager::Get().FindCommandInContext("VelmorantProEdCommands", "VelmorantSDK_OpenSDKSettings")));

	TakeModuleLog();
	FCanLoadMap CanLoad;
	FEditorDelegates::OnMapLoad.Broadcast(TEXT("Other"), CanLoad);
	FEditorDelegates::OnEditorInitialized.Broadcast(0.0);
	EXPECT_THAT(TakeModuleLog(), ElementsAre(CheckedLine, CheckedLine)) << "for the map at start, and for this one";
}
