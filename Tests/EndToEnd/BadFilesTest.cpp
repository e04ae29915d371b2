// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <sys/stat.h>

/** Files that hold what no person would put there. */
class BadFiles : public FProjectOnDisk
{
protected:
	static inline const std::string Long = std::string(1100, 'a');

	void Replace(const std::string& File, const std::string& From, const std::string& To) const
	{
		std::string Text = Folder.Read(File);
		const size_t Found = Text.find(From);
		ASSERT_NE(Found, std::string::npos) << From;
		Folder.Write(File, Text.replace(Found, From.size(), To));
	}

	/** Puts what reads without an end, or for too long, in the place of a file. */
	void PutInPlace(const std::string& Kind, const std::string& File) const
	{
		const std::filesystem::path Path = Folder.GetNative(File);
		std::filesystem::create_directories(Path.parent_path());
		std::filesystem::remove(Path);
		if (Kind == "pipe")
		{
			ASSERT_EQ(mkfifo(Path.c_str(), 0600), 0);
		}
		else if (Kind == "device")
		{
			std::filesystem::create_symlink("/dev/zero", Path);
		}
		else
		{
			std::ofstream(Path).put('\n');
			std::filesystem::resize_file(Path, (256u << 20) + 1);
		}
	}
};

TEST_F(BadFiles, OnlyRegularFilesUpToALimitAreRead)
{
	MakeProject();
	Folder.Write("test.velscript", "wait 0\n");
	const struct
	{
		const char* Kind;
		const char* Message;
	} Cases[] = {
		{"pipe", " is no ordinary file"},
		{"device", " is no ordinary file"},
		{"large", " is larger than 256 MB and is not read"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Kind);
		PutInPlace(Case.Kind, IniFile);
		for (const std::vector<std::string>& Arguments : {std::vector<std::string>{"check", GetProject()}, {"check", GetProject(), "--repair"}, {"run", GetProject(), GetScript()}})
		{
			SCOPED_TRACE(testing::PrintToString(Arguments));
			const FProgramResult Result = FProgramRun::Run(Arguments, GetEnvironment());
			EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
			EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		}
		std::filesystem::remove(Folder.GetNative(IniFile));

		PutInPlace(Case.Kind, "odd.velscript");
		const FProgramResult Script = FProgramRun::Run({"run", GetProject(), Folder.GetNative("odd.velscript").string()}, GetEnvironment());
		EXPECT_EQ(Script.ExitStatus, 3);
		EXPECT_EQ(Script.Errors.find(Folder.GetNative("odd.velscript").string() + ": "), 0u) << Script.Errors;
		EXPECT_NE(Script.Errors.find(Case.Message), std::string::npos) << Script.Errors;
	}
}

TEST_F(BadFiles, UnusableServiceDataEndsARunWithThree)
{
	CopySample();
	const std::string Service = Folder.GetNative("Service.json").string();
	const struct
	{
		const char* Behaviour;
		std::string Data;
		std::string Message;
	} Cases[] = {
		{"no JSON", "{ \"users\": [\n{ \"password\": \"pa55", "Service.json: line 2: this is not JSON: "},
		{"a number beyond all bounds", "{\n \"delaySeconds\": 1e999 }", "Service.json: line 2: this is not JSON: the number in column 18 is out of range"},
		{"a delay of ages", "{ \"delaySeconds\": 1e300 }", "Service.json: /delaySeconds: must be a number of seconds"},
		{"a user without password", "{ \"users\": [ { \"userName\": \"lucia\" } ], \"projects\": [] }", "Service.json: /users/0: misses \"password\""},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Folder.Write("Service.json", Case.Data);
		const FProgramResult Result = RunScript(
			"open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\ntype Login UserName lucia\ntype Login UserPassword harbor-2026\n"
			"click Login SummitButton\nwait 1\nprint snapshot Login\n",
			{"--service", Service});
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
		EXPECT_NE(Result.Output.find("The service's data cannot be used."), std::string::npos) << Result.Output;
		EXPECT_EQ(Result.Output.find("Check user name and password"), std::string::npos);
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ((Result.Output + Result.Errors).find("pa55"), std::string::npos) << "what stands in the data may be secret";
		ExpectOwnWords(Result);
	}
}

