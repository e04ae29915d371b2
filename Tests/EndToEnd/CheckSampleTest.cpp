// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

class CheckSample : public FProjectOnDisk
{
protected:
	CheckSample() { CopySample(); }
};

TEST_F(CheckSample, FindsTheProfileMissingAndChangesNothing)
{
	const FFolderState Before = LookAtFolder(Folder.GetNative());
	const FProgramResult Result = Check();
	EXPECT_EQ(Result.ExitStatus, 1) << Result.Errors;
	EXPECT_NE(Result.Output.find("Velmorant: Missing UnitVolume Profile"), std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Errors, "");
	EXPECT_EQ(LookAtFolder(Folder.GetNative()), Before);
}

TEST_F(CheckSample, RepairAddsExactlyTheTwoLinesBehindTheLastProfile)
{
	const std::string Before = ReadIni();
	const FProgramResult Result = Check({"--repair"});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	const size_t LastProfile = Before.rfind("+Profiles=");
	ASSERT_NE(LastProfile, std::string::npos);
	std::string Expected = Before;
	Expected.insert(Before.find('\n', LastProfile) + 1, CollisionIni::ProfileLine + CollisionIni::ChannelLine);
	EXPECT_EQ(ReadIni(), Expected);
}

TEST_F(CheckSample, ATranslatedToolkitGetsTheSameVerdict)
{
	// The program with other words of the same length where the toolkit has its own.
	std::string Program = ReadBytes(VELMORANT_BINARY_DIR "/velmorant");
	for (const auto& [From, To] : {std::pair(u"Velmorant: Missing UnitVolume Profile", u"Velmorant: Profil UnitVolume fehlt   "), std::pair(u"Add to Project Config", u"Ins Projekt eintragen"), std::pair(u"Restart Editor", u"Editor beenden")})
	{
		const size_t Length = std::char_traits<char16_t>::length(From) * sizeof(char16_t);
		ASSERT_EQ(Length, std::char_traits<char16_t>::length(To) * sizeof(char16_t));
		const std::string Own(reinterpret_cast<const char*>(From), Length);
		ASSERT_NE(Program.find(Own), std::string::npos);
		Program = CollisionIni::Replace(Program, Own, std::string(reinterpret_cast<const char*>(To), Length));
	}
	Folder.Write("bin/translated", Program);
	std::filesystem::permissions(Folder.GetNative("bin/translated"), std::filesystem::perms::owner_all);
	std::filesystem::create_directory_symlink(VELMORANT_BINARY_DIR "/../share", Folder.GetNative("share"));
	const std::string Call = "cd '" + Folder.GetNative().string() + "' && XDG_CONFIG_HOME=$PWD/UserConfig XDG_STATE_HOME=$PWD/UserState bin/translated check --repair Project >out";
	EXPECT_EQ(std::system(Call.c_str()), 0);
	EXPECT_NE(Folder.Read("out").find("Notification: Velmorant: Profil UnitVolume fehlt"), std::string::npos) << Folder.Read("out");
	EXPECT_NE(ReadIni().find(CollisionIni::ProfileLine), std::string::npos);
}

TEST_F(CheckSample, ARepairedProjectIsSoundAndLeftAlone)
{
	ASSERT_EQ(Check({"--repair"}).ExitStatus, 0);
	const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
	EXPECT_EQ(Check().ExitStatus, 0);
	EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);
	const FProgramResult Again = Check({"--repair"});
	EXPECT_EQ(Again.ExitStatus, 0) << Again.Errors;
	EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);
}

TEST_F(CheckSample, RepairKeepsTheModeOfTheFile)
{
	const std::filesystem::path Ini = Folder.GetNative(IniFile);
	const auto Mode = std::filesystem::perms(0640);
	std::filesystem::permissions(Ini, Mode);
	ASSERT_EQ(Check({"--repair"}).ExitStatus, 0);
	EXPECT_EQ(std::filesystem::status(Ini).permissions(), Mode);
}

TEST_F(CheckSample, TheProjectMayBeNamedByItsFileOrItsFolder)
{
	EXPECT_EQ(FProgramRun::Run({"check", GetProject() + "/HarborTower.uproject"}, GetEnvironment()).ExitStatus, 1);
	EXPECT_EQ(FProgramRun::Run({"check", GetProject() + "/"}, GetEnvironment()).ExitStatus, 1);
}

TEST_F(CheckSample, UnreadableMapsDoNotSpoilTheVerdict)
{
	// What a project made with the engine has there.
	Folder.Write(IniFile, "[/Script/EngineSettings.GameMapsSettings]\nEditorStartupMap=/Game/Maps/Binary.Binary\n\n" + CollisionIni::SectionLine + CollisionIni::GlassLine);
	Folder.Write("Project/Content/Maps/Binary.umap", std::string("\xC1\x83\x2A\x9E\0\0", 6));
	const FProgramResult Result = Check();
	EXPECT_EQ(Result.ExitStatus, 1) << Result.Errors;
	EXPECT_EQ(Result.Errors, "");
}
