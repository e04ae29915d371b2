// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** The panels of the toolkit's own content, on the sample. */
class ToolPanels : public FProjectOnDisk
{
protected:
	ToolPanels() { CopySample(); }

	void Do(const std::string& Script) const
	{
		const FProgramResult Result = FProjectOnDisk::Do(Script);
		EXPECT_EQ(Result.Errors.find("/EditorHelpers/"), std::string::npos) << Result.Errors; // a layout with a fault
	}

	/** Signed in, with the project's data there. */
	static inline const std::string SignIn =
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
		"expect widget Dev LogoutButton state hidden\n"
		"type Dev UserName lucia\n"
		"type Dev UserPassword harbor-2026\n"
		"click Dev SummitButton\n"
		"wait 1\n"
		"choose Dev ProjectSelection \"Harbor Tower\"\n"
		"wait 1\n";

	static inline const std::string OpenMinimap = "open /VelmorantPro/EditorHelpers/MinimapTool/VelmorantMinimapTool as Map\n";

	static inline const std::string OpenVolumeTools = "open /VelmorantPro/EditorHelpers/ToolsWidget/UnitVolumeTools/VelmorantEditorTool_StaticMeshToUnitVolume as Volumes\n";
};

TEST_F(ToolPanels, ShowsTheDeveloperAndSignsOut)
{
	Do(SignIn +
		"expect widget Dev DevName value \"Lucía Ferrer\"\n"
		"expect widget Dev DevEmail value lucia.ferrer@harbortower.example\n"
		"expect widget Dev CheckedState state unchecked\n"
		"check Dev CheckedState\n"
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/DeveloperInfoPanel as Info\n"
		"expect widget Info CheckedState state checked\n"
		"print snapshot Dev\n"
		"click Dev LogoutButton\n"
		"expect widget Dev LogoutButton state hidden\n");
}

TEST_F(ToolPanels, SignedOutNothingOfTheDeveloperShows)
{
	Do(SignIn +
		"click Dev LogoutButton\n"
		"expect widget Dev LoginStatus value \"\"\n"
		"expect widget Dev ProjectSelection state hidden\n"
		"expect widget Dev ItemList state hidden\n"
		"type Dev UserName guest\n"
		"type Dev UserPassword guest\n"
		"click Dev SummitButton\n"
		"wait 1\n"
		"expect widget Dev LoginStatus value \"Signed in as guest\"\n"
		"expect widget Dev DevName value \"Guest \"\n"
		"expect widget Dev ItemList state visible\n"
		"choose Dev ProjectSelection \"Harbor Lofts\"\n"
		"expect no option Dev ProjectSelection \"Harbor Tower\"\n");
}

TEST_F(ToolPanels, OpenedAgainTheyKnowWhoIsSignedIn)
{
	Do(SignIn +
		"close Dev\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu \"Developer Panel\"\n"
		"expect widget VelmorantDeveloperPanel DevName value \"Lucía Ferrer\"\n"
		"expect widget VelmorantDeveloperPanel ListCount value \"3 entries\"\n"
		"choose VelmorantDeveloperPanel ProjectSelection \"Harbor Lofts\"\n"
		"click VelmorantDeveloperPanel LogoutButton\n"
		"close VelmorantDeveloperPanel\n"
		"open menu VelmorantMenu\n"
		"click VelmorantMenu Login\n"
		"expect widget VelmorantDeveloperPanel ProjectSelection state hidden\n"
		"expect widget VelmorantDeveloperPanel LogoutButton state hidden\n");
}

