// Copyright Velmorant. All Rights Reserved.

#include "Engine/CollisionProfile.h"
#include "LevelTestEditor.h"

#include <algorithm>
#include <sstream>

namespace CollisionProfileTest
{
	const char* const Section = "[/Script/Engine.CollisionProfile]\n";
	const char* const LiftProfile =
		"+Profiles=(Name=\"Lift\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"WorldDynamic\","
		"CustomResponses=((Channel=\"Cabin\",Response=ECR_Overlap),(Channel=\"Pawn\",Response=ECR_Ignore)),HelpMessage=\"Moves people\")";
	const char* const CabinChannel =
		"+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18,DefaultResponse=ECR_Ignore,bTraceType=True,bStaticObject=False,Name=\"Cabin\")";

	std::vector<std::string> LinesStarting(const std::string& Text, const std::string& Prefix)
	{
		std::vector<std::string> Lines;
		std::istringstream Stream(Text);
		for (std::string Line; std::getline(Stream, Line);)
		{
			if (Line.rfind(Prefix, 0) == 0)
			{
				Lines.push_back(Line);
			}
		}
		return Lines;
	}
}

using namespace CollisionProfileTest;

class CollisionProfile : public FLevelTestEditor
{
protected:
	/** Null when there is no such profile. */
	const FCollisionResponseTemplate* Find(const TCHAR* Name)
	{
		return UCollisionProfile::Get()->GetProfileTemplate(Name, Found) ? &Found : nullptr;
	}

private:
	FCollisionResponseTemplate Found;
};

TEST_F(CollisionProfile, AProjectWithoutOwnProfilesHasTheEngines)
{
	const char* const Stock[] = {"NoCollision", "BlockAll", "OverlapAll", "BlockAllDynamic", "OverlapAllDynamic", "IgnoreOnlyPawn", "OverlapOnlyPawn", "Pawn", "Spectator",
		"CharacterMesh", "PhysicsActor", "Destructible", "InvisibleWall", "InvisibleWallDynamic", "Trigger", "Ragdoll", "Vehicle", "UI"};
	for (const char* Name : Stock)
	{
		EXPECT_NE(Find(*FString(Name)), nullptr) << Name;
	}
	EXPECT_EQ(Find(TEXT("Lift")), nullptr);
}

TEST_F(CollisionProfile, ReadsTheProjectsProfilesAndChannels)
{
	RestartWithConfig(std::string(Section) + LiftProfile + "\n" + CabinChannel + "\n");
	const FCollisionResponseTemplate* Lift = Find(TEXT("lIFT"));
	ASSERT_NE(Lift, nullptr) << "names ignore case";
	EXPECT_EQ(Lift->CollisionEnabled, ECollisionEnabled::QueryOnly);
	EXPECT_EQ(Lift->ObjectType, ECC_WorldDynamic);
	EXPECT_EQ(Lift->ResponseToChannels.GetResponse(ECC_GameTraceChannel18), ECR_Overlap);
	EXPECT_EQ(Lift->ResponseToChannels.GetResponse(ECC_Pawn), ECR_Ignore);
	EXPECT_EQ(Lift->ResponseToChannels.GetResponse(ECC_WorldStatic), ECR_Block) << "what a profile does not name is as the channel has it";
	EXPECT_EQ(Utf8(Lift->HelpMessage), "Moves people");

	const FCollisionResponseTemplate* Stock = Find(TEXT("BlockAll"));
	ASSERT_NE(Stock, nullptr);
	EXPECT_EQ(Stock->ResponseToChannels.GetResponse(ECC_GameTraceChannel18), ECR_Ignore) << "the channel's own default";
}

TEST_F(CollisionProfile, ALaterLineOfTheSameNameReplacesTheFirst)
{
	RestartWithConfig(std::string(Section) + "+Profiles=(Name=\"BlockAll\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=,HelpMessage=\"Mine\")\n");
	ASSERT_NE(Find(TEXT("BlockAll")), nullptr);
	EXPECT_EQ(Utf8(Find(TEXT("BlockAll"))->HelpMessage), "Mine");
}

