// Copyright Velmorant. All Rights Reserved.

#include "Docks/CollisionSetup.h"

#include "Collision/UnitVolumeCollisionLines.h"
#include "Engine/CollisionProfile.h"
#include "QtText.h"
#include "VelmorantEditorUtilitiesLibrary.h"

namespace CollisionSetup
{
	QString Describe(ECollisionResponse Response)
	{
		switch (Response)
		{
			case ECR_Ignore: return QObject::tr("ignores");
			case ECR_Overlap: return QObject::tr("overlaps");
			default: return QObject::tr("blocks");
		}
	}

	QString DescribeResponses(const FCollisionResponseTemplate& Profile)
	{
		QStringList Responses;
		for (const FResponseChannel& Each : Profile.CustomResponses)
		{
			Responses.append(QStringLiteral("%1 %2").arg(Describe(Each.Response), QtText::From(Each.Channel)));
		}
		return Responses.isEmpty() ? QObject::tr("as the channels are set") : Responses.join(QStringLiteral(", "));
	}
}

FCollisionSetup FCollisionSetup::Read()
{
	FCollisionSetup Setup;
	Setup.Verdict = ToolkitVerdict::Read();
	Setup.bHasProfile = SpoiledSetup::HasProfile();
	Setup.Spoilers = SpoiledSetup::Find();
	const UCollisionProfile* const Known = UCollisionProfile::Get();
	for (int32 Index = 0; Index < Known->GetNumOfProfiles(); ++Index)
	{
		const FCollisionResponseTemplate& Profile = *Known->GetProfileByIndex(Index);
		const bool bOwn = Profile.Name == FName(UnitVolumeCollisionLines::ProfileName);
		Setup.Profiles.push_back({QtText::From(Profile.Name), QtText::From(Profile.ObjectTypeName), CollisionSetup::DescribeResponses(Profile), bOwn});
	}
	return Setup;
}

void FCollisionSetup::Check()
{
	UVelmorantEditorUtilitiesLibrary::CheckForUnitVolumeCollisionProfile();
}
