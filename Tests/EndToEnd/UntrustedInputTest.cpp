// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionCheck.h"
#include "CollisionIni.h"
#include "Console.h"
#include "HostFiles.h"
#include "ProjectOnDisk.h"

#include <algorithm>
#include <csignal>
#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace CollisionIni;

/** Names, files, limits and signals that nobody means well with. */
class UntrustedInput : public FProjectOnDisk
{
protected:
	static std::string Nested(size_t Depth) { return std::string(Depth, '[') + std::string(Depth, ']'); }

	static bool HasRawControls(const std::string& Text)
	{
		const auto IsRaw = [](char Letter) { return (Letter >= 0 && Letter < ' ' && Letter != '\n' && Letter != '\t') || Letter == 0x7F; };
		return std::any_of(Text.begin(), Text.end(), IsRaw) || Text.find("\u202e") != std::string::npos || Text.find("\u009b") != std::string::npos || Text.find("\xFF") != std::string::npos;
	}

	void Replace(const std::string& File, const std::string& From, const std::string& To) const
	{
		const std::string Text = Folder.Read(File);
		ASSERT_EQ(CountOf(Text, From), 1u) << From;
		Folder.Write(File, CollisionIni::Replace(Text, From, To));
	}
};

TEST_F(UntrustedInput, NeverSteersATerminal)
{
	const std::string Evil = "\x1b]0;x\x07\x7f\u202e\u009b"; // a title, a deletion, writing from right to left, an escape of its own
	const std::string Shown = "\\x1b]0;x\\x07\\x7f\\u202e\\x9b";
	CopySample();
	Folder.Write("Project/Config/Evil" + Evil + ".ini", Evil + "\n");
	Folder.Write(IniFile, "; " + Evil + "\n" + SectionLine + GlassLine + "; " + Evil + "\n!Profiles=ClearArray" + Evil + "\n");
	const std::string Script = "print file \"Config/Evil" + Evil + ".ini\"\nheading \"" + Evil + "\"\ncall VelmorantEditorUtilitiesLibrary.CopyToClipboard \"" + Evil + "\" \"" + Evil + "\"\nprint clipboard\nprint notifications\nprint assets \"/Game/" + Evil + "\"\nexpect panel \"" + Evil + "\"\n";
	Folder.Write("test.velscript", Script);
	const std::vector<std::string> Commands[] = {{"check", GetProject()}, {"check", GetProject(), "--repair"}, {"run", GetProject(), GetScript()}, {"check", GetProject() + Evil}, {Evil}, {"run", GetProject(), GetScript() + Evil}};
	for (const std::vector<std::string>& Arguments : Commands)
	{
		SCOPED_TRACE(testing::PrintToString(Arguments));
		const FProgramResult Result = FProgramRun::Run(Arguments, GetEnvironment());
		EXPECT_FALSE(HasRawControls(Result.Output)) << Result.Output;
		EXPECT_FALSE(HasRawControls(Result.Errors)) << Result.Errors;
		EXPECT_NE((Result.Output + Result.Errors).find(Shown), std::string::npos) << Result.Output << Result.Errors;
	}
	const FProgramResult Json = FProgramRun::Run({"check", GetProject(), "--json"}, GetEnvironment());
	EXPECT_EQ(nlohmann::json::parse(Json.Output)["spoiledBy"][0]["text"].get<std::string>(), "!Profiles=ClearArray" + Evil) << "JSON has escapes of its own";
}

