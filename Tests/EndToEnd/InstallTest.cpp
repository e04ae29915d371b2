// Copyright Velmorant. All Rights Reserved.

#include "HostFiles.h"
#include "Install/ModuleInstall.h"
#include "PluginOnDisk.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

using testing::HasSubstr;
using testing::Not;

namespace InstallTest
{
	/** The process ends before so many renames were made. */
	int RenamesLeft = 0;

	void CountRename(const char*, const char*)
	{
		if (RenamesLeft-- == 0)
		{
			_exit(42);
		}
	}
}

/** Putting the module into a plugin. */
class ModuleInstallation : public FPluginOnDisk
{
protected:
	/** The module's files in the plugin are those of the repository, and no others. */
	void ExpectModule(const std::string& Module) const
	{
		std::map<std::string, std::string> Expected;
		std::map<std::string, std::string> Found;
		for (const auto& [Root, Out] : {std::make_pair(Sources, &Expected), std::make_pair(std::filesystem::path(GetPath()), &Found)})
		{
			for (const auto& [Path, State] : LookAtFolder(Root / "Source" / Module))
			{
				if (!std::filesystem::is_directory(Path) && !(Root == Sources && Path.ends_with("CMakeLists.txt")))
				{
					(*Out)[Path.substr(Root.string().size())] = State.first;
				}
			}
		}
		EXPECT_EQ(Found, Expected);
		EXPECT_GT(Found.size(), 5u);
	}

	static std::string ModuleEntry() { return "{ \"Name\": \"VelmorantProEditor\", \"Type\": \"Editor\", \"LoadingPhase\": \"Default\" }"; }

	/** Installs in another process, which ends before that rename. @return false when it came to its own end. */
	bool InstallUntil(int Rename, bool bForce) const
	{
		const pid_t Process = fork();
		if (Process == 0)
		{
			InstallTest::RenamesLeft = Rename;
			HostFiles::SetBeforeRename(InstallTest::CountRename);
			const TOptional<FInstallPlan> Plan = ModuleInstall::Plan(ModuleInstall::FindDescriptor(FString(UTF8_TO_TCHAR(GetPath().c_str()))), {false, bForce});
			_exit(Plan.IsSet() && Plan->Obstacles.IsEmpty() && ModuleInstall::Apply(*Plan) ? 0 : 1);
		}
		int Status = 0;
		waitpid(Process, &Status, 0);
		EXPECT_TRUE(WIFEXITED(Status) && (WEXITSTATUS(Status) == 42 || WEXITSTATUS(Status) == 0)) << Status;
		return WIFEXITED(Status) && WEXITSTATUS(Status) == 42;
	}
};

TEST_F(ModuleInstallation, PutsTheModuleIntoThePluginAndASecondTimeChangesNothing)
{
	Do();
	ExpectModule("VelmorantProEditor");
	EXPECT_EQ(ReadDescriptor(), "{\n\t\"FileVersion\": 3,\n\t\"Modules\": [\n\t\t{ \"Name\": \"VelmorantPro\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PreDefault\" },\n\t\t" + ModuleEntry() + "\n\t],\n\t\"Plugins\": [\n\t\t{ \"Name\": \"EditorScriptingUtilities\", \"Enabled\": true },\n\t\t{ \"Name\": \"VariantManagerContent\", \"Enabled\": true }\n\t]\n}\n");
	EXPECT_EQ(Folder.Count(Plugin), 3u) << "the sources, the images and the descriptor";

	const FFolderState Before = Look();
	EXPECT_THAT(Do().Output, HasSubstr("The module is installed already: nothing was changed."));
	EXPECT_EQ(Look(), Before);
}

