// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>

using namespace CollisionIni;

/** What the layers above DefaultEngine.ini make of a set-up that is sound in it. */
class CheckPlatforms : public FProjectOnDisk
{
protected:
	CheckPlatforms()
	{
		MakeProject();
		WriteIni(SectionLine + GlassLine + ProfileLine + ChannelLine);
	}
};

TEST_F(CheckPlatforms, ALayerThatTakesTheProfileAwayIsNamed)
{
	const std::string Clear = "; nothing\n" + SectionLine + "!Profiles=ClearArray\n";
	const struct
	{
		const char* Behaviour;
		const char* File; // below Config
		std::string Text;
		std::vector<std::string> Options;
		const char* Spoiler; // empty for a sound set-up
	} Cases[] = {
		{"this machine's platform", "Linux/LinuxEngine.ini", Clear, {}, "Linux/LinuxEngine.ini(3): takes the UnitVolume profile away: !Profiles=ClearArray"},
		{"another one's does not count", "Windows/WindowsEngine.ini", Clear, {}, ""},
		{"unless it is asked for", "Windows/WindowsEngine.ini", Clear, {"--platform", "Windows"}, "Windows/WindowsEngine.ini(3)"},
		{"in any letter case", "Mac/MacEngine.ini", Clear, {"--platform", "mac"}, "Mac/MacEngine.ini(3)"},
		{"instead of this machine's", "Linux/LinuxEngine.ini", Clear, {"--platform", "Windows"}, ""},
		{"one that shares its settings", "Unix/UnixEngine.ini", Clear, {}, "Unix/UnixEngine.ini(3)"},
		{"the user's", "UserEngine.ini", Clear, {}, "UserEngine.ini(3)"},
		{"the one profile alone", "Linux/LinuxEngine.ini", SectionLine + "-" + ProfileLine.substr(1), {}, "Linux/LinuxEngine.ini(2)"},
		{"another list in its place", "Linux/LinuxEngine.ini", SectionLine + "Profiles=(Name=\"Only\")\n", {}, "Linux/LinuxEngine.ini(2)"},
		{"taken twice: the line that counts", "Linux/LinuxEngine.ini", Clear + ProfileLine + "!Profiles=ClearArray\n", {}, "Linux/LinuxEngine.ini(5)"},
		{"another profile alone", "Linux/LinuxEngine.ini", SectionLine + "-" + GlassLine.substr(1), {}, ""},
		{"cleared and brought again", "Linux/LinuxEngine.ini", Clear + ProfileLine, {}, ""},
		{"another section", "Linux/LinuxEngine.ini", "[Other]\n!Profiles=ClearArray\n", {}, ""},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const std::string File = "Project/Config/" + std::string(Case.File);
		Folder.Write(File, Case.Text);
		const bool bSound = *Case.Spoiler == '\0';
		const FProgramResult Result = Check(Case.Options);
		EXPECT_EQ(Result.ExitStatus, bSound ? 0 : 1) << Result.Output << Result.Errors;
		EXPECT_NE(Result.Output.find(bSound ? "Sound: " : Folder.GetNative("Project/Config").string() + "/" + Case.Spoiler), std::string::npos) << Result.Output;
		EXPECT_EQ(CountOf(Result.Output, "takes the UnitVolume"), bSound ? 0u : 1u) << Result.Output;
		std::filesystem::remove(Folder.GetNative(File));
	}
}

TEST_F(CheckPlatforms, AChannelThatIsTakenAwayIsToldThoughTheVerdictStays)
{
	Folder.Write("Project/Config/Linux/LinuxEngine.ini", SectionLine + "!DefaultChannelResponses=ClearArray\n");
	for (const std::vector<std::string>& Options : {std::vector<std::string>{"--json"}, {"--json", "--repair"}})
	{
		const FProgramResult Result = Check(Options);
		EXPECT_EQ(Result.ExitStatus, 0) << "the toolkit looks for the channel in DefaultEngine.ini only";
		const nlohmann::json Report = nlohmann::json::parse(Result.Output, nullptr, false);
		ASSERT_TRUE(Report.is_object()) << Result.Output;
		EXPECT_EQ(Report["spoiledBy"], (nlohmann::json::array({{{"what", "channel"}, {"file", Folder.GetNative("Project/Config/Linux/LinuxEngine.ini").string()}, {"line", 2}, {"text", "!DefaultChannelResponses=ClearArray"}}})));
	}
}

TEST_F(CheckPlatforms, AnUnknownPlatformIsBadUsage)
{
	for (const char* Name : {"Win64", "Android", "", "../Linux"})
	{
		SCOPED_TRACE(Name);
		const FProgramResult Result = Check({"--platform", Name});
		EXPECT_EQ(Result.ExitStatus, 2);
		EXPECT_NE(Result.Errors.find("Windows,Linux,Mac"), std::string::npos) << Result.Errors;
	}
}

TEST_F(CheckPlatforms, ScriptsRunWithAPlatformsConfigurationToo)
{
	Folder.Write("Project/Config/Windows/WindowsGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nApiKey=for-windows\n");
	Do("expect property default:VelmorantSDKSettings ApiKey for-windows\n", {"--platform", "Windows"});
	Do("expect property default:VelmorantSDKSettings ApiKey " + Canary::Key + "\n");
}
