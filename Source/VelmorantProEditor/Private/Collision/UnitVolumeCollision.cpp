// Copyright Velmorant. All Rights Reserved.

#include "Collision/UnitVolumeCollision.h"

#include "Collision/CheckCollisionNotification.h"
#include "Collision/UnitVolumeCollisionLines.h"
#include "Engine/CollisionProfile.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "VelmorantProEditor.h"

namespace UnitVolumeCollision
{
	FString MakeSourcePath()
	{
		return FString::Printf(TEXT("%sDefaultEngine.ini"), *FPaths::SourceConfigDir());
	}

	/** Writes the engine's current profiles into the project's configuration when it has no collision section of its own. */
	void MakeSureSectionExists()
	{
		const FString ProjectPath = FPaths::ProjectConfigDir() + TEXT("DefaultEngine.ini");
		if (!GConfig->DoesSectionExist(UnitVolumeCollisionLines::Section, ProjectPath))
		{
			UCollisionProfile::Get()->LoadProfileConfig(true);
			UCollisionProfile::Get()->TryUpdateDefaultConfigFile(TEXT(""), true);
			UE_LOG(LogVelmorantProEditor, Log, TEXT("Collision profiles force to be load"));
		}
	}

	bool IsChannelConfigured()
	{
		TArray<FString> Lines;
		GConfig->GetSection(UnitVolumeCollisionLines::Section, Lines, MakeSourcePath());
		return UnitVolumeCollisionLines::HaveChannel(Lines);
	}

	/** The live profile is asked, so a repair counts only after the editor has been restarted. */
	bool IsProfileKnown()
	{
		FCollisionResponseTemplate Template;
		return UCollisionProfile::Get()->GetProfileTemplate(FName(UnitVolumeCollisionLines::ProfileName), Template);
	}
}

void UnitVolumeCollision::Check()
{
	MakeSureSectionExists();

	const bool bChannelFound = IsChannelConfigured();
	const bool bProfileFound = IsProfileKnown();
	if (bChannelFound && bProfileFound)
	{
		UE_LOG(LogVelmorantProEditor, Log, TEXT("Checked UnitVolume DefaultChannelResponses and profile exist."));
		return;
	}

	NewObject<UCheckCollisionNotification>(GetTransientPackage())->ShowMissingProfileNotification();
}

void UnitVolumeCollision::AddLines()
{
	const FString Path = MakeSourcePath();

	// A missing file gives no lines; that is not an error.
	TArray<FString> Lines;
	FFileHelper::LoadFileToStringArray(Lines, *Path);
	UnitVolumeCollisionLines::Insert(Lines);

	// Saved in every case on purpose: without a profile line the file is only rewritten. The check writes those lines first.
	FFileHelper::SaveStringArrayToFile(Lines, *Path);
}
