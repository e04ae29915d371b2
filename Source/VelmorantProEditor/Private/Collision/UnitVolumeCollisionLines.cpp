// Copyright Velmorant. All Rights Reserved.

#include "Collision/UnitVolumeCollisionLines.h"

namespace UnitVolumeCollisionLines
{
	const TCHAR* const ProfileLinePrefix = TEXT("+Profiles=");

	// Query-only: blocks its own channel, ignores the standard ones.
	const TCHAR* const ProfileLine = TEXT("+Profiles=(Name=\"UnitVolume\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=((Channel=\"UnitVolume\",Response=ECR_Block),(Channel=\"WorldStatic\",Response=ECR_Ignore),(Channel=\"WorldDynamic\",Response=ECR_Ignore),(Channel=\"Pawn\",Response=ECR_Ignore),(Channel=\"Visibility\",Response=ECR_Ignore),(Channel=\"Camera\",Response=ECR_Ignore),(Channel=\"PhysicsBody\",Response=ECR_Ignore),(Channel=\"Vehicle\",Response=ECR_Ignore),(Channel=\"Destructible\",Response=ECR_Ignore)),HelpMessage=\"Unit Volume Profile for click detection\")");
	const TCHAR* const ChannelLine = TEXT("+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18, Name=\"UnitVolume\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=True)");
}

bool UnitVolumeCollisionLines::HaveChannel(const TArray<FString>& SectionLines)
{
	return SectionLines.ContainsByPredicate([](const FString& Line) {
		return Line.Equals(ChannelLine, ESearchCase::IgnoreCase);
	});
}

void UnitVolumeCollisionLines::Insert(TArray<FString>& FileLines)
{
	const int32 LastProfileIndex = FileLines.FindLastByPredicate([](const FString& Line) {
		return Line.StartsWith(ProfileLinePrefix, ESearchCase::IgnoreCase);
	});
	if (LastProfileIndex != INDEX_NONE)
	{
		FileLines.Insert(ProfileLine, LastProfileIndex + 1);
		FileLines.Insert(ChannelLine, LastProfileIndex + 2);
	}
}
