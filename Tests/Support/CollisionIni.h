// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>

/** Text of a project's DefaultEngine.ini as the unit volumes' collision check and repair know it. */
namespace CollisionIni
{
	inline const char* const File = "Config/DefaultEngine.ini"; // in the project
	inline const std::string Section = "[/Script/Engine.CollisionProfile]";

	/** The two lines that a repair inserts. */
	inline const std::string Profile =
		"+Profiles=(Name=\"UnitVolume\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=((Channel=\"UnitVolume\",Response=ECR_Block),(Channel=\"WorldStatic\",Response=ECR_Ignore),(Channel=\"WorldDynamic\",Response=ECR_Ignore),(Channel=\"Pawn\",Response=ECR_Ignore),(Channel=\"Visibility\",Response=ECR_Ignore),(Channel=\"Camera\",Response=ECR_Ignore),(Channel=\"PhysicsBody\",Response=ECR_Ignore),(Channel=\"Vehicle\",Response=ECR_Ignore),(Channel=\"Destructible\",Response=ECR_Ignore)),HelpMessage=\"Unit Volume Profile for click detection\")";
	inline const std::string Channel =
		"+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18, Name=\"UnitVolume\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=True)";

	/** A profile of the project's own. */
	inline const std::string Glass = "+Profiles=(Name=\"Glass\",CollisionEnabled=QueryAndPhysics,bCanModify=True,ObjectTypeName=\"WorldStatic\",CustomResponses=,HelpMessage=\"Balustrades\")";

	//~ The same with their line ends.

	inline const std::string SectionLine = Section + "\n";
	inline const std::string ProfileLine = Profile + "\n";
	inline const std::string ChannelLine = Channel + "\n";
	inline const std::string GlassLine = Glass + "\n";

	/** Text with every From replaced. */
	inline std::string Replace(std::string Text, std::string_view From, std::string_view To)
	{
		for (size_t At = Text.find(From); At != std::string::npos; At = Text.find(From, At + To.size()))
		{
			Text.replace(At, From.size(), To);
		}
		return Text;
	}

	/** Every line end as on Windows. */
	inline std::string WithCarriageReturns(const std::string& Text)
	{
		return Replace(Text, "\n", "\r\n");
	}

	/** UTF-16, little endian, with byte-order mark. Only for text of code points below 256, given as Latin-1. */
	inline std::string ToUtf16(std::string_view Latin1)
	{
		std::string Bytes = "\xFF\xFE";
		for (const char Character : Latin1)
		{
			Bytes += {Character, '\0'};
		}
		return Bytes;
	}
}