TEST_F(ModuleInstallation, ChangesOfTheDescriptorWhatItMust)
{
	const std::string Odd = "\xEF\xBB\xBF{ // the toolkit\r\n  \"Odd\" : [1,2 ,{\"a\" :null}],\"FileVersion\" : 3,\r\n  \"Modules\" :\r\n  [\r\n    /* kept */ {\"Name\" : \"VelmorantPro\",  \"Type\" : \"Runtime\"}";
	const std::string OddPlugins = " // of the game\r\n  ],\r\n  \"Plugins\":[{\"Name\" : \"VelmorantSDK\",\"Enabled\" : true}";
	const std::string OddEnd = "/* last */],\r\n  /* \"Modules\" of the past */ \"More\":{}\r\n}";
	const std::string OddModule = ", // of the game\r\n    {\"Name\" : \"VelmorantProEditor\",  \"Type\" : \"Editor\",  \"LoadingPhase\" : \"Default\"}";
	const std::string OddAdded = ", {\"Name\" : \"EditorScriptingUtilities\",\"Enabled\" : true}, {\"Name\" : \"VariantManagerContent\",\"Enabled\" : true}";
	const std::string Plugins = "\"Plugins\": [ { \"Name\": \"EditorScriptingUtilities\", \"Enabled\": true }, { \"Name\": \"VariantManagerContent\", \"Enabled\": true } ]";
	const std::string Lines = "{\n  \"Modules\": [\n    {\n      \"Name\": \"VelmorantPro\"\n    },\n";
	const struct
	{
		const char* Behaviour;
		std::string Before;
		std::string After;
	} Cases[] = {
		{"comments, blanks, order and unknown members stay", Odd + OddPlugins + OddEnd, Odd + OddModule + OddPlugins.substr(15) + OddAdded + OddEnd},
		{"entries over several lines, a comma behind the last", Lines + "  ],\n}\n", Lines + "    {\n      \"Name\": \"VelmorantProEditor\",\n      \"Type\": \"Editor\",\n      \"LoadingPhase\": \"Default\"\n    },\n  ],\n  \"Plugins\": [\n    {\n      \"Name\": \"EditorScriptingUtilities\",\n      \"Enabled\": true\n    },\n    {\n      \"Name\": \"VariantManagerContent\",\n      \"Enabled\": true\n    }\n  ],\n}\n"},
		{"all on one line", "{ \"Modules\": [ { \"Name\": \"VelmorantPro\" } ], \"Plugins\": [] }", "{ \"Modules\": [ { \"Name\": \"VelmorantPro\" }, " + ModuleEntry() + " ], " + Plugins + " }"},
		{"what is there with other values is put right, what is not written may be the default", "{ \"modules\": [ { \"Name\": \"VelmorantPro\" }, { \"name\": \"velmorantproeditor\", \"Type\": \"Runtime\" } ], \"Plugins\": [ { \"Name\": \"EditorScriptingUtilities\", \"Enabled\": false, \"Optional\": true }, { \"Name\": \"VariantManagerContent\" } ] }", "{ \"modules\": [ { \"Name\": \"VelmorantPro\" }, { \"name\": \"velmorantproeditor\", \"Type\": \"Editor\" } ], \"Plugins\": [ { \"Name\": \"EditorScriptingUtilities\", \"Enabled\": true, \"Optional\": true }, { \"Name\": \"VariantManagerContent\", \"Enabled\": true } ] }"},
		{"a list with nothing but a comment", "{\n\t\"Modules\": [ { \"Name\": \"VelmorantPro\" } ],\n\t\"Plugins\": [\n\t\t// none yet\n\t]\n}\n", "{\n\t\"Modules\": [ { \"Name\": \"VelmorantPro\" }, " + ModuleEntry() + " ],\n\t\"Plugins\": [\n\t\t// none yet\n\t\t{ \"Name\": \"EditorScriptingUtilities\", \"Enabled\": true },\n\t\t{ \"Name\": \"VariantManagerContent\", \"Enabled\": true }\n\t]\n}\n"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteDescriptor(Case.Before);
		Do();
		EXPECT_EQ(ReadDescriptor(), Case.After);
		EXPECT_THAT(Do().Output, HasSubstr("nothing was changed"));
	}
}

TEST_F(ModuleInstallation, KeepsTheDescriptorsEncodingAndMode)
{
	WriteDescriptor(std::string("\xFF\xFE{\0 \0}\0", 8));
	EXPECT_EQ(Install().ExitStatus, 1) << "it lists no module of the toolkit";
	const std::string Text = "{\"Modules\":[{\"Name\":\"VelmorantPro\"}],\"By\":\"Jos\xE9\"}"; // Latin-1, a unit each
	std::string Utf16 = "\xFE\xFF";
	for (const char Unit : Text)
	{
		Utf16 += std::string(1, '\0') + Unit;
	}
	WriteDescriptor(Utf16);
	std::filesystem::permissions(GetPath("VelmorantPro.uplugin"), std::filesystem::perms(0640));
	EXPECT_THAT(Do({"--dry-run"}).Output, HasSubstr("-{\"Modules\":[{\"Name\":\"VelmorantPro\"}],\"By\":\"Jos\xC3\xA9\"}\n"));
	Do();
	std::string Found = ReadDescriptor();
	EXPECT_EQ(Found.substr(0, 2), "\xFE\xFF");
	EXPECT_EQ(Found.size() % 2, 0u);
	std::erase(Found, '\0');
	EXPECT_THAT(Found, HasSubstr("[{\"Name\":\"VelmorantPro\"}, {\"Name\":\"VelmorantProEditor\", \"Type\":\"Editor\""));
	EXPECT_THAT(Found, HasSubstr("\"By\":\"Jos\xE9\","));
	EXPECT_EQ(std::filesystem::status(GetPath("VelmorantPro.uplugin")).permissions(), std::filesystem::perms(0640));
}

TEST_F(ModuleInstallation, RefusesWhatIsNotTheToolkitsPlugin)
{
	const std::string File = GetPath("VelmorantPro.uplugin");
	const struct
	{
		const char* Text;
		int ExitStatus;
		std::string Message;
	} Cases[] = {
		{"{\n\t\"Modules\": [\n\t\t{ \"Name\" \"VelmorantPro\" }\n\t]\n}", 3, File + "(3): not valid JSON: a colon is expected. Correct the descriptor."},
		{"{ /* never closed }", 3, File + "(1): not valid JSON: this comment is never closed"},
		{"{ \"Modules\": [ { \"Name\": \"VelmorantPro\" } ] } {}", 3, "nothing may stand behind the object"},
		{"[]", 3, "the file must hold one JSON object in braces"},
		{"{ \"Modules\": {} }", 3, "\"Modules\" must be one list"},
		{"{ \"Modules\": [],\n \"Modules\": [] }", 3, "\"Modules\" must be one list"},
		{"{ \"Modules\": [ { \"Name\": \"VelmorantPro\" },\n{ \"Name\": \"VelmorantPro\" } ] }", 3, File + "(2): \"Modules\" has two entries for VelmorantPro"},
		{"{ \"Plugins\": [ 3 ] }", 3, "each entry of \"Plugins\" must be an object with one \"Name\""},
		{"{ \"Modules\": [ { \"Name\": \"Racing\" } ] }", 1, File + ": does not list the module VelmorantPro"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Text);
		WriteDescriptor(Case.Text);
		const FFolderState Before = Look();
		const FProgramResult Result = Install({"--force"});
		EXPECT_EQ(Result.ExitStatus, Case.ExitStatus);
		EXPECT_THAT(Result.Output + Result.Errors, HasSubstr(Case.Message));
		EXPECT_EQ(Look(), Before);
	}
	std::filesystem::rename(File, GetPath("Racing.uplugin"));
	EXPECT_THAT(Install().Errors, HasSubstr("the folder is that of another plugin, Racing."));
	std::filesystem::remove(GetPath("Racing.uplugin"));
	EXPECT_THAT(Install().Errors, HasSubstr("the folder is no plugin: it has no descriptor."));
	EXPECT_EQ(Install().ExitStatus, 2);
	EXPECT_EQ(FProgramRun::Run({"install", GetPath("Nowhere")}).ExitStatus, 2);
}

TEST_F(ModuleInstallation, ChangesNothingWhereThePluginLacksWhatTheModuleNeeds)
{
	ReplaceInHeader("FontIconHandler.h", "FName FontIconName;", "FName FontName;");
	std::filesystem::remove(GetPath("Source/VelmorantSDK/Public/VelmorantUser.h"));
	std::filesystem::remove(GetPath("Resources/ClassIcons/Icon_WalkChar.png"));
	std::filesystem::remove(GetPath("Resources/Vlm_Color_128x.png"));
	const FFolderState Before = Look();
	const FProgramResult Result = Install({"--force"});
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_THAT(Result.Output, HasSubstr("module expects \"FName FontIconName\" in FFontIconHandler"));
	EXPECT_THAT(Result.Output, testing::ContainsRegex("VelmorantUser.h +missing"));
	for (const char* Image : {"ClassIcons/Icon_WalkChar.png", "Vlm_Color_128x.png"})
	{
		EXPECT_THAT(Result.Output, HasSubstr("\n  " + GetPath("Resources/") + Image + ": is missing, an image of the editor's style"));
	}
	EXPECT_EQ(CountOf(Result.Output, "an image of the editor's style"), 2u);
	EXPECT_EQ(Look(), Before);
}

TEST_F(ModuleInstallation, IsNotKeptBackByNamesThatWereChosenHere)
{
	ReplaceInHeader("VelmorantSDKTypes.h", "FString ProjectName;", "FString DisplayedAs;");
	EXPECT_THAT(Do().Output, HasSubstr("found \"FString DisplayedAs\""));
	ExpectModule("VelmorantProEditor");
}

TEST_F(ModuleInstallation, OverwritesOnlyWhenItIsTold)
{
	Do();
	const std::string Own = Folder.Read(Plugin + "/" + ModuleFile);
	Folder.Write(Plugin + "/" + ModuleFile, "// mine\n");
	Folder.Write(Plugin + "/Source/VelmorantProEditor/Private/OfLastYear.cpp", "");
	std::filesystem::remove(GetPath("Source/VelmorantProEditor/Public/VelmorantProEditor.h"));
	const FFolderState Before = Look();
	FProgramResult Result = Install();
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_THAT(Result.Output, HasSubstr("\n  " + GetPath(ModuleFile) + ": differs from the module's file, and is newer. --force overwrites it.\n"));
	EXPECT_EQ(Look(), Before);

	std::filesystem::last_write_time(GetPath(ModuleFile), std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 30));
	std::filesystem::permissions(GetPath(ModuleFile), std::filesystem::perms(0600));
	EXPECT_THAT(Install().Output, HasSubstr(": differs from the module's file. --force overwrites it.\n"));

	Result = Do({"--force"});
	EXPECT_EQ(Folder.Read(Plugin + "/" + ModuleFile), Own);
	EXPECT_EQ(std::filesystem::status(GetPath(ModuleFile)).permissions(), std::filesystem::perms(0600));
	EXPECT_THAT(Result.Output, HasSubstr(GetPath("Source/VelmorantProEditor/Private/OfLastYear.cpp") + ": is none of the module's files and stays."));
	EXPECT_TRUE(Folder.Exists(Plugin + "/Source/VelmorantProEditor/Private/OfLastYear.cpp"));
	std::filesystem::remove(GetPath("Source/VelmorantProEditor/Private/OfLastYear.cpp"));
	ExpectModule("VelmorantProEditor");
}

