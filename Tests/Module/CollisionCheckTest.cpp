// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "Editor.h"
#include "Engine/CollisionProfile.h"
#include "HostEditor.h"
#include "HostObjects.h"
#include "Misc/ConfigCacheIni.h"
#include "ToolkitTest.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#include <filesystem>
#include <map>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace CollisionCheckTest
{
	const TCHAR* const MissingTitle = TEXT("Velmorant: Missing UnitVolume Profile");
	const TCHAR* const RestartTitle = TEXT("Restart Editor Required");
	const char* const CheckedLine = "Log: Checked UnitVolume DefaultChannelResponses and profile exist.";
	const char* const WrittenLine = "Log: Collision profiles force to be load";

	/** A collision section with these lines in it. */
	std::string MakeIni(const std::string& Profile, const std::string& Channel)
	{
		return CollisionIni::Section + "\n" + Profile + "\n" + Channel + "\n";
	}

	/** The objects that ask about missing profiles and still live after a collection. */
	TArray<UObject*> FindDialogues()
	{
		HostObjects::CollectGarbage();
		TArray<UObject*> Dialogues;
		GetObjectsOfClass(FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.CheckCollisionNotification")), Dialogues);
		return Dialogues;
	}

	/** Under which its texts are translated: title, sub-text, then its buttons. */
	std::vector<std::string> KeysOf(const FHostNotification& Notification)
	{
		std::vector<std::string> Keys;
		const auto Add = [&Keys](const FText& Text) {
			EXPECT_EQ(ToUtf8(FTextInspector::GetNamespace(Text).Get(FString())), "FVelmorantProEditor") << ToUtf8(Text);
			Keys.push_back(ToUtf8(FTextInspector::GetKey(Text).Get(FString())));
		};
		Add(Notification.Text);
		Add(Notification.SubText);
		for (const FHostNotificationButton& Button : Notification.Buttons)
		{
			Add(Button.Label);
		}
		return Keys;
	}

	std::vector<std::string> LabelsOf(const FHostNotification& Notification)
	{
		std::vector<std::string> Labels;
		for (const FHostNotificationButton& Button : Notification.Buttons)
		{
			EXPECT_TRUE(Button.ToolTip.IsEmpty());
			EXPECT_TRUE(Button.ShownIn == TArray<SNotificationItem::ECompletionState>{SNotificationItem::CS_Pending});
			Labels.push_back(ToUtf8(Button.Label));
		}
		return Labels;
	}

	/** How questions look: they stay until one of their buttons is pressed. */
	void ExpectQuestion(const FHostNotification& Notification)
	{
		EXPECT_EQ(Notification.State, SNotificationItem::CS_Pending);
		EXPECT_THAT(ToUtf8(Notification.ImageName), testing::EndsWith("VelmorantPro/Resources/Vlm_Grey_128x.png"));
		EXPECT_EQ(Notification.FadeOutDuration, 0.0f);
		EXPECT_FALSE(Notification.bUseThrobber);
		EXPECT_FALSE(Notification.bFireAndForget);
		EXPECT_EQ(Notification.Width, TOptional<float>(450.0f));
		EXPECT_FALSE(Notification.ExpiresAt.IsSet());
	}
}

using namespace CollisionCheckTest;

class CollisionCheck : public FToolkitTest
{
protected:
	/** Starts the editor on a project without the unit volumes' profile. */
	void StartWithMissingProfile()
	{
		WriteProjectFile(CollisionIni::File, MakeIni(CollisionIni::Glass, ""));
		StartEditor();
	}

	static void Press(const TCHAR* Label)
	{
		const FHostInputResult Result = HostNotifications::PressButton(Label);
		ASSERT_TRUE(Result.bDone) << ToUtf8(Result.Reason);
	}
};

TEST_F(CollisionCheck, TellsSoundProjectsFromThoseThatMissSomething)
{
	struct FCase
	{
		const char* Behaviour;
		std::string Ini;
		bool bSound;
	};
	const std::string& Profile = CollisionIni::Profile;
	const std::string& Channel = CollisionIni::Channel;
	const FCase Cases[] = {
		{"both lines", MakeIni(Profile, Channel), true},
		{"order of the lines does not count", MakeIni(Channel, Profile), true},
		{"letter case of the channel does not count", MakeIni(Profile, CollisionIni::Replace(Channel, "UnitVolume", "UNITVOLUME")), true},
		{"letter case of the profile's name does not count", MakeIni(CollisionIni::Replace(Profile, "Name=\"UnitVolume\"", "Name=\"unitvolume\""), Channel), true},
		{"the channel added with another prefix", MakeIni(Profile, "." + Channel.substr(1)), false},
		{"only the profile", MakeIni(Profile, ""), false},
		{"only the channel", MakeIni(CollisionIni::Glass, Channel), false},
		{"an empty section", CollisionIni::Section + "\nComment=here\n", false},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteProjectFile(CollisionIni::File, Case.Ini);
		StartEditor();
		EXPECT_EQ(NotificationTitles().Num(), Case.bSound ? 0 : 1);
		const std::vector<std::string> Log = TakeModuleLog();
		EXPECT_EQ(std::count(Log.begin(), Log.end(), CheckedLine), Case.bSound ? 1 : 0);
		EXPECT_EQ(ReadProjectFile(CollisionIni::File), Case.Ini);
	}
}

TEST_F(CollisionCheck, WritesTheEnginesProfilesWhenTheProjectHasNoCollisionSection)
{
	const std::string Other = "[/Script/Engine.RendererSettings]\r\nr.Shadow.Virtual.Enable=1\r\n";
	WriteProjectFile(CollisionIni::File, Other);
	StartEditor();

	const std::string Written = ReadProjectFile(CollisionIni::File);
	EXPECT_THAT(Written, StartsWith(Other));
	EXPECT_THAT(Written, HasSubstr(CollisionIni::Section + "\r\n"));
	EXPECT_THAT(Written, HasSubstr("\n+Profiles=(Name=\"BlockAll\","));
	EXPECT_THAT(TakeModuleLog(), Contains(WrittenLine));
	EXPECT_EQ(NotificationTitles(), TArray<FString>{MissingTitle});
}

TEST_F(CollisionCheck, WritesTheProfilesAsTheyAreNow)
{
	WriteProjectFile(CollisionIni::File, "");
	FEditorDelegates::OnMapLoad.AddLambda([this](const FString&, FCanLoadMap&) {
		UCollisionProfile::Get(); // somebody looks before the check does, and then a profile comes
		WriteProjectFile("Config/Linux/LinuxEngine.ini", CollisionIni::Section + "\n" + CollisionIni::Glass + "\n");
		GConfig->UnloadFile(GEngineIni);
	});
	StartEditor();
	EXPECT_THAT(ReadProjectFile(CollisionIni::File), HasSubstr("Name=\"Glass\""));
}

TEST_F(CollisionCheck, TreatsAMissingFileLikeAMissingSection)
{
	std::filesystem::remove(Folder.GetNative("Project/Config/DefaultEngine.ini"));
	StartEditor();
	EXPECT_THAT(ReadProjectFile(CollisionIni::File), HasSubstr("+Profiles=(Name=\"BlockAll\","));
	EXPECT_THAT(TakeModuleLog(), Contains(WrittenLine));
	EXPECT_EQ(NotificationTitles(), TArray<FString>{MissingTitle});
}

TEST_F(CollisionCheck, AsksWhetherToAddAMissingProfile)
{
	StartWithMissingProfile();
	const TSharedPtr<const FHostNotification> Question = FindNotification(MissingTitle);
	ASSERT_TRUE(Question.IsValid());
	EXPECT_EQ(ToUtf8(Question->SubText),
		"The UnitVolume profile was not found. This profile is required for UnitVolumes. Make sure to add it to your project to avoid issues. \n\n"
		" Do you want to add this configuration to the project?");
	EXPECT_THAT(LabelsOf(*Question), ElementsAre("Add to Project Config", "Skip"));
	EXPECT_THAT(KeysOf(*Question), ElementsAre("MissingUnitVolumeProfile", "MissingUnitVolumeProfile_SubText", "AddToProjectConfig", "SkipUnitVolumeProfile"));
	ExpectQuestion(*Question);

	Wait(3600.0);
	EXPECT_FALSE(Question->IsGone()) << "nobody has answered";
	EXPECT_EQ(FindDialogues().Num(), 1) << "the question's object must stay alive";
	EXPECT_EQ(FindDialogues()[0]->GetOuter(), GetTransientPackage());
}

TEST_F(CollisionCheck, SkipTakesTheQuestionAwayAndChangesNothing)
{
	StartWithMissingProfile();
	Press(TEXT("Skip"));
	EXPECT_EQ(FindDialogues().Num(), 0);

	Wait(2.0);
	EXPECT_TRUE(FindNotification(MissingTitle)->IsGone());
	EXPECT_EQ(NotificationTitles().Num(), 1);
	EXPECT_EQ(ReadProjectFile(CollisionIni::File), MakeIni(CollisionIni::Glass, ""));
}

TEST_F(CollisionCheck, AddWritesTheLinesThenConfirmsThenAsksForARestart)
{
	StartWithMissingProfile();
	Press(TEXT("Add to Project Config"));
	EXPECT_EQ(ReadProjectFile(CollisionIni::File), MakeIni(CollisionIni::Glass + "\n" + CollisionIni::Profile + "\n" + CollisionIni::Channel, ""));

	const TArray<FString> Titles = NotificationTitles();
	ASSERT_EQ(Titles, (TArray<FString>{MissingTitle, TEXT("UnitVolume Collision Profiles Added"), RestartTitle}));
	EXPECT_TRUE(FindNotification(MissingTitle)->ExpiresAt.IsSet()) << "the first question goes";

	const TSharedPtr<const FHostNotification> Added = FindNotification(TEXT("UnitVolume Collision Profiles Added"));
	EXPECT_EQ(Added->State, SNotificationItem::CS_Success);
	EXPECT_TRUE(Added->bUseSuccessFailIcons);
	EXPECT_TRUE(Added->bFireAndForget);
	EXPECT_EQ(Added->Width, TOptional<float>(450.0f));
	EXPECT_EQ(Added->ExpireDuration, 2.0f);
	EXPECT_EQ(Added->Buttons.Num(), 0);

	const TSharedPtr<const FHostNotification> Restart = FindNotification(RestartTitle);
	EXPECT_EQ(ToUtf8(Restart->SubText),
		"A restart is required to apply the changes properly. Save your work and restart the project. \n\n Do you want to restart the editor now?");
	EXPECT_THAT(LabelsOf(*Restart), ElementsAre("Restart Editor", "Later"));
	EXPECT_THAT(KeysOf(*Restart), ElementsAre("RestartEditorRequired", "RestartEditorRequired_SubText", "RestartEditor", "RestartLater"));
	EXPECT_EQ(ToUtf8(FTextInspector::GetKey(Added->Text).Get(FString())), "UnitVolumeProfilesAdded");
	ExpectQuestion(*Restart);
	EXPECT_EQ(FindDialogues().Num(), 1);
}

TEST_F(CollisionCheck, AnAnswerCountsOnceAlthoughTheQuestionStillFades)
{
	const FString Add = TEXT("Add to Project Config");
	const FString Skip = TEXT("Skip");
	const FString Later = TEXT("Later");
	const FString Restart = TEXT("Restart Editor");
	const struct
	{
		const char* Behaviour;
		TArray<FString> Presses; // the last one comes too late
		int32 NumDialogues;
	} Cases[] = {
		{"added twice", {Add, Add}, 1},
		{"skipped after adding", {Add, Skip}, 1},
		{"added after skipping", {Skip, Add}, 0},
		{"skipped twice", {Skip, Skip}, 0},
		{"put off twice", {Add, Later, Later}, 0},
		{"restarted after putting it off", {Add, Later, Restart}, 0},
	};
	const std::string Before = MakeIni(CollisionIni::Glass, "");
	const std::string Added = MakeIni(CollisionIni::Glass + "\n" + CollisionIni::Profile + "\n" + CollisionIni::Channel, "");
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		StartWithMissingProfile();
		const int32 Last = Case.Presses.Num() - 1;
		for (int32 Index = 0; Index < Last; ++Index)
		{
			Press(*Case.Presses[Index]);
		}
		EXPECT_FALSE(HostNotifications::PressButton(Case.Presses[Last]).bDone);
		EXPECT_EQ(ReadProjectFile(CollisionIni::File), Case.Presses[0].Equals(Add) ? Added : Before);
		EXPECT_EQ(FindDialogues().Num(), Case.NumDialogues) << "every question that shows can be answered";
		EXPECT_EQ(HostEditor::GetRestartRequests().Num(), 0);
		for (const HostNotifications::FRecord& Fading : HostNotifications::GetStanding())
		{
			EXPECT_EQ(Fading->ExpiresAt.IsSet(), HostNotifications::GetVisibleButtons(*Fading).IsEmpty()) << ToUtf8(Fading->Text);
		}
	}
}