TEST_F(ToolPanels, BrowsesTheProject)
{
	Do(SignIn +
		"expect widget Dev ListTitle value \"Unit groups\"\n"
		"expect widget Dev ListCount value \"3 entries\"\n"
		"expect widget Dev SubSelectionButton state disabled\n"
		"expect widget Dev NavConfigurators state disabled\n"
		"choose Dev ItemList \"HT-TOWER-B Torre Brisa\"\n"
		"click Dev HomeButton\n"
		"choose Dev ItemList \"Torre Brisa\"\n"
		"expect widget Dev NavUnits state selected\n"
		"expect widget Dev ListTitle value \"Units of Torre Brisa\"\n"
		"expect widget Dev ListCount value \"72 entries\"\n"
		"type Dev SearchText 02atorre\n" // across key code and name
		"expect widget Dev ListCount value \"1 entry\"\n"
		"click Dev ClearSearch\n"
		"expect widget Dev ListCount value \"72 entries\"\n"
		"click Dev NavConfigurators\n"
		"expect widget Dev ListTitle value \"Unit groups of the configurators\"\n"
		"expect widget Dev ListCount value \"4 entries\"\n"
		"expect items Dev ConfiguratorList 3\n"
		"choose Dev ConfiguratorList \"Ático Ñandú\"\n"
		"click Dev CreateAsset\n"
		"expect notification \"Success Configuration Creation\" state success\n"
		"discard\n"
		"click Dev NavUnits\n"
		"expect widget Dev ListTitle value \"Units of Torre Brisa\"\n"
		"click Dev HomeButton\n"
		"expect widget Dev ListCount value \"3 entries\"\n"
		"print snapshot Dev\n");
}

TEST_F(ToolPanels, FindsDuplicatedVolumesAndAssignsUnits)
{
	const std::string Find = "click Volumes CheckDuplications\nwait 0\nwait 0\nprint snapshot Volumes\n"; // the lists within the rows follow
	const FProgramResult Result = FProjectOnDisk::Do(SignIn + OpenVolumeTools + Find +
		"expect widget Volumes DuplicationCount value \"2 identifiers are used more than once\"\n"
		"expect widget Volumes HT-B-01B\n"
		"expect widget Volumes HT-C-01A\n"
		"inspect \"actor:Torre Brisa 1º C\" as Volume\n"
		"type Volume UniqueIdentifier.UnitID 2012\n" +
		Find +
		"expect widget Volumes DuplicationCount value \"1 identifier is used more than once\"\n"
		"expect items Volumes Duplications 2\n"
		"click Volumes AssignUnits\n"
		"expect widget Volumes AssignStatus value \"Nothing was assigned: it takes a unit group, clicked in the developer panel, and unit volumes in the level\"\n"
		"choose Dev ItemList \"Torre Brisa\"\n"
		"click Volumes AssignUnits\n"
		"expect widget Volumes AssignStatus value \"Units are assigned: save the level to keep them\"\n"
		"expect property actor:UnitVolumeActor UniqueIdentifier.UnitID 2183\n"
		"expect property actor:UnitVolumeActor UniqueIdentifier.Keycode HT-B-18D\n"
		"expect unsaved /Game/Maps/HarborTower\n" +
		Find +
		"expect widget Volumes DuplicationCount value \"No identifier is used more than once\"\n"
		"expect items Volumes Duplications 2\n" // they stay until the panel is closed
		"close Volumes\n" +
		OpenVolumeTools + Find +
		"expect items Volumes Duplications 0\n"
		"discard\n");
	const size_t Repaired = Result.Output.find("text Clash \"no longer used more than once\"");
	EXPECT_LT(Result.Output.find("text Clash \"used more than once\""), Repaired) << Result.Output;
	EXPECT_NE(Repaired, std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("text VolumeLabel \"Torre Brisa 1º B\""), std::string::npos) << Result.Output;
}

TEST_F(ToolPanels, PartsOfAToolOpenedAloneKnowTheLevelToo)
{
	Do("open /VelmorantPro/EditorHelpers/ToolsWidget/UnitVolumeTools/UnitVolumeDuplicationPanel as Duplications\n"
	   "click Duplications CheckDuplications\n"
	   "expect items Duplications Duplications 2\n"
	   "open /VelmorantPro/EditorHelpers/MinimapTool/MinimapToolPanel as Map\n"
	   "expect widget Map MinimapStatus value \"The level has a minimap\"\n"
	   "call Map.SetActiveMinimapFloor 2\n"
	   "expect result true\n"
	   "expect no result false\n"
	   "new level\n"
	   "click Map ScanLevel\n"
	   "expect widget Map MinimapStatus value \"The level has no minimap controller: place one\"\n");
}