TEST_F(ModuleInstallation, TellsOfReadOnlyFilesBeforeAnythingIsWritten)
{
	std::filesystem::permissions(GetPath("VelmorantPro.uplugin"), std::filesystem::perms(0444));
	for (const std::vector<std::string>& Options : {std::vector<std::string>{"--dry-run"}, std::vector<std::string>{}})
	{
		const FFolderState Before = Look();
		const FProgramResult Result = Install(Options);
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_THAT(Result.Errors, HasSubstr(GetPath("VelmorantPro.uplugin") + ": the file is read-only"));
		EXPECT_EQ(Look(), Before);
	}
}

TEST_F(ModuleInstallation, ShowsBeforehandWhatItWouldDo)
{
	Folder.Write(Plugin + "/" + ModuleFile, "// mine\n");
	const FFolderState Before = Look();
	EXPECT_EQ(Install({"--dry-run"}).ExitStatus, 1) << "as without the switch";
	const std::string Shown = Do({"--dry-run", "--force"}).Output;
	EXPECT_EQ(Look(), Before);

	Do({"--force"});
	const std::string Source = Folder.Read(Plugin + "/" + ModuleFile);
	EXPECT_THAT(Shown, HasSubstr("--- " + ModuleFile + "\n+++ " + ModuleFile + "\n@@ -1 +1," + std::to_string(CountOf(Source, "\n")) + " @@\n-// mine\n+// Copyright"));
	EXPECT_THAT(Shown, HasSubstr("--- /dev/null\n+++ Source/VelmorantProEditor/VelmorantProEditor.Build.cs\n@@ -0,0 +1,"));
	EXPECT_THAT(Shown, HasSubstr("--- VelmorantPro.uplugin\n+++ VelmorantPro.uplugin\n@@ -1,6 +1,11 @@\n {\n \t\"FileVersion\": 3,\n \t\"Modules\": [\n-\t\t{ \"Name\": \"VelmorantPro\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PreDefault\" }\n+\t\t{ \"Name\": \"VelmorantPro\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PreDefault\" },\n+\t\t" + ModuleEntry() + "\n+\t],\n+\t\"Plugins\": [\n"));
	EXPECT_EQ(CountOf(Shown, "\n+++ "), CountOf(Shown, "\n--- "));
	EXPECT_THAT(Shown, HasSubstr(std::to_string(CountOf(Shown, "\n+++ ")) + " files to write"));
	EXPECT_THAT(Do({"--dry-run"}).Output, Not(HasSubstr("+++")));
}

