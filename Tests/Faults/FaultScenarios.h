// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CollisionIni.h"
#include "PluginOnDisk.h"
#include "ProjectOnDisk.h"

#include <string>
#include <vector>

class FFaultProject;

/** Something that writes, on a project of its own. */
struct FFaultScenario
{
	std::string Name;
	void (*Prepare)(const FFaultProject&); // in a new folder
	std::vector<std::string> Arguments; // those that begin with "./" lie in the folder
	std::vector<int> LaterStatus = {0}; // what the next run may end with
	bool bKills = false; // ended at random times as well
};

/** Projects to write in. */
class FFaultProject : public FProjectOnDisk
{
public:
	void MakeBroken() const
	{
		MakeProject();
		WriteIni("[Foreign]\nKey=1\n" + CollisionIni::SectionLine + CollisionIni::GlassLine + "; of others\n");
	}

	void MakeRepaired() const
	{
		MakeBroken();
		Check({"--repair"});
	}

	/** The sample, with what First does. Then is what the run is about to do. */
	void MakeSample(const std::string& Then, const std::string& First = {}) const
	{
		CopySample();
		if (!First.empty())
		{
			Do(First);
		}
		Folder.Write("test.velscript", Then);
	}

	void MakeIcons() const
	{
		Folder.Write("Package/metadata/icon-families.json", R"({"kite": {"unicode": "1fa81", "label": "Kite", "familyStylesByLicense": {"free": [{"family": "classic", "style": "solid"}]}}})");
		Folder.Write("Package/webfonts/fa-solid-900.ttf", std::string("\0\1\0\0", 4) + "the rest of a font");
		MakeSample("import icons ../Package as Toys into /Game/UI/Toys\nsave\n");
	}

	void MakePlugin() const { PluginOnDisk::Make(Folder, "Plugin"); }

	/** Most of it is installed, so that not every run copies all of the module. */
	void MakeOutdatedPlugin() const
	{
		const std::string Module = "Plugin/Source/VelmorantProEditor/";
		MakePlugin();
		const std::string Descriptor = Folder.Read("Plugin/VelmorantPro.uplugin");
		EXPECT_EQ(FProgramRun::Run({"install", Folder.GetNative("Plugin").string()}, GetEnvironment()).ExitStatus, 0);
		Folder.Write("Plugin/VelmorantPro.uplugin", Descriptor);
		Folder.Write(Module + "Private/VelmorantProEditor.cpp", "of an earlier version");
		std::filesystem::remove(Folder.GetNative(Module + "VelmorantProEditor.Build.cs"));
	}

	using FProjectOnDisk::MakeBareProject;
	using FProjectOnDisk::MakeProject;

	void TestBody() override {}
};

namespace FaultScenarios
{
	inline const std::string OpenLogin = "open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Login\n";
	inline const std::string Name = "type Login UserName lucia\ntype Login UserPassword harbor-2026\n";
	inline const std::string SignIn = "click Login SummitButton\nwait 1\nexpect widget Login LoginStatus value \"Signed in as lucia\"\nwait 0.5\n";
	inline const std::string Remember = OpenLogin + Name + "check Login RememberUserCheckBox\n" + SignIn;
	inline const std::string Choose = "choose Login ProjectSelection \"Harbor Tower\"\nclick Login SetAsDefault\nwait 0.5\n";
	inline const std::string Settings = "open menu VelmorantMenu\nclick VelmorantMenu \"Velmorant SDK Settings\"\ntype VelmorantSDKSettings ApiKey ";
	inline const std::string MakeAsset = "make asset VelmorantConfiguratorDataAsset /Game/Flats/Garden\n";
	inline const std::string MoveActor = "open level /Game/Maps/HarborTower\nmove actor \"Spot roof terrace\" \"X=1 Y=2 Z=3\"\n";

	inline const std::vector<std::string> RunScript = {"run", "./Project", "./test.velscript"};

	inline std::vector<FFaultScenario> MakeAll()
	{
		using FProject = const FFaultProject&;
		return {
			{"Repair", [](FProject Project) { Project.MakeBroken(); }, {"check", "./Project", "--repair"}, {0}, true},
			{"RepairOfANewFile", [](FProject Project) { Project.MakeBareProject(); }, {"check", "./Project", "--repair"}, {0}, true},
			{"Undo", [](FProject Project) { Project.MakeRepaired(); }, {"check", "./Project", "--undo"}, {0, 1, 2}, true}, // it may have been done
			{"RepairInTheEditor", [](FProject Project) { Project.MakeSample("press \"Add to Project Config\"\npress \"Restart Editor\"\n"); }, RunScript, {0, 1, 3}},
			{"NewAsset", [](FProject Project) { Project.MakeSample(MakeAsset + "save\n"); }, RunScript, {0, 3}, true}, // it may be there
			{"AssetAndLevel", [](FProject Project) { Project.MakeSample(MoveActor + "inspect /Game/Flats/Garden\ntype Details ConfiguratorName \"Garden Flat\"\nsave\n", MakeAsset + "save\n"); }, RunScript, {0}, true},
			{"AssetsGone", [](FProject Project) { Project.MakeSample("answer DeleteAssets Delete\ndelete assets /Game/Flats/Garden\n", MakeAsset + "save\n"); }, RunScript, {0, 3}}, // it may be gone
			{"SignIn", [](FProject Project) { Project.MakeSample(Remember + Choose); }, RunScript, {0}, true},
			{"Forget", [](FProject Project) { Project.MakeSample(OpenLogin + Name + "uncheck Login RememberUserCheckBox\n" + SignIn, Remember); }, RunScript},
			{"Settings", [](FProject Project) { Project.MakeSample(Settings + "my-own-key\n", Remember + Choose); }, RunScript, {0}, true},
			{"Icons", [](FProject Project) { Project.MakeIcons(); }, RunScript},
			{"Report", [](FProject Project) { Project.MakeProject(); }, {"automation", "./Project", "Engine.Delegates", "--report", "./Report"}},
			{"Installation", [](FProject Project) { Project.MakeOutdatedPlugin(); }, {"install", "./Plugin", "--force"}},
		};
	}
}
