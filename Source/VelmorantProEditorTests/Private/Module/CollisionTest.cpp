// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Engine/CollisionProfile.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"
#include "Misc/ScopeExit.h"
#include "Support/EditorState.h"
#include "Support/LogListener.h"
#include "Support/TestFlags.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantCollisionTest
{
	const TCHAR* const Section = TEXT("/Script/Engine.CollisionProfile");

	FString GetFile()
	{
		return FPaths::SourceConfigDir() + TEXT("DefaultEngine.ini");
	}

	/** Whether the project's configuration has the channel, and the editor knows the profile. */
	bool IsSound()
	{
		TArray<FString> Lines;
		GConfig->GetSection(Section, Lines, GetFile());
		FCollisionResponseTemplate Template;
		const bool bChannel = Lines.ContainsByPredicate([](const FString& Line) { return Line.StartsWith(TEXT("+DefaultChannelResponses=")) && Line.Contains(TEXT("Name=\"UnitVolume\"")); });
		return bChannel && UCollisionProfile::Get()->GetProfileTemplate("UnitVolume", Template);
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleCollisionTest, "Velmorant.Module.Collision.Verdict", VelmorantTests::Flags)

bool FVelmorantModuleCollisionTest::RunTest(const FString&)
{
	if (!GConfig->DoesSectionExist(VelmorantCollisionTest::Section, FPaths::ProjectConfigDir() + TEXT("DefaultEngine.ini")))
	{
		AddInfo(TEXT("Left out: the project has no collision section, and the check would write one. Run it with another project."));
		return true;
	}
	const FVelmorantNotificationsAllowed Notifications(false); // nobody is asked
	const bool bSound = VelmorantCollisionTest::IsSound();
	if (!bSound)
	{
		AddExpectedErrorPlain(TEXT("Notification not shown: Velmorant: Missing UnitVolume Profile"), EAutomationExpectedErrorFlags::Contains, 1);
	}
	const FVelmorantLogListener Log;
	UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
	const int32 NumSound = Log.Count(TEXT("Checked UnitVolume DefaultChannelResponses and profile exist."));
	TestEqual(TEXT("the check finds what the live profiles and the configuration have"), NumSound, bSound ? 1 : 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleRepairTest, "Velmorant.Module.Collision.Repair", VelmorantTests::Flags)

bool FVelmorantModuleRepairTest::RunTest(const FString&)
{
	const FString File = VelmorantCollisionTest::GetFile();
	TArray<uint8> Backup;
	if (!FParse::Param(FCommandLine::Get(), TEXT("VelmorantTestRepair")) || !FFileHelper::LoadFileToArray(Backup, *File))
	{
		AddInfo(TEXT("Left out: it edits the project's DefaultEngine.ini and puts it back. Run it with -VelmorantTestRepair, in a project that has this file."));
		return true;
	}
	const FString BackupFile = File + TEXT(".velmorant-backup");
	TArray<uint8> Earlier;
	if (FPaths::FileExists(BackupFile) && (!FFileHelper::LoadFileToArray(Earlier, *BackupFile) || Earlier != Backup))
	{
		AddError(FString::Printf(TEXT("%s is what the file was before a run that was ended too early to put it back. Compare the two, keep what is right, and delete the copy."), *BackupFile));
		return false;
	}
	bool bMayBeEdited = false;
	ON_SCOPE_EXIT
	{
		if (!bMayBeEdited || FFileHelper::SaveArrayToFile(Backup, *File))
		{
			IFileManager::Get().Delete(*BackupFile);
		}
	};
	if (!TestTrue(TEXT("the file is backed up"), FFileHelper::SaveArrayToFile(Backup, *BackupFile)))
	{
		return false;
	}
	bMayBeEdited = true;
	TArray<FString> Before;
	TArray<FString> After;
	FFileHelper::LoadFileToStringArray(Before, *File);
	const int32 LastProfile = Before.FindLastByPredicate([](const FString& Line) { return Line.StartsWith(TEXT("+Profiles=")); });
	UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile();
	FFileHelper::LoadFileToStringArray(After, *File);
	if (LastProfile == INDEX_NONE)
	{
		TestEqual(TEXT("without a profile nothing is added"), After.Num(), Before.Num());
		return true;
	}
	if (TestEqual(TEXT("two lines are added"), After.Num(), Before.Num() + 2))
	{
		TestTrue(TEXT("the profile behind the last one"), After[LastProfile + 1].StartsWith(TEXT("+Profiles=(Name=\"UnitVolume\"")));
		TestTrue(TEXT("and the channel"), After[LastProfile + 2].StartsWith(TEXT("+DefaultChannelResponses=")));
		After.RemoveAt(LastProfile + 1, 2);
		TestTrue(TEXT("the others are as they were"), After == Before);
	}
	return true;
}

#endif
