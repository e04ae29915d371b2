// Copyright Velmorant. All Rights Reserved.

#include "CollisionIni.h"
#include "ProjectOnDisk.h"

using namespace CollisionIni;

/** The program started as build servers start an editor. */
class BuildServer : public FProjectOnDisk
{
protected:
	static inline const std::vector<std::vector<std::string>> Switches = {{"--unattended"}, {"--unattended", "--nullrhi"}, {"--no-notifications"}, {"--commandlet"}, {"--commandlet", "--unattended", "--no-notifications"}};

	static bool ShowsNotifications(const std::vector<std::string>& Options) { return Options[0] == "--unattended"; }
};

TEST_F(BuildServer, TheVerdictIsTheSameHoweverItIsTold)
{
	MakeProject();
	for (const std::vector<std::string>& Options : Switches)
	{
		SCOPED_TRACE(testing::PrintToString(Options));
		WriteIni(SectionLine + GlassLine);
		const FProgramResult Missing = Check(Options);
		EXPECT_EQ(Missing.ExitStatus, 1) << Missing.Output << Missing.Errors;
		EXPECT_EQ(CountOf(Missing.Output, "Notification not shown: Velmorant: Missing UnitVolume Profile: "), ShowsNotifications(Options) ? 0u : 1u) << Missing.Output;
		EXPECT_EQ(CountOf(Missing.Output, "  Notification: Velmorant: Missing UnitVolume Profile\n"), ShowsNotifications(Options) ? 1u : 0u) << Missing.Output;
		EXPECT_EQ(Missing.Errors, "");

		std::vector<std::string> WithDifference = Options;
		WithDifference.push_back("--diff");
		EXPECT_EQ(CountOf(Check(WithDifference).Output, "+" + ProfileLine + "+" + ChannelLine), 1u);
		EXPECT_EQ(ReadIni(), SectionLine + GlassLine);

		WriteIni(SectionLine + ProfileLine + ChannelLine);
		EXPECT_EQ(Check(Options).ExitStatus, 0);
	}
}

TEST_F(BuildServer, ARepairNeedsButtonsToPress)
{
	MakeProject();
	WriteIni(SectionLine + GlassLine);
	for (const char* Switch : {"--no-notifications", "--commandlet"})
	{
		const FProgramResult Result = Check({"--repair", Switch});
		EXPECT_EQ(Result.ExitStatus, 2) << Switch;
		EXPECT_NE(Result.Errors.find(Switch), std::string::npos) << Result.Errors;
		EXPECT_EQ(ReadIni(), SectionLine + GlassLine);
	}
	EXPECT_EQ(Check({"--repair", "--unattended", "--nullrhi"}).ExitStatus, 0) << "the program presses them";
}

TEST_F(BuildServer, ScriptsCallOperationsWithoutAUserInterface)
{
	CopySample();
	for (const std::vector<std::string>& Options : Switches)
	{
		SCOPED_TRACE(testing::PrintToString(Options));
		const FProgramResult Result = Do(
			"call VelmorantEditorUtilitiesLibrary.CopyToClipboard text why\n"
			"expect clipboard text\n"
			"call VelmorantEditorUtilitiesLibrary.FillOutLevelVariantWithConfigurator None None\n"
			"expect result false\n"
			"restart\n"
			"call VelmorantEditorUtilitiesLibrary.CheckForUnitVolumeCollisionProfile\n",
			Options);
		EXPECT_EQ(CountOf(Result.Output, "Notification not shown: Copied to Clipboard: why"), ShowsNotifications(Options) ? 0u : 1u) << Result.Output;
		EXPECT_EQ(CountOf(Result.Output, "Notification not shown: Fail to Fill Out Level Variant: Level variant is null"), ShowsNotifications(Options) ? 0u : 1u) << Result.Output;
	}
}

TEST_F(BuildServer, WhatNeedsAUserInterfaceSaysSo)
{
	CopySample();
	const std::string None = "there is no user interface";
	for (const char* Line : {"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel", "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel", "open menu VelmorantMenu", "print toolbar", "inspect default:VelmorantSDKSettings", "click Developer SummitButton"})
	{
		SCOPED_TRACE(Line);
		const FProgramResult Result = RunScript(std::string(Line) + "\n", {"--commandlet"});
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_NE(Result.Errors.find("test.velscript(1): error: "), std::string::npos) << Result.Errors;
		EXPECT_NE(Result.Errors.find(None), std::string::npos) << Result.Errors;
	}
}

TEST_F(BuildServer, AnUnattendedEditorTakesNoAnswers)
{
	CopySample();
	const std::string Lines =
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
		"type Dev UserName lucia\ntype Dev UserPassword harbor-2026\nclick Dev SummitButton\nwait 1\n"
		"choose Dev ProjectSelection \"Harbor Tower\"\nwait 1\n"
		"answer SaveAsset Cancel\n"
		"call VelmorantEditorUtilitiesLibrary.CreateConfiguratorDataAssetFromConfigurator \"Garden Flat\"\n";
	Do(Lines + "expect no asset /Game/Velmorant/Configurator/Configurator_GardenFlat\n");
	const FProgramResult Result = Do(Lines + "expect asset /Game/Velmorant/Configurator/Configurator_GardenFlat\nexpect question SaveAsset choice Save\n", {"--unattended"});
	EXPECT_NE(Result.Errors.find("test.velscript(8): warning: nothing asked for this answer"), std::string::npos) << Result.Errors;
}
