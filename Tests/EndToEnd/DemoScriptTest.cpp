// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>
#include <sstream>

class DemoScript : public FProjectOnDisk
{
protected:
	DemoScript() { CopySample(); }

	FProgramResult RunDemo(const std::vector<std::string>& Options = {}, const char* Script = "Demo") const
	{
		std::vector<std::string> Arguments = {"run", GetProject(), VELMORANT_SOURCE_DIR "/Samples/" + std::string(Script) + ".velscript"};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments, GetEnvironment());
	}
};

TEST_F(DemoScript, GoesFromTheMissingProfileToTheActorInTheLevel)
{
	const FProgramResult Result = RunDemo();
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
	EXPECT_EQ(Result.Errors, "");
	for (const char* Shown : {"Velmorant: Missing UnitVolume Profile", "Restart Editor Required", "Checked UnitVolume DefaultChannelResponses and profile exist.", "Signed in as lucia",
			 "Success Configuration Creation", "Success Configuration Create LevelVariantSet", "Kitchen - Worktop", "Pro: steam oven"})
	{
		EXPECT_NE(Result.Output.find(Shown), std::string::npos) << Shown << " is missing in:\n"
																<< Result.Output;
	}
	EXPECT_EQ(CountOf(ReadIni(), CollisionIni::ProfileLine + CollisionIni::ChannelLine), 1u);
	EXPECT_TRUE(Folder.Exists("Project/Content/Velmorant/Configurator/Configurator_GardenFlat.uasset.json"));
	EXPECT_TRUE(Folder.Exists("Project/Content/Velmorant/Configurator/LevelVariant_Garden_Flat.uasset.json"));
	EXPECT_NE(Folder.Read("Project/Content/Maps/HarborTower.umap.json").find("LevelVariant_Garden_Flat"), std::string::npos);
	EXPECT_NE(Folder.Read("Project/Config/DefaultGame.ini").find("ht-7f3c-91d2-demo"), std::string::npos);
}

TEST_F(DemoScript, ToursEveryPanelMenuAndPicker)
{
	for (const bool bAfterTheDemo : {false, true})
	{
		SCOPED_TRACE(bAfterTheDemo);
		std::filesystem::remove_all(Folder.GetNative("Project"));
		CopySample();
		if (bAfterTheDemo)
		{
			ASSERT_EQ(RunDemo().ExitStatus, 0);
		}
		const FProgramResult Result = RunDemo({}, "Tour");
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		EXPECT_EQ(Result.Errors, "");
		for (const char* Shown : {"section VelmorantTools [Velmorant Tools]", "[Developer Panel]", "image DevImage", "list ItemList (3 items)", "Project - Plugins - Velmorant SDK Settings", "web page: ",
				 "text Identifier \"HT-B-01B\"", "edit MoveX [Move right] \"24\"", "tiles (2 items, 35 x 35 each)", "combo \"White\""})
		{
			EXPECT_NE(Result.Output.find(Shown), std::string::npos) << Shown << " is missing in:\n"
																	<< Result.Output;
		}
	}
	EXPECT_NE(Folder.Read("Project/Content/Maps/HarborTower.umap.json").find("\"wave\""), std::string::npos);
}

TEST_F(DemoScript, ShowsThePasswordNowhereAndKeepsItOutOfTheProject)
{
	const std::string Password = "harbor-2026";
	for (const bool bJson : {false, true})
	{
		std::filesystem::remove_all(Folder.GetNative("Project"));
		CopySample();
		const FProgramResult Result = RunDemo(bJson ? std::vector<std::string>{"--json"} : std::vector<std::string>{});
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Errors;
		EXPECT_EQ((Result.Output + Result.Errors).find(Password), std::string::npos) << Result.Output << Result.Errors;
		EXPECT_NE(Result.Output.find("type Developer UserPassword"), std::string::npos) << Result.Output << "the step itself shows";
	}
	for (const auto& [File, State] : LookAtFolder(Folder.GetNative("Project")))
	{
		const bool bServiceData = std::filesystem::path(File).filename() == "VelmorantService.json";
		EXPECT_TRUE(bServiceData || State.first.find(Password) == std::string::npos) << File;
	}
}

TEST_F(DemoScript, JsonHasAnObjectForEachStepAndOneForTheEnd)
{
	const FProgramResult Result = RunDemo({"--json"});
	std::vector<nlohmann::json> Lines;
	std::istringstream Stream(Result.Output);
	for (std::string Line; std::getline(Stream, Line);)
	{
		Lines.push_back(nlohmann::json::parse(Line, nullptr, false));
		ASSERT_TRUE(Lines.back().is_object()) << Line;
	}
	ASSERT_GT(Lines.size(), 30u);
	EXPECT_EQ(Lines.back().value("status", -1), 0);
	EXPECT_EQ(Lines.back()["unsaved"].size(), 0u);
	EXPECT_EQ(Lines.back().value("steps", size_t(0)), Lines.size() - 2) << "all but the start and the end are steps of the script";
	bool bMissingShown = false;
	for (const nlohmann::json& Line : Lines)
	{
		for (const nlohmann::json& Notification : Line.value("notifications", nlohmann::json::array()))
		{
			bMissingShown |= Notification.value("title", "") == "Velmorant: Missing UnitVolume Profile" && Notification["buttons"] == nlohmann::json({"Add to Project Config", "Skip"});
		}
	}
	EXPECT_TRUE(bMissingShown) << Result.Output;
}

TEST_F(DemoScript, ASecondRunFailsBecauseTheProfileIsThere)
{
	ASSERT_EQ(RunDemo().ExitStatus, 0);
	const FProgramResult Again = RunDemo();
	EXPECT_EQ(Again.ExitStatus, 1) << Again.Output;
	EXPECT_NE(Again.Errors.find("Demo.velscript("), std::string::npos) << Again.Errors;
}