TEST_F(ModuleInstallation, LeavesWhereItIsEndedWhatAnotherRunCompletes)
{
	Do();
	const FFolderState Complete = Look();
	const int NumFiles = static_cast<int>(std::count_if(Complete.begin(), Complete.end(), [](const auto& Each) { return Each.first.find("/VelmorantProEditor/") != std::string::npos && Each.second.first != ""; }));
	for (const bool bOverwrite : {false, true})
	{
		int NumKilled = 0;
		bool bKilled = true;
		const auto Next = [NumFiles, bOverwrite](int Rename) { return !bOverwrite && Rename + NumFiles / 4 < NumFiles ? Rename + NumFiles / 4 : std::max(Rename + 1, bOverwrite ? 0 : NumFiles - 1); };
		for (int Rename = 0; bKilled; Rename = Next(Rename)) // of many files alike some, the last ones in every step
		{
			SCOPED_TRACE(std::to_string(Rename) + (bOverwrite ? ", over other files" : ""));
			WriteDescriptor(Descriptor);
			for (const auto& [Path, State] : Complete)
			{
				if (Path.find("/Private/Configurators/") != std::string::npos && Path.ends_with(".cpp") && bOverwrite)
				{
					std::ofstream(Path) << "// of the version before\n";
				}
			}
			if (!bOverwrite)
			{
				std::filesystem::remove_all(GetPath("Source/VelmorantProEditor"));
			}
			bKilled = InstallUntil(Rename, bOverwrite);
			NumKilled += bKilled;
			if (bKilled)
			{
				EXPECT_EQ(ReadDescriptor(), Descriptor) << "it is the last";
			}
			Do(bOverwrite ? std::vector<std::string>{"--force"} : std::vector<std::string>{});
			const FFolderState After = Look();
			ASSERT_EQ(After.size(), Complete.size());
			for (const auto& [Path, State] : Complete)
			{
				EXPECT_EQ(After.at(Path).first, State.first) << Path;
			}
		}
		EXPECT_GT(NumKilled, 6);
	}
}