TEST_F(ToolPanels, SwitchesTheFloorsOfTheMinimap)
{
	Do(OpenMinimap +
		"print snapshot Map\n"
		"expect widget Map MinimapStatus value \"The level has a minimap\"\n"
		"expect widget Map ActiveFloor value \"No floor is active: show one to place it\"\n"
		"expect widget Map PlaceFloor state disabled\n"
		"type Map FloorIndex 2\n"
		"click Map ActivateFloor\n"
		"expect widget Map ActiveFloor value \"Active floor: 2\"\n");
	const struct
	{
		std::string Typed;
		std::string Status;
		std::string Error;
	} Cases[] = {
		{"02", "The level has a minimap", ""},
		{"3", "There is no floor '3': there are 0 (Ground floor), 1 (1st floor), 2 (Penthouse)", ""},
		{"-1", "There is no floor '-1': there are 0 (Ground floor), 1 (1st floor), 2 (Penthouse)", ""},
		{"first", "The level has a minimap", "'first' is not a whole number"},
		{"", "The level has a minimap", "Enter a whole number"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Typed);
		Do(OpenMinimap +
			"expect widget Map FloorList value \"Floors: 0 (Ground floor), 1 (1st floor), 2 (Penthouse)\"\n"
			"type Map FloorIndex 2\n"
			"click Map ActivateFloor\n"
			"type Map FloorIndex \"" +
			Case.Typed + "\"\nclick Map ActivateFloor\nexpect widget Map MinimapStatus value \"" + Case.Status + "\"\nexpect widget Map FloorIndex error \"" + Case.Error +
			"\"\n"
			"expect widget Map ActiveFloor value \"Active floor: 2\"\n");
	}
}

TEST_F(ToolPanels, PlacesTheActiveFloorOfTheMinimap)
{
	const std::string Floors = "expect property /Game/Minimap/HarborTowerFloors Floors";
	Do(OpenMinimap +
		"type Map FloorIndex 1\n"
		"click Map ActivateFloor\n"
		"expect widget Map PlaceFloor state enabled\n"
		"expect widget Map ScaleX value 1\n"
		"type Map MoveX -12.5\n"
		"type Map MoveY 40\n"
		"type Map ScaleX 0.5\n"
		"type Map Angle 90\n"
		"click Map PlaceFloor\n" +
		Floors + "[1].WidgetTransform.Translation.X -12.5\n" + Floors + "[1].WidgetTransform.Translation.Y 40\n" + Floors + "[1].WidgetTransform.Scale.X 0.5\n" + Floors + "[1].WidgetTransform.Scale.Y 1\n" + Floors + "[1].WidgetTransform.Angle 90\n" + Floors +
		"[0].WidgetTransform.Scale.X 1\n"
		"type Map ScaleX wide\n" // no number: nothing is placed, and what was typed stays
		"expect widget Map ScaleX error \"'wide' is not a number\"\n"
		"type Map MoveX 7\n"
		"click Map PlaceFloor\n"
		"expect widget Map PlacementStatus value \"Nothing was placed: mend the fields that are marked\"\n" +
		Floors +
		"[1].WidgetTransform.Translation.X -12.5\n"
		"expect widget Map ScaleX value wide\n"
		"expect widget Map MoveX value 7 error \"\"\n"
		"type Map ScaleX 2\n"
		"click Map PlaceFloor\n"
		"expect widget Map PlacementStatus value \"Floor 1 is placed: save the floors to keep it\"\n" +
		Floors +
		"[1].WidgetTransform.Translation.X 7\n"
		"type Map FloorIndex 0\n"
		"click Map ActivateFloor\n"
		"expect widget Map MoveX value 0\n");
}

TEST_F(ToolPanels, SavesThePlacesOfTheFloors)
{
	Do(OpenMinimap +
		"expect widget Map SaveFloors state disabled\n"
		"type Map FloorIndex 1\n"
		"click Map ActivateFloor\n"
		"type Map MoveX 24\n"
		"click Map PlaceFloor\n"
		"expect no unsaved\n" // placing marks nothing
		"click Map SaveFloors\n"
		"expect written Content/Minimap/HarborTowerFloors.uasset.json\n"
		"restart\n"
		"expect property /Game/Minimap/HarborTowerFloors Floors[1].WidgetTransform.Translation.X 24\n");
}

TEST_F(ToolPanels, SaysWhyThereIsNoMinimapToWorkOn)
{
	Do(OpenMinimap +
		"new level\n"
		"click Map ScanLevel\n"
		"expect widget Map MinimapStatus value \"The level has no minimap controller: place one\"\n"
		"expect widget Map FloorIndex state disabled\n"
		"expect widget Map ActivateFloor state disabled\n"
		"expect widget Map PlaceFloor state disabled\n"
		"expect widget Map ScaleX value \"\"\n");
}