TEST_F(CollisionProfile, FollowsRedirectsOfProfilesAndChannels)
{
	RestartWithConfig(std::string(Section) + CabinChannel + "\n"
															"+Profiles=(Name=\"Door\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=((Channel=\"OldCabin\",Response=ECR_Block)),HelpMessage=\"\")\n"
															"+EditProfiles=(Name=\"Hatch\",CustomResponses=((Channel=\"Camera\",Response=ECR_Overlap)))\n"
															"+ProfileRedirects=(OldName=\"Gate\",NewName=\"Hatch\")\n"
															"+ProfileRedirects=(OldName=\"Hatch\",NewName=\"Door\")\n"
															"+ProfileRedirects=(OldName=\"Loop\",NewName=\"Pool\")\n"
															"+ProfileRedirects=(OldName=\"Pool\",NewName=\"Loop\")\n"
															"+CollisionChannelRedirects=(OldName=\"OldCabin\",NewName=\"Cabin\")\n");
	const FCollisionResponseTemplate* Door = Find(TEXT("Gate"));
	ASSERT_NE(Door, nullptr) << "over two redirects";
	EXPECT_EQ(Utf8(Door->Name.ToString()), "Door");
	EXPECT_EQ(Door->ResponseToChannels.GetResponse(ECC_GameTraceChannel18), ECR_Block) << "a channel by its old name";
	EXPECT_EQ(Door->ResponseToChannels.GetResponse(ECC_Camera), ECR_Overlap) << "an edit of the profile by its old name";
	EXPECT_EQ(Find(TEXT("Loop")), nullptr) << "a circle of redirects ends";
}

TEST_F(CollisionProfile, NamesAChannelThatDoesNotExist)
{
	RestartWithConfig(std::string(Section) + LiftProfile + "\n");
	ASSERT_NE(Find(TEXT("Lift")), nullptr);
	ASSERT_EQ(GetLog("LogCollisionProfile").size(), 1u);
	EXPECT_NE(GetLog("LogCollisionProfile")[0].find("Cabin"), std::string::npos);
}

TEST_F(CollisionProfile, WritesItsSectionInTheEnginesForm)
{
	RestartWithConfig("[Other]\nKey=1\n");
	UCollisionProfile::Get()->LoadProfileConfig(true);
	ASSERT_TRUE(UCollisionProfile::Get()->TryUpdateDefaultConfigFile(TEXT(""), true));
	const std::string Text = ReadConfig();
	EXPECT_EQ(Text.find("[Other]\nKey=1\n"), 0u) << "what is not its own stays";
	EXPECT_NE(Text.find(Section), std::string::npos);
	const std::vector<std::string> Profiles = LinesStarting(Text, "+Profiles=");
	ASSERT_EQ(Profiles.size(), 18u);
	EXPECT_EQ(Profiles[0].find("+Profiles=(Name=\"NoCollision\",CollisionEnabled=NoCollision,bCanModify=False,ObjectTypeName=\"WorldStatic\","
							   "CustomResponses=((Channel=\"Visibility\",Response=ECR_Ignore),(Channel=\"Camera\",Response=ECR_Ignore)),HelpMessage=\"\")"),
		0u)
		<< Profiles[0] << " brings no help text of the host's own into a project";
	EXPECT_NE(Profiles[1].find(",CustomResponses=,"), std::string::npos) << Profiles[1];
}

TEST_F(CollisionProfile, NormalisesAChannelLineThatWasWrittenByHand)
{
	RestartWithConfig(std::string(Section) + LiftProfile + "\n"
														   "+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18, Name=\"Cabin\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=False)\n");
	ASSERT_TRUE(UCollisionProfile::Get()->TryUpdateDefaultConfigFile());
	const std::string Text = ReadConfig();
	EXPECT_EQ(LinesStarting(Text, "+DefaultChannelResponses="), std::vector<std::string>{CabinChannel});
	const std::vector<std::string> Profiles = LinesStarting(Text, "+Profiles=");
	EXPECT_EQ(std::count(Profiles.begin(), Profiles.end(), LiftProfile), 1);
}

TEST_F(CollisionProfile, WritingWhatWasReadChangesNothingAnyMore)
{
	RestartWithConfig(std::string(Section) + LiftProfile + "\n" + CabinChannel + "\n+EditProfiles=(Name=\"Lift\",CustomResponses=((Channel=\"Camera\",Response=ECR_Overlap)))\n");
	ASSERT_TRUE(UCollisionProfile::Get()->TryUpdateDefaultConfigFile());
	const std::string Once = ReadConfig();
	RestartWithConfig(Once);
	UCollisionProfile::Get()->LoadProfileConfig(true);
	ASSERT_TRUE(UCollisionProfile::Get()->TryUpdateDefaultConfigFile());
	EXPECT_EQ(ReadConfig(), Once) << "resolved responses must not find their way into the file";
}