TEST_F(ModuleInstallation, TakesTheModuleFromBesideAnInstalledProgram)
{
	const std::string Built = FProgramRun::Program;
	const std::filesystem::path Prefix = Folder.GetNative("Installed");
	const std::string Command = "\"" VELMORANT_CMAKE "\" --install \"" VELMORANT_BINARY_DIR "/..\" --prefix '" + Prefix.string() + "' >/dev/null";
	ASSERT_EQ(std::system(Command.c_str()), 0) << Command;
	FProgramRun::Program = (Prefix / "bin/velmorant").string();
	Do();
	ExpectModule("VelmorantProEditor");
	std::filesystem::remove(Prefix / "share/velmorant/Docs/Companions.md");
	const FProgramResult Result = Compare();
	EXPECT_EQ(Result.ExitStatus, 3);
	EXPECT_THAT(Result.Errors, HasSubstr("Companions.md: the tables of what the module expects of its companions are not there, or not readable. Restore the file"));
	FProgramRun::Program = Built;
}

TEST_F(ModuleInstallation, BringsTheTestsForTheEngineWhenAsked)
{
	if (!std::filesystem::exists(Sources / "Source/VelmorantProEditorTests"))
	{
		const FFolderState Before = Look();
		const FProgramResult Result = Install({"--with-tests"});
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_THAT(Result.Errors, HasSubstr("VelmorantProEditorTests does not come with this program. Install without --with-tests."));
		EXPECT_EQ(Look(), Before);
		return;
	}
	Do();
	EXPECT_FALSE(Folder.Exists(Plugin + "/Source/VelmorantProEditorTests"));
	Do({"--with-tests"});
	ExpectModule("VelmorantProEditor");
	ExpectModule("VelmorantProEditorTests");
	EXPECT_THAT(ReadDescriptor(), HasSubstr(ModuleEntry() + ",\n\t\t{ \"Name\": \"VelmorantProEditorTests\", \"Type\": \"Editor\", \"LoadingPhase\": \"Default\" }\n\t]"));
	EXPECT_THAT(Do({"--with-tests"}).Output, HasSubstr("nothing was changed"));
}
