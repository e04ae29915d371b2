// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** The toolbar's menu, from scripts. */
class MenuScript : public FProjectOnDisk
{
protected:
	MenuScript() { CopySample(); }
};

TEST_F(MenuScript, ADesignerSignsInByWayOfTheMenu)
{
	const FProgramResult Result = Do(
		"print toolbar\n"
		"open menu VelmorantMenu\n"
		"expect menu VelmorantMenu\n"
		"print snapshot VelmorantMenu\n"
		"expect widget VelmorantMenu UserName value \"Developer not registered\"\n"
		"click VelmorantMenu Login\n"
		"expect no menu VelmorantMenu\n"
		"expect panel VelmorantDeveloperPanel\n"
		"type VelmorantDeveloperPanel UserName lucia\n"
		"type VelmorantDeveloperPanel UserPassword harbor-2026\n"
		"click VelmorantDeveloperPanel SummitButton\n"
		"wait 1\n"
		"open menu Velmorant\n" // by the button's label
		"expect widget Velmorant UserName value \"Lucía Ferrer\"\n"
		"expect widget Velmorant UserEmail value lucia.ferrer@harbortower.example\n"
		"close Velmorant\n"
		"expect no menu Velmorant\n"
		"close VelmorantDeveloperPanel\n"
		"expect no panel VelmorantDeveloperPanel\n");
	EXPECT_NE(Result.Output.find("menu button VelmorantMenu [Velmorant] (icon: Velmorant.Editor.LogoRamp, tip: Tools for Velmorant)"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("section VelmorantAbout [About Velmorant]"), std::string::npos) << Result.Output;
}

TEST_F(MenuScript, ATabThatIsClosedIsGoneUnderAllItsNames)
{
	Do(
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
		"expect panel VelmorantDeveloperPanel\n" // the tab's own
		"close Dev\n"
		"expect no panel VelmorantDeveloperPanel\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu Login\n"
		"expect panel VelmorantDeveloperPanel\n");
}

TEST_F(MenuScript, AClickElsewhereClosesTheMenu)
{
	Do(
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
		"open menu VelmorantMenu\n"
		"print snapshot Dev\n" // looking at something is no click
		"expect menu VelmorantMenu\n"
		"type Dev UserName lucia\n"
		"expect no menu VelmorantMenu\n"
		"open menu VelmorantMenu\n"
		"expect widget VelmorantMenu UserName value \"Developer not registered\"\n");
}

TEST_F(MenuScript, EntriesLeadToToolsPagesAndTheClipboard)
{
	const FProgramResult Result = Do(
		"open menu VelmorantMenu\n"
		"expect widget VelmorantMenu \"Unit Volume Tools\" state enabled tooltip \"Open the tool to convert StaticMesh to UnitVolume\"\n"
		"click VelmorantMenu \"Unit Volume Tools\"\n"
		"expect log \"Editor widget launched successfully.\" category LogTemp\n"
		"print snapshot VelmorantEditorTool_StaticMeshToUnitVolume\n"
		"expect widget VelmorantEditorTool_StaticMeshToUnitVolume AssignUnits state enabled\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu \"Velmorant SDK Settings\"\n"
		"expect settings VelmorantSDKSettings category Plugins container Project\n"
		"expect panel VelmorantSDKSettings\n"
		"print snapshot VelmorantSDKSettings\n"
		"print settings\n"
		"type VelmorantSDKSettings ApiKey my-own-key\n"
		"expect property default:VelmorantSDKSettings ApiKey my-own-key\n"
		"expect file Config/DefaultGame.ini line ApiKey=my-own-key\n"
		"expect no unsaved\n"
		"close VelmorantSDKSettings\n"
		"expect no settings VelmorantSDKSettings\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu OpenDocPage\n"
		"expect url https://docs.velmorant.example/unreal\n"
		"expect no url https://docs.velmorant.example\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu VelmorantVersion\n"
		"expect clipboard 3.1.0\n"
		"print urls\n");
	EXPECT_NE(Result.Output.find("web page: https://docs.velmorant.example/unreal"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("Project/Plugins/VelmorantSDKSettings (shows)"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("text \"Project - Plugins - Velmorant SDK Settings\""), std::string::npos) << Result.Output;
}

TEST_F(MenuScript, WhatIsNotThereIsNamed)
{
	const struct
	{
		const char* Behaviour;
		std::string Script;
		int Status;
		std::string Message;
	} Cases[] = {
		{"no such button", "open menu Paint\n", 3, "(1): error: There is no widget \"Paint\". The toolbar's menus are: VelmorantMenu"},
		{"no menu of a button that is not there", "expect no menu Paint\n", 3, "(1): error: There is no widget \"Paint\". The toolbar's menus are: VelmorantMenu"},
		{"a part of the toolbar that is no button", "open menu PluginTools\n", 3, "(1): error: \"PluginTools\" opens no menu. The toolbar's menus are: VelmorantMenu"},
		{"a menu that is closed", "click VelmorantMenu Login\n", 3, "(1): error: the menu of the toolbar's button VelmorantMenu is not open; open it with: open menu VelmorantMenu"},
		{"a menu that closed after a choice", "open menu VelmorantMenu\nclick VelmorantMenu OpenDocPage\nclick VelmorantMenu OpenDocPage\n", 3, "(3): error: the menu of the toolbar's button VelmorantMenu is not open"},
		{"no such entry", "open menu VelmorantMenu\nclick VelmorantMenu \"Unit Volumes\"\n", 3, "(2): error: There is no widget \"Unit Volumes\"."},
		{"no page shows", "expect settings VelmorantSDKSettings\n", 1, "no settings page shows"},
		{"another page shows", "open menu VelmorantMenu\nclick VelmorantMenu \"Velmorant Pro Settings\"\nexpect settings VelmorantSDKSettings\n", 1, "the page that shows is Project/Plugins/VelmorantProSettings"},
		{"no web page", "expect url https://example.com\n", 1, "no web page was opened"},
		{"closing what is not open", "close VelmorantMenu\n", 3, "is not open"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = RunScript(Case.Script);
		EXPECT_EQ(Result.ExitStatus, Case.Status) << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
	}
}

TEST_F(MenuScript, OpenedPagesAreInTheJsonReport)
{
	const FProgramResult Result = RunScript("open menu VelmorantMenu\nclick VelmorantMenu OpenSupportPage\n", {"--json"});
	EXPECT_EQ(Result.ExitStatus, 0) << Result.Errors;
	EXPECT_NE(Result.Output.find("\"urls\":[\"https://support.velmorant.example/tickets/new\"]"), std::string::npos) << Result.Output;
}