TEST_F(UntrustedInput, NestedTooDeepIsRefusedWithItsLine)
{
	CopySample();
	const std::string Level = Folder.Read("Project/Content/Maps/HarborTower.umap.json");
	for (const size_t Depth : {300u, 300'000u})
	{
		for (const char* File : {"Project/Content/Maps/HarborTower.umap.json", "Project/Content/Deep.uasset.json"})
		{
			SCOPED_TRACE(File);
			Folder.Write(File, "{\n\"Class\": \"/Script/VelmorantPro.VelmorantConfiguratorDataAsset\",\n\"Properties\": " + Nested(Depth) + "\n}\n");
			const FProgramResult Result = RunScript("open level /Game/Maps/HarborTower\nprint property /Game/Deep Name\n");
			EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
			EXPECT_NE(Result.Errors.find("(3): objects and arrays are nested more than 256 deep"), std::string::npos) << Result.Errors;
			Folder.Write("Project/Content/Maps/HarborTower.umap.json", Level);
		}
		std::filesystem::remove(Folder.GetNative("Project/Content/Deep.uasset.json"));
		Folder.Write("Deep.json", Nested(Depth));
		EXPECT_EQ(RunScript("wait 0\n", {"--service", Folder.GetNative("Deep.json").string()}).ExitStatus, 0) << "nobody asked the service";
		Folder.Write("Project/Test.uproject", Nested(Depth));
		EXPECT_EQ(FProgramRun::Run({"check", Folder.GetNative("Project/Test.uproject").string()}, GetEnvironment()).ExitStatus, 3);
		std::filesystem::remove(Folder.GetNative("Project/Test.uproject"));
	}
}

TEST_F(UntrustedInput, ScriptsWriteInTheirProjectOnly)
{
	CopySample();
	std::filesystem::create_directories(Folder.GetNative("Elsewhere"));
	std::filesystem::create_directory_symlink(Folder.GetNative("Elsewhere"), Folder.GetNative("Project/Content/Linked"));
	Folder.Write("secret.txt", "not for scripts\n");
	std::filesystem::create_symlink(Folder.GetNative("secret.txt"), Folder.GetNative("Project/Config/Link.ini"));
	std::filesystem::create_symlink("DefaultEngine.ini", Folder.GetNative("Project/Config/Inner.ini"));
	const struct
	{
		const char* Script;
		const char* Message;
	} Cases[] = {
		{"save level /Game/Linked/Out\n", "the file is not in the project and was left as it is. Scripts write in their project only"},
		{"save level /VelmorantPro/Out\n", "the file is not in the project and was left as it is. Scripts write in their project only. Content of the toolkit can be written with --allow-toolkit-content."},
		{"print file Config/Link.ini\n", "links that lead out are not followed"},
		{"print file ../secret.txt\n", "links that lead out are not followed"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Script);
		const FProgramResult Result = RunScript(Case.Script);
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ(Result.Output.find("not for scripts"), std::string::npos);
	}
	EXPECT_EQ(Folder.Count("Elsewhere"), 0u);
	EXPECT_FALSE(std::filesystem::exists(VELMORANT_SOURCE_DIR "/Companions/VelmorantPro/Content/Out.umap.json"));
	Do("print file Config/Inner.ini\n");

	// A picture out of the data file's folder.
	Replace("Project/VelmorantService.json", "\"Lucia.png\"", "\"../secret.txt\"");
	const FProgramResult Picture = RunScript("open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\ntype Login UserName lucia\ntype Login UserPassword harbor-2026\nclick Login SummitButton\nwait 1\n");
	EXPECT_EQ(Picture.ExitStatus, 3);
	EXPECT_NE(Picture.Errors.find("/users/0/picture: the file "), std::string::npos) << Picture.Errors;
	EXPECT_NE(Picture.Errors.find(" is not in the folder of this data file, nor below it"), std::string::npos) << Picture.Errors;
}

TEST_F(UntrustedInput, PathsThatCannotBeLookedForAreTold)
{
	MakeProject();
	Folder.Write("N\xFF/Test.uproject", "{ \"FileVersion\": 3 }\n");
	const FProgramResult Named = FProgramRun::Run({"check", Folder.GetNative("N\xFF").string()}, GetEnvironment());
	EXPECT_EQ(Named.ExitStatus, 2);
	EXPECT_NE(Named.Errors.find("the path is no UTF-8, and files with such paths cannot be opened"), std::string::npos) << Named.Errors;

	const std::filesystem::path Before = std::filesystem::current_path();
	std::filesystem::create_directories(Folder.GetNative("Gone"));
	std::filesystem::current_path(Folder.GetNative("Gone"));
	std::filesystem::remove(Folder.GetNative("Gone"));
	const FProgramResult Relative = FProgramRun::Run({"check", "Project"}, GetEnvironment());
	const FProgramResult Full = FProgramRun::Run({"check", GetProject()}, GetEnvironment());
	std::filesystem::current_path(Before);
	EXPECT_EQ(Relative.ExitStatus, 2);
	EXPECT_NE(Relative.Errors.find("the working directory is not there any more"), std::string::npos) << Relative.Errors;
	EXPECT_EQ(Full.ExitStatus, 1) << Full.Errors;

	std::filesystem::remove_all(Folder.GetNative("Project/Config"));
	Folder.Write("Project/Config", "a file");
	for (const std::vector<std::string>& Options : {std::vector<std::string>{}, {"--repair"}})
	{
		const FProgramResult Result = Check(Options);
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
		EXPECT_NE(Result.Errors, "");
	}
}

TEST_F(UntrustedInput, LimitsAndSignalsEndWritesCleanly)
{
	MakeProject();
	const std::string Before = SectionLine + GlassLine + std::string(200'000, ';') + "\n";
	WriteIni(Before);
	struct rlimit Old;
	getrlimit(RLIMIT_FSIZE, &Old);
	const struct rlimit Small = {100'000, Old.rlim_max};
	setrlimit(RLIMIT_FSIZE, &Small);
	const FProgramResult Limited = Check({"--repair"});
	setrlimit(RLIMIT_FSIZE, &Old);
	EXPECT_EQ(Limited.ExitStatus, 3) << Limited.Errors;
	EXPECT_NE(Limited.Errors.find("the file cannot be written and is as it was: File too large"), std::string::npos) << Limited.Errors;
	EXPECT_EQ(ReadIni(), Before);
	EXPECT_EQ(Folder.Count("Project/Config"), 2u);

	const auto EndSoon = [](const char*, const char*) { raise(SIGTERM); };
	WriteIni(SectionLine + GlassLine);
	const pid_t Child = fork();
	if (Child == 0)
	{
		Console::Prepare();
		HostFiles::SetBeforeRename(EndSoon);
		CollisionCheck::Repair(Folder.Get("Project/Test.uproject"), FEditorArguments());
		_exit(0);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_EQ(Status & 0x7F, SIGTERM) << "the signal ends it";
	EXPECT_EQ(ReadIni(), SectionLine + GlassLine);
	EXPECT_EQ(Folder.Count("Project/Config"), 2u) << "nothing is left half written";
}

TEST_F(UntrustedInput, RepairsKeepWhatIsAttachedToFiles)
{
	MakeProject();
	WriteIni(SectionLine + GlassLine);
	const std::string File = Folder.GetNative(IniFile).string();
	if (setxattr(File.c_str(), "user.origin", "perforce", 8, 0) != 0)
	{
		GTEST_SKIP() << "this file system holds no attributes";
	}
	EXPECT_EQ(Check({"--repair"}).ExitStatus, 0);
	char Value[16] = "";
	EXPECT_EQ(getxattr(File.c_str(), "user.origin", Value, sizeof(Value)), 8);
	EXPECT_EQ(std::string(Value), "perforce");
}

TEST_F(UntrustedInput, SavedSettingsAreForTheirOwnerOnly)
{
	CopySample();
	Do("open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\ntype Dev UserName lucia\ntype Dev UserPassword harbor-2026\nclick Dev SummitButton\nwait 1\n"
	   "choose Dev ProjectSelection \"Harbor Tower\"\nclick Dev SetAsDefault\nwait 1\nsave\n");
	size_t NumFiles = 0;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative("Project/Saved")))
	{
		if (Entry.is_regular_file())
		{
			++NumFiles;
			EXPECT_EQ(Entry.status().permissions(), std::filesystem::perms(0600)) << Entry.path();
		}
	}
	EXPECT_GT(NumFiles, 0u);
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(UntrustedInput, LargeFilesAreRepairedInSixTimesTheirSize)
{
	MakeProject();
	for (const bool bSection : {true, false})
	{
		std::string Ini;
		for (int Section = 0; Section < 6000; ++Section)
		{
			Ini += "[/Script/Game.Section" + std::to_string(Section) + "]\n";
			Ini += bSection && Section == 3000 ? SectionLine + GlassLine : "";
			for (int Key = 0; Key < 30; ++Key)
			{
				Ini += "+Setting=(Name=\"Value" + std::to_string(Key) + "\",Weight=" + std::to_string(Section) + ".5,bOn=True)\n";
			}
		}
		WriteIni(Ini);
		const FProgramResult Result = Check({"--repair"});
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Errors;
		EXPECT_LE(Result.PeakKilobytes, static_cast<long>(6 * Ini.size() / 1024 + 16 * 1024));
		EXPECT_EQ(CountOf(ReadIni(), ProfileLine + ChannelLine), 1u);
	}
}
#endif
