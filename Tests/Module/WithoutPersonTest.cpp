// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ConfiguratorTest.h"
#include "CoreGlobals.h"
#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HostClipboard.h"
#include "HostSlate.h"
#include "Misc/App.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"
#include "UnitVolumeActor.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorStyle.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantLevelVariantSetsActor.h"
#include "VelmorantProjectRequestManager.h"

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

namespace WithoutPersonTest
{
	const char* const MissingLine =
		"Warning: Notification not shown: Velmorant: Missing UnitVolume Profile: The UnitVolume profile was not found. This profile is required for "
		"UnitVolumes. Make sure to add it to your project to avoid issues. \n\n Do you want to add this configuration to the project?";

	/** How build servers start the editor. */
	struct FStart
	{
		const char* Description;
		const TCHAR* Switches;
		bool bAllowNotifications;
		bool bUserInterface;
		bool bUnattended;
		bool bDraws;

		bool ShowsNotifications() const { return bAllowNotifications && bUserInterface; }
	};

	const FStart Starts[] = {
		{"with a person", TEXT(""), true, true, false, true},
		{"unattended", TEXT(" -unattended"), true, true, true, true},
		{"without drawing", TEXT(" -unattended -nullrhi"), true, true, true, false},
		{"notifications switched off", TEXT(""), false, true, false, true},
		{"commandlet", TEXT(" -run=Cook"), true, false, false, false},
		{"unattended commandlet", TEXT(" -run=Cook -unattended -nullrhi"), false, false, true, false},
	};
}

using namespace WithoutPersonTest;

class WithoutPerson : public FConfiguratorTest
{
protected:
	void StartAs(const FStart& Start)
	{
		CommandLine = TEXT("-VelmorantService=") + Folder.Get("Project/Service.json") + Start.Switches;
		bAllowNotifications = Start.bAllowNotifications;
		StartEditor();
	}

	/** Titles of what was told since the last call, on the screen or, where nothing can be shown, in the log. */
	std::vector<std::string> TakeTold(const FStart& Start)
	{
		std::vector<std::string> Titles;
		for (const FOutcome& Outcome : TakeOutcomes())
		{
			Titles.push_back(Outcome.Title + ": " + Outcome.Message);
		}
		EXPECT_TRUE(Start.ShowsNotifications() || Titles.empty()) << "nothing may be shown";
		const std::string Prefix = "Warning: Notification not shown: ";
		for (const std::string& Line : TakeModuleLog())
		{
			if (Line.starts_with(Prefix))
			{
				EXPECT_FALSE(Start.ShowsNotifications()) << Line;
				Titles.push_back(Line.substr(Prefix.size()));
			}
		}
		return Titles;
	}

	/** Everything the toolkit's library offers, from creating a configurator's asset to the placed actor and the assigned units. */
	void DoAllOperations()
	{
		SignIn();
		SelectProject(TEXT("HT"));
		using FLibrary = UVelmorantEditorUtilitiesLibrary;
		FLibrary::NotifyPopup(TEXT("Title"), TEXT("Sub"), SNotificationItem::CS_Fail, 1.0f);
		FLibrary::PushEditorNotification(TEXT("Pushed"), TEXT(""), EEditorNotificationCompletionState::CS_Success, 1.0f);
		FLibrary::CopyToClipboard(TEXT("copied"), TEXT("Copy"));
		FLibrary::CopyVersionToClipboard(FLibrary::GetVelmorantProVersion() + FLibrary::GetVelmorantSDKVersion());
		FVelmorantEditorStyle::ReloadTextures();

		FLibrary::CreateConfiguratorDataAssetFromConfigurator(TEXT("Tower"));
		UVelmorantConfiguratorDataAsset* Asset = FindAsset(TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"));
		ASSERT_NE(Asset, nullptr);
		EXPECT_TRUE(FLibrary::UpdateConfiguratorDataAssetInfo(Asset));
		FLibrary::CreateVariantSetFromConfigurator(Asset);
		FLibrary::CreateVariantSetFromConfigurator(Asset);
		EXPECT_FALSE(FLibrary::FillOutLevelVariantWithConfigurator(Asset, nullptr));
		FLibrary::CreateLevelVariantActorInLevel(Asset);
		FLibrary::CreateLevelVariantActorInLevel(Asset);
		EXPECT_TRUE(TActorIterator<AVelmorantLevelVariantSetsActor>(GetWorld()));
		EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));

		AUnitVolumeActor* Volume = GetWorld()->SpawnActor<AUnitVolumeActor>();
		GetRequests()->SetSelectedUnitGroup("A");
		EXPECT_TRUE(FLibrary::AssignRandomUnitsFromDataIntoLevel());
		EXPECT_EQ(Volume->UniqueIdentifier.UnitID, 7);
		Wait(20.0);
	}

	static UWorld* GetWorld() { return GEditor->GetEditorWorldContext().World(); }
};