TEST_F(BadFiles, NumbersAndNamesOutOfRangeAreToldWithTheirPlace)
{
	const std::string Game = "Config/DefaultGame.ini";
	const std::string Level = "Content/Maps/HarborTower.umap.json";
	const std::string Asset = "Content/Minimap/HarborTowerFloors.uasset.json";
	const std::string Layout = "Content/Panel.uasset.json";
	const std::string Head = "{\"Class\": \"/Script/UMGEditor.WidgetBlueprint\", \"ParentClass\": \"/Script/Blutility.EditorUtilityWidget\", ";
	const struct
	{
		const char* Behaviour;
		std::string File;
		std::string Text; // empty: nothing is written
		std::string Step;
		std::string Message;
	} Cases[] = {
		{"a version that no number holds", "HarborTower.uproject", "{\n \"FileVersion\": 1e999 }", "wait 0", "HarborTower.uproject(2): not valid JSON: column 17: the number 1e999 is out of range"},
		{"a version beyond 32 bits", "Plugins/Extra/Extra.uplugin", "{ \"Version\": 3000000000 }", "wait 0", "Extra.uplugin: \"Version\" must be a whole number from"},
		{"a module's name", "HarborTower.uproject", "{ \"Modules\": [ { \"Name\": \"" + Long + "\" } ] }", "wait 0", "\"Modules[0].Name\" must be the name of a module"},
		{"an asset's number", Asset, "{\"Class\": \"/Script/VelmorantPro.MinimapConfigAsset\", \"Format\": 1,\n\"Objects\": [ 1e999 ] }", "print property /Game/Minimap/HarborTowerFloors X", "HarborTowerFloors.uasset.json(2): not valid JSON: column 14: the number 1e999 is out of range"},
		{"an asset's class", Asset, "{\"Class\": \"/Script/" + Long + "." + Long + "\", \"Format\": 1, \"Objects\": [] }", "print property /Game/Minimap/HarborTowerFloors X", "HarborTowerFloors.uasset.json: "},
		{"an object's name", Asset, "{\"Class\": \"/Script/VelmorantPro.MinimapConfigAsset\", \"Format\": 1, \"Objects\": [ {\"Name\": \"" + Long + "\", \"Class\": \"/Script/VelmorantPro.MinimapConfigAsset\"} ] }", "print property /Game/Minimap/HarborTowerFloors X", "HarborTowerFloors.uasset.json: /Objects/0: "},
		{"a layout's number", Layout, Head + "\n\"Tree\": 1e999}", "open /Game/Panel", "Panel.uasset.json(2): not valid JSON: column 9: the number 1e999 is out of range"},
		{"a widget's name", Layout, Head + "\"Tree\": {\"Class\": \"VerticalBox\", \"Name\": \"" + Long + "\"}}", "open /Game/Panel", "/Tree/Name: a name has more than 900 characters"},
		{"a property's name", Layout, Head + "\"Tree\": {\"Class\": \"VerticalBox\", \"Properties\": {\"" + Long + "\": 1}}}", "open /Game/Panel", "a name has more than 900 characters"},
		{"a name in braces", Layout, Head + "\"Tree\": {\"Class\": \"TextBlock\", \"Properties\": {\"Text\": \"{" + Long + "}\"}}}", "open /Game/Panel", "/Tree/Properties/Text: a name in braces has more than 900 characters"},
		{"a setting", Game, "[/Script/VelmorantProUI.VelmorantProUISettings]\n+FontIcons=(FontID=\"" + Long + "\")\n", "print property default:VelmorantProUISettings FontIcons", "DefaultGame.ini(2): [/Script/VelmorantProUI.VelmorantProUISettings] FontIcons: "},
		{"a word of the script", "", "", "print property default:" + Long + " A", "there is no class"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		std::filesystem::remove_all(Folder.GetNative("Project"));
		CopySample();
		if (!Case.File.empty())
		{
			Folder.Write("Project/" + Case.File, Case.Text);
		}
		const FProgramResult Result = RunScript(Case.Step + "\n");
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		ExpectOwnWords(Result);
	}
}

TEST_F(BadFiles, LongWordsOfAScriptAreNoNames)
{
	CopySample();
	for (const std::string Step : {"select /Game/", "print log ", "expect no log x category ", "print assets ", "expect no settings ", "answer ", "action ", "click X ", "print property ", "expect no actors ",
			 "open menu ", "print icons ", "expect no icon HarborIcons ", "call VelmorantEditorUtilitiesLibrary.", "call ", "place ", "open level /Game/", "save level /Game/", "inspect default:", "press ",
			 "open /Game/", "expect no asset /Game/", "call VelmorantEditorUtilitiesLibrary.CreateConfiguratorDataAssetFromConfigurator ", "import icons . as ", "print variants /Game/", "print snapshot "})
	{
		SCOPED_TRACE(Step);
		ExpectOwnWords(RunScript(Step + Long + "\n"));
		ExpectOwnWords(RunScript(Step + Long + " 1\n"));
	}
}