TEST_F(CollisionCheck, LaterTakesTheRestartQuestionAway)
{
	StartWithMissingProfile();
	Press(TEXT("Add to Project Config"));
	Wait(10.0);
	EXPECT_FALSE(FindNotification(RestartTitle)->IsGone());

	Press(TEXT("Later"));
	EXPECT_EQ(FindDialogues().Num(), 0);
	Wait(2.0);
	EXPECT_TRUE(FindNotification(RestartTitle)->IsGone());
	EXPECT_EQ(HostEditor::GetRestartRequests().Num(), 0);
}

TEST_F(CollisionCheck, RestartIsRequestedWithoutAPromptAndNothingIsReleased)
{
	StartWithMissingProfile();
	Press(TEXT("Add to Project Config"));
	Press(TEXT("Restart Editor"));

	ASSERT_EQ(HostEditor::GetRestartRequests().Num(), 1);
	EXPECT_FALSE(HostEditor::GetRestartRequests()[0].bWarn);
	EXPECT_FALSE(HostEditor::GetRestartRequests()[0].NewCommandLine.IsSet());
	Wait(10.0);
	EXPECT_FALSE(FindNotification(RestartTitle)->IsGone());
	EXPECT_EQ(FindDialogues().Num(), 1);
}

TEST_F(CollisionCheck, ARepairCountsAfterARestartOnly)
{
	StartWithMissingProfile();
	Press(TEXT("Add to Project Config"));
	UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
	EXPECT_EQ(NotificationTitles().Last(), MissingTitle) << "the live profiles are still the old ones";

	StartEditor();
	EXPECT_EQ(NotificationTitles().Num(), 0);
	EXPECT_THAT(TakeModuleLog(), Contains(CheckedLine));
}

