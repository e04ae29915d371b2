// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** Details panels, as scripts use them, on the sample. */
class DetailsScript : public FProjectOnDisk
{
protected:
	DetailsScript() { CopySample(); }

	/** What the program says about a script that cannot be done. */
	std::string Complaint(const std::string& Script) const
	{
		const FProgramResult Result = RunScript(Script);
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output;
		return Result.Errors;
	}

	static inline const std::string Style = "/Game/UI/HarborStyle";
};

TEST_F(DetailsScript, ChangesAnAssetAsADesignerWould)
{
	Do("inspect " + Style + "\n" +
		"expect panel Details\n"
		"expect row Details DisplayName value \"Harbor Tower\"\n"
		"type Details \"Display Name\" \"Harbor Lofts\"\n"
		"expect property " +
		Style + " DisplayName \"Harbor Lofts\"\n"
				"expect row Details SimpleColors[0].ID value White\n"
				"type Details SimpleColors[0].Color (R=0.5,G=0.25,B=0,A=1)\n"
				"expect row Details SimpleColors[0].Color value (R=0.500000,G=0.250000,B=0.000000,A=1.000000)\n"
				"expect unsaved " +
		Style + "\n"
				"save\n"
				"restart\n"
				"expect no panel Details\n"
				"inspect " +
		Style + " as Second\n"
				"expect row second DisplayName value \"Harbor Lofts\"\n"
				"close Second\n"
				"expect no panel Second\n");
}

TEST_F(DetailsScript, SearchesThePanelAndPrintsItsRows)
{
	const FProgramResult Result = Do("inspect " + Style + "\nprint rows Details\ntype Details \"Search Details\" \"display\"\nexpect no row Details SimpleColors\nexpect row Details DisplayName\n"
														  "click Details \"Search Details/Clear\"\nexpect row Details SimpleColors\n");
	EXPECT_NE(Result.Output.find("Display Name (DisplayName)\n"), std::string::npos) << Result.Output;
}

TEST_F(DetailsScript, ChangesSeveralActorsAtOnce)
{
	const std::string First = "\"actor:Torre Alba 1º A\"";
	const std::string Second = "\"actor:Torre Brisa 1º B\"";
	Do("inspect " + First + " " + Second + " as Units\n" +
		"expect row Units UniqueIdentifier.Keycode value \"Multiple Values\"\n"
		"expect row Units bHidden\n"
		"expect widget Units Hidden state unchecked\n"
		"check Units Hidden\n"
		"type Units UniqueIdentifier.UnitID 4711\n"
		"expect property " +
		First + " bHidden True\n" +
		"expect property " + Second + " bHidden True\n" +
		"expect property " + Second + " UniqueIdentifier.UnitID 4711\n" +
		"type Units UniqueIdentifier.UnitID many\n"
		"expect row Units UniqueIdentifier.UnitID value 4711\n"
		"inspect " +
		First + " as Units\n" +
		"expect no row Units UniqueIdentifier.Keycode value \"Multiple Values\"\n");
}

TEST_F(DetailsScript, PicksFromListsAndTiles)
{
	const std::string Spot = "\"actor:Spot roof terrace\"";
	Do("inspect " + Spot + "\n" +
		"choose Details Icon.IconStyle Bold\n"
		"expect row Details \"Icon Style\" value Bold\n"
		"expect property " +
		Spot + " Icon.IconStyle Bold\n" +
		"type Details \"Icon List/Search\" boat\n"
		"expect items Details \"Icon List\" 1\n"
		"choose Details \"Icon List\" boat\n"
		"expect widget Details \"Icon List/boat\" state selected\n"
		"expect property " +
		Spot + " Icon.IconName boat\n" +
		"click Details \"Icon List/Clear\"\n"
		"expect no items Details \"Icon List\" 1\n"
		"expect option Details Icon.IconStyle Bold\n"
		"expect no option Details Icon.IconStyle Oblique\n");
}

TEST_F(DetailsScript, WhatCannotBeDoneSaysWhatThereIs)
{
	EXPECT_NE(Complaint("inspect " + Style + "\ntype Details Colour White\n").find("There is no widget \"Colour\". The rows are: Display Name (DisplayName), Simple Colors (SimpleColors)"), std::string::npos);
	EXPECT_NE(Complaint("inspect " + Style + "\nprint options Details Colour\n").find("There is no widget \"Colour\". The rows are: Display Name (DisplayName)"), std::string::npos);
	EXPECT_NE(Complaint("inspect \"actor:Spot roof terrace\"\nnew level\nclick Details Icon\n").find("The panel has no rows: its objects are gone."), std::string::npos);
	EXPECT_NE(Complaint("inspect /Game/UI/HarborIcons\nclick Details Icon\n").find("The panel has no rows: nothing of its objects"), std::string::npos);
	EXPECT_NE(Complaint("inspect /Game/Nothing\n").find("there is no asset /Game/Nothing"), std::string::npos);
	EXPECT_NE(Complaint("inspect actor:Nobody\n").find("there is no class Nobody, and no actor of that label"), std::string::npos);
	EXPECT_NE(Complaint("print rows Details\n").find("no details panel named Details is open; open one with: inspect OBJECT as Details"), std::string::npos);
	EXPECT_NE(Complaint("inspect " + Style + "\nexpect items Details DisplayName 3\n").find("DisplayName holds no list"), std::string::npos);
}