TEST_F(WithoutPerson, TheEditorSaysWhatItIs)
{
	for (const FStart& Start : Starts)
	{
		SCOPED_TRACE(Start.Description);
		StartAs(Start);
		EXPECT_EQ(FSlateApplication::IsInitialized(), Start.bUserInterface);
		EXPECT_EQ(IsRunningCommandlet(), !Start.bUserInterface);
		EXPECT_EQ(FApp::IsUnattended(), Start.bUnattended);
		EXPECT_EQ(FApp::CanEverRender(), Start.bDraws);
		EXPECT_EQ(FSlateNotificationManager::Get().AreNotificationsAllowed(), Start.bAllowNotifications);
		EXPECT_TRUE(GIsEditor) << "commandlets run in the editor, too";
		FVelmorantEditorStyle::ReloadTextures();
		EXPECT_EQ(HostSlate::GetTextureReloads(), Start.bDraws ? 1 : 0);
	}
}

TEST_F(WithoutPerson, AMissingProfileIsInTheLogWhereItCannotBeAskedAbout)
{
	const std::string Ini = CollisionIni::Section + "\n" + CollisionIni::Glass + "\n";
	WriteProjectFile("Config/DefaultEngine.ini", Ini);
	for (const FStart& Start : Starts)
	{
		SCOPED_TRACE(Start.Description);
		StartAs(Start);
		TArray<UObject*> Dialogues;
		Wait(61.0); // garbage is collected
		GetObjectsOfClass(FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.CheckCollisionNotification")), Dialogues);
		EXPECT_EQ(NotificationTitles().Num(), Start.ShowsNotifications() ? 1 : 0);
		EXPECT_EQ(Dialogues.Num(), Start.ShowsNotifications() ? 1 : 0) << "what asks lives as long as it asks";
		const std::vector<std::string> Log = TakeModuleLog();
		EXPECT_EQ(std::count(Log.begin(), Log.end(), MissingLine), Start.ShowsNotifications() ? 0 : 1) << testing::PrintToString(Log);
		EXPECT_EQ(ReadProjectFile("Config/DefaultEngine.ini"), Ini);
	}
}

TEST_F(WithoutPerson, AllOperationsDoTheSameAndTellItOnScreenOrInTheLog)
{
	WriteHarborTower(std::string(R"("configurators": [)") + OneRoomConfigurator + R"(], "unitGroups": [{"keyCode": "A", "name": "Tower A", "units": [{"keyCode": "A-1", "name": "1", "unitID": 7}]}])");
	std::vector<std::string> Expected;
	for (const FStart& Start : Starts)
	{
		SCOPED_TRACE(Start.Description);
		StartAs(Start);
		DoAllOperations();
		EXPECT_EQ(HostClipboard::GetHistory().Num(), 2);
		const std::vector<std::string> Told = TakeTold(Start);
		Expected = Expected.empty() ? Told : Expected; // the first is with a person
		EXPECT_THAT(Told, testing::ElementsAreArray(Expected));
		EXPECT_THAT(Told, Contains("Pushed: ")) << "without a sub-text the form is the same";
		StopEditor();
		EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: LogVelmorantProEditor module has been unloaded"));
	}
}

TEST_F(WithoutPerson, QuestionsThatCannotBeShownAfterTheFirstOneAreLetGo)
{
	WriteProjectFile("Config/DefaultEngine.ini", CollisionIni::Section + "\n" + CollisionIni::Glass + "\n");
	StartEditor();
	TakeModuleLog();
	FSlateNotificationManager::Get().SetAllowNotifications(false); // while the question stands
	ASSERT_TRUE(HostNotifications::PressButton(TEXT("Add to Project Config")).bDone);
	EXPECT_THAT(ReadProjectFile("Config/DefaultEngine.ini"), testing::HasSubstr(CollisionIni::Profile + "\n" + CollisionIni::Channel));
	EXPECT_THAT(TakeModuleLog(), ElementsAre("Warning: Notification not shown: UnitVolume Collision Profiles Added: ", StartsWith("Warning: Notification not shown: Restart Editor Required: A restart is required")));

	Wait(61.0); // garbage is collected
	TArray<UObject*> Dialogues;
	GetObjectsOfClass(FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.CheckCollisionNotification")), Dialogues);
	EXPECT_EQ(Dialogues.Num(), 0);
	EXPECT_TRUE(HostNotifications::GetStanding().IsEmpty());
}