TEST_F(CollisionCheck, AProjectWithoutSectionIsSoundAfterTheRepairHoweverOftenItWasChecked)
{
	WriteProjectFile(CollisionIni::File, "");
	StartEditor();
	Press(TEXT("Add to Project Config"));
	const std::string Repaired = ReadProjectFile(CollisionIni::File);
	EXPECT_THAT(Repaired, HasSubstr(CollisionIni::Profile + "\n" + CollisionIni::Channel + "\n"));

	TakeModuleLog();
	UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
	EXPECT_THAT(TakeModuleLog(), ElementsAre()) << "the section is there by now, and is left as it is";
	EXPECT_EQ(ReadProjectFile(CollisionIni::File), Repaired);

	StartEditor();
	EXPECT_THAT(TakeModuleLog(), Contains(CheckedLine));
}

TEST_F(CollisionCheck, TheProfilesAreWrittenOnceForTwoMapsLoadedAtStart)
{
	bool bFurtherRequest = true;
	FEditorDelegates::OnMapLoad.AddLambda([&bFurtherRequest](const FString& Filename, FCanLoadMap& CanLoad) {
		if (bFurtherRequest)
		{
			bFurtherRequest = false;
			FEditorDelegates::OnMapLoad.Broadcast(Filename, CanLoad);
		}
	});
	WriteProjectFile(CollisionIni::File, "");
	StartEditor();
	const std::vector<std::string> Log = TakeModuleLog();
	EXPECT_EQ(std::count(Log.begin(), Log.end(), WrittenLine), 1);
	EXPECT_EQ(NotificationTitles(), (TArray<FString>{MissingTitle, MissingTitle})) << "each check asks";
}

