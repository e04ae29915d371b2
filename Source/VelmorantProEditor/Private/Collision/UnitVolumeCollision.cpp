// Copyright Velmorant. All Rights Reserved.

#include "VelmorantEditorUtilitiesLibrary.h"

#include "Collision/CheckCollisionNotification.h"
#include "Engine/CollisionProfile.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "VelmorantProEditor.h"

namespace VelmorantUnitVolumeCollision
{
	const TCHAR* const ProfileName = TEXT("UnitVolume");
	const TCHAR* const ConfigSection = TEXT("/Script/Engine.CollisionProfile");
	const TCHAR* const ChannelKey = TEXT("DefaultChannelResponses");
	const TCHAR* const ChannelValue = TEXT("(Channel=ECC_GameTraceChannel18, Name=\"UnitVolume\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=True)");
	const TCHAR* const ProfileLinePrefix = TEXT("+Profiles=");

	// Query-only: blocks its own channel, ignores the standard ones.
	const TCHAR* const ProfileLine = TEXT("+Profiles=(Name=\"UnitVolume\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=((Channel=\"UnitVolume\",Response=ECR_Block),(Channel=\"WorldStatic\",Response=ECR_Ignore),(Channel=\"WorldDynamic\",Response=ECR_Ignore),(Channel=\"Pawn\",Response=ECR_Ignore),(Channel=\"Visibility\",Response=ECR_Ignore),(Channel=\"Camera\",Response=ECR_Ignore),(Channel=\"PhysicsBody\",Response=ECR_Ignore),(Channel=\"Vehicle\",Response=ECR_Ignore),(Channel=\"Destructible\",Response=ECR_Ignore)),HelpMessage=\"Unit Volume Profile for click detection\")");

	FString MakeChannelLine()
	{
		return FString::Printf(TEXT("+%s=%s"), ChannelKey, ChannelValue);
	}

	FString MakeSourcePath()
	{
		return FString::Printf(TEXT("%sDefaultEngine.ini"), *FPaths::SourceConfigDir());
	}

	/** Writes the engine's current profiles into the project's configuration when it has no collision section of its own. */
	void MakeSureSectionExists()
	{
		const FString ProjectPath = FPaths::ProjectConfigDir() + TEXT("DefaultEngine.ini");
		if (!GConfig->DoesSectionExist(ConfigSection, ProjectPath))
		{
			UCollisionProfile::Get()->LoadProfileConfig(true);
			UCollisionProfile::Get()->TryUpdateDefaultConfigFile(TEXT(""), true);
			UE_LOG(LogVelmorantProEditor, Log, TEXT("Collision profiles force to be load"));
		}
	}

	/** The whole line counts, blanks included; only letter case does not. */
	bool IsChannelConfigured()
	{
		TArray<FString> Lines;
		GConfig->GetSection(ConfigSection, Lines, MakeSourcePath());

		const FString ExpectedLine = MakeChannelLine();
		return Lines.ContainsByPredicate([&ExpectedLine](const FString& Line) {
			return Line.Equals(ExpectedLine, ESearchCase::IgnoreCase);
		});
	}

	/** The live profile is asked, so a repair counts only after the editor has been restarted. */
	bool IsProfileKnown()
	{
		FCollisionResponseTemplate Template;
		return UCollisionProfile::Get()->GetProfileTemplate(FName(ProfileName), Template);
	}
}

void UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile()
{
	VelmorantUnitVolumeCollision::MakeSureSectionExists();

	const bool bChannelFound = VelmorantUnitVolumeCollision::IsChannelConfigured();
	const bool bProfileFound = VelmorantUnitVolumeCollision::IsProfileKnown();
	if (bChannelFound && bProfileFound)
	{
		UE_LOG(LogVelmorantProEditor, Log, TEXT("Checked UnitVolume DefaultChannelResponses and profile exist."));
		return;
	}

	NewObject<UCheckCollisionNotification>(GetTransientPackage())->ShowMissingProfileNotification();
}

void UVelmorantEditorUtilitiesLibrary::AddUnitVolumeCollisionProfile()
{
	const FString Path = VelmorantUnitVolumeCollision::MakeSourcePath();

	// A missing file gives no lines; that is not an error.
	TArray<FString> Lines;
	FFileHelper::LoadFileToStringArray(Lines, *Path);

	int32 LastProfileIndex = INDEX_NONE;
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		if (Lines[Index].StartsWith(VelmorantUnitVolumeCollision::ProfileLinePrefix, ESearchCase::IgnoreCase))
		{
			LastProfileIndex = Index;
		}
	}

	if (LastProfileIndex != INDEX_NONE)
	{
		Lines.Insert(VelmorantUnitVolumeCollision::ProfileLine, LastProfileIndex + 1);
		Lines.Insert(VelmorantUnitVolumeCollision::MakeChannelLine(), LastProfileIndex + 2);
	}

	// Saved in every case on purpose: without a profile line the file is only rewritten. The check writes those lines first.
	FFileHelper::SaveStringArrayToFile(Lines, *Path);
}
