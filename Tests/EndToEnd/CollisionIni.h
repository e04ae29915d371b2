// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>

/** Lines of project configurations as the tests of the collision check write and expect them. */
namespace CollisionIni
{
	inline const std::string Section = "[/Script/Engine.CollisionProfile]\n";
	inline const std::string OtherProfile = "+Profiles=(Name=\"Glass\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"WorldStatic\",CustomResponses=,HelpMessage=\"\")\n";
	inline const std::string ProfileLine =
		"+Profiles=(Name=\"UnitVolume\",CollisionEnabled=QueryOnly,bCanModify=True,ObjectTypeName=\"\",CustomResponses=("
		"(Channel=\"UnitVolume\",Response=ECR_Block),(Channel=\"WorldStatic\",Response=ECR_Ignore),(Channel=\"WorldDynamic\",Response=ECR_Ignore),"
		"(Channel=\"Pawn\",Response=ECR_Ignore),(Channel=\"Visibility\",Response=ECR_Ignore),(Channel=\"Camera\",Response=ECR_Ignore),"
		"(Channel=\"PhysicsBody\",Response=ECR_Ignore),(Channel=\"Vehicle\",Response=ECR_Ignore),(Channel=\"Destructible\",Response=ECR_Ignore)),"
		"HelpMessage=\"Unit Volume Profile for click detection\")\n";
	inline const std::string ChannelLine =
		"+DefaultChannelResponses=(Channel=ECC_GameTraceChannel18, Name=\"UnitVolume\", DefaultResponse=ECR_Ignore, bTraceType=True, bStaticObject=True)\n";

	/** Text with every From replaced. */
	inline std::string Replace(std::string Text, const std::string& From, const std::string& To)
	{
		for (size_t Found = Text.find(From); Found != std::string::npos; Found = Text.find(From, Found + To.size()))
		{
			Text.replace(Found, From.size(), To);
		}
		return Text;
	}

	/** Every line end as on Windows. */
	inline std::string WithCarriageReturns(const std::string& Text)
	{
		return Replace(Text, "\n", "\r\n");
	}

	/** Little-endian UTF-16 with its mark; Text is ASCII. */
	inline std::string AsUtf16(const std::string& Text)
	{
		std::string Bytes = "\xFF\xFE";
		for (const char Char : Text)
		{
			Bytes += Char;
			Bytes += '\0';
		}
		return Bytes;
	}
}