TEST_F(CollisionCheck, EveryFailedCheckAsksByItself)
{
	StartWithMissingProfile();
	UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
	EXPECT_EQ(NotificationTitles(), (TArray<FString>{MissingTitle, MissingTitle}));
	EXPECT_EQ(FindDialogues().Num(), 2);

	Press(TEXT("Skip"));
	Wait(2.0);
	EXPECT_EQ(HostNotifications::GetStanding().Num(), 1);
	EXPECT_EQ(FindDialogues().Num(), 1);
}

TEST_F(CollisionCheck, StartingASoundProjectTouchesNoFile)
{
	WriteProjectFile(CollisionIni::File, CollisionIni::Replace(MakeIni(CollisionIni::Profile, CollisionIni::Channel), "\n", "\r\n"));
	const auto DescribeFiles = [this] {
		std::map<std::string, std::pair<std::string, std::filesystem::file_time_type>> Files;
		for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative("Project")))
		{
			const std::string Relative = std::filesystem::relative(Entry.path(), Folder.GetNative()).string();
			Files[Relative] = {Entry.is_directory() ? "" : Folder.Read(Relative), Entry.last_write_time()};
		}
		return Files;
	};
	const auto Before = DescribeFiles();
	for (int32 Start = 0; Start < 5; ++Start)
	{
		StartEditor();
		Wait(1.0);
		StopEditor();
	}
	EXPECT_TRUE(DescribeFiles() == Before);
}
