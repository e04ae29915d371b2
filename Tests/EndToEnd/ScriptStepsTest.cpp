// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

/** Scripts that work on the sample. */
class ScriptSteps : public FProjectOnDisk
{
protected:
	ScriptSteps() { CopySample(); }

	/** Signed in, with the project's data there. */
	static inline const std::string SignIn =
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
		"type Dev UserName lucia\n"
		"type Dev UserPassword harbor-2026\n"
		"click Dev SummitButton\n"
		"wait 1\n"
		"choose Dev ProjectSelection \"Harbor Tower\"\n"
		"wait 1\n";

	static inline const std::string CreateAsset = "call VelmorantEditorUtilitiesLibrary.CreateConfiguratorDataAssetFromConfigurator \"Garden Flat\"\n";
};

TEST_F(ScriptSteps, WrongCredentialsShowAndEndTheBusyState)
{
	Do("open /VelmorantPro/EditorHelpers/DeveloperPanel/VelmorantDeveloperPanel as Dev\n"
	   "type Dev UserName lucia\n"
	   "type Dev UserPassword wrong\n"
	   "click Dev SummitButton\n"
	   "expect widget Dev SummitButton state disabled\n"
	   "wait 1\n"
	   "expect widget Dev SummitButton state enabled\n"
	   "expect no widget Dev LoginStatus value \"Signed in as lucia\"\n"
	   "expect no option Dev ProjectSelection \"Harbor Tower\"\n");
}

TEST_F(ScriptSteps, CopiesTheKeyOfTheChosenProject)
{
	Do(SignIn + "click Dev CopyApyKey\nexpect clipboard ht-7f3c-91d2-demo\nexpect widget Dev ProjectName value \"Harbor Tower\" state read-only\n");
}

TEST_F(ScriptSteps, ACancelledDialogMakesNoAsset)
{
	Do(SignIn + "answer SaveAsset Cancel\n" + CreateAsset +
		"expect question SaveAsset choice Cancel\n"
		"expect notification \"Cancelled Configuration Creation\" state fail\n"
		"expect no asset /Game/Velmorant/Configurator/Configurator_GardenFlat\n"
		"expect no unsaved\n");
}

TEST_F(ScriptSteps, AnswersMayNameFolderAndAsset)
{
	Do(SignIn + "answer SaveAsset Save Name=Mine Path=/Game/Elsewhere\n" + CreateAsset + "save\nexpect asset /Game/Elsewhere/Mine class VelmorantConfiguratorDataAsset\n"
																						 "expect property /Game/Elsewhere/Mine ConfiguratorName \"Garden Flat\"\n"
																						 "expect property /Game/Elsewhere/Mine ConfiguratorUnit.Rooms.Num 4\n"
																						 "expect property /Game/Elsewhere/Mine ConfiguratorUnit.Rooms[1].Name Kitchen\n"
																						 "restart\n"
																						 "expect property /Game/Elsewhere/Mine ConfiguratorUnit.Rooms[1].Groups[2].Products[2].Name \"Pro: steam oven\"\n");
	EXPECT_TRUE(Folder.Exists("Project/Content/Elsewhere/Mine.uasset.json"));
}

TEST_F(ScriptSteps, AnAnswerThatWasNotOfferedIsAnError)
{
	const FProgramResult Result = RunScript(SignIn + "answer SaveAsset Maybe\n" + CreateAsset);
	EXPECT_EQ(Result.ExitStatus, 3);
	EXPECT_NE(Result.Errors.find("the answer of line 8, \"Maybe\", is not one of: Save, Cancel"), std::string::npos) << Result.Errors;
}

TEST_F(ScriptSteps, AnAnswerThatNothingAskedForIsToldAtTheEnd)
{
	const FProgramResult Result = Do("answer SaveAsset Save\nwait 0\n");
	EXPECT_NE(Result.Errors.find("(1): warning: nothing asked for this answer"), std::string::npos) << Result.Errors;
}

TEST_F(ScriptSteps, UnsavedAssetsAreNeverDroppedSilently)
{
	const std::string Asset = "/Game/Velmorant/Configurator/Configurator_GardenFlat";
	const FProgramResult Ended = Do(SignIn + CreateAsset + "expect unsaved " + Asset + "\n");
	EXPECT_NE(Ended.Errors.find("not saved: " + Asset), std::string::npos) << Ended.Errors;

	for (const char* Restart : {"restart\n", "press \"Add to Project Config\"\npress \"Restart Editor\"\n"})
	{
		const FProgramResult Restarted = RunScript(SignIn + CreateAsset + Restart);
		EXPECT_EQ(Restarted.ExitStatus, 3);
		EXPECT_NE(Restarted.Errors.find("unsaved changes"), std::string::npos) << Restarted.Errors;
		EXPECT_NE(Restarted.Errors.find(Asset), std::string::npos) << Restarted.Errors;
	}

	const FProgramResult Discarded = Do(SignIn + CreateAsset + "discard\nrestart\nexpect no asset " + Asset + "\n");
	EXPECT_NE(Discarded.Output.find("not to be saved: " + Asset), std::string::npos) << Discarded.Output;
	EXPECT_EQ(Discarded.Errors, "");
}

TEST_F(ScriptSteps, TheLevelIsSavedAndOpenedAgain)
{
	Do(SignIn + CreateAsset +
		"select /Game/Velmorant/Configurator/Configurator_GardenFlat\n"
		"action ConfiguratorDataAsset_CreateLevelVariantActor\n"
		"expect actors VelmorantLevelVariantSetsActor 1\n"
		"expect unsaved /Game/Maps/HarborTower\n"
		"save\n"
		"restart\n"
		"expect level /Game/Maps/HarborTower\n"
		"expect actors VelmorantLevelVariantSetsActor 1\n"
		"expect property actor:VelmorantLevelVariantSetsActor LevelVariantSets /Game/Velmorant/Configurator/LevelVariant_Garden_Flat.LevelVariant_Garden_Flat\n"
		"expect property actor:VelmorantLevelVariantSetsActor ActorLocation.Z 500\n"
		"expect variant /Game/Velmorant/Configurator/LevelVariant_Garden_Flat \"Kitchen - Appliances\" \"Pro: steam oven\"\n"
		"expect no variant /Game/Velmorant/Configurator/LevelVariant_Garden_Flat \"Kitchen - Appliances\" Golden\n");
}

TEST_F(ScriptSteps, AnUntitledLevelNeedsANameToBeSaved)
{
	const std::string Placed = SignIn + CreateAsset +
		"save\nnew level\nselect /Game/Velmorant/Configurator/Configurator_GardenFlat\naction \"Place LevelVariantActor into Level\"\n";
	const FProgramResult Nameless = RunScript(Placed + "save\n");
	EXPECT_EQ(Nameless.ExitStatus, 3);
	EXPECT_NE(Nameless.Errors.find("save level /Game/FOLDER/NAME"), std::string::npos) << Nameless.Errors;

	std::filesystem::remove_all(Folder.GetNative("Project"));
	CopySample();
	Do(Placed + "save level /Game/Maps/Second\nsave\nrestart\nopen level /Game/Maps/Second\nexpect actors VelmorantLevelVariantSetsActor 1\n");
	EXPECT_TRUE(Folder.Exists("Project/Content/Maps/Second.umap.json"));
}

TEST_F(ScriptSteps, CallsGiveTheirResult)
{
	const FProgramResult Result = Do(
		"call VelmorantEditorUtilitiesLibrary.GetVelmorantProVersion\n"
		"expect result 3.1.0\n"
		"call UVelmorantEditorUtilitiesLibrary.CopyToClipboard \"one two\" \"Copied\"\n"
		"expect clipboard \"one two\"\n"
		"call VelmorantEditorUtilitiesLibrary.PushEditorNotification \"Floors\" \"\" CS_Success 2.5\n"
		"expect notification Floors state success times 1\n"
		"wait 5\n"
		"expect no standing Floors\n");
	EXPECT_NE(Result.Output.find("= 3.1.0"), std::string::npos) << Result.Output;
}

TEST_F(ScriptSteps, TheServiceCanComeFromAnotherFile)
{
	std::string Data = Folder.Read("Project/VelmorantService.json");
	Data.replace(Data.find("harbor-2026"), 11, "other-pass!");
	Folder.Write("My Service.json", Data);
	Folder.Write("Lucia.png", Folder.Read("Project/Lucia.png")); // the data file names it
	std::string Script = SignIn;
	Script.replace(Script.find("harbor-2026"), 11, "\"other-pass!\"");
	Do(Script + "expect widget Dev LoginStatus value \"Signed in as lucia\"\n", {"--service", Folder.GetNative("My Service.json").string()});
}

TEST_F(ScriptSteps, AMalformedServiceFileIsNamed)
{
	const std::string Service = Folder.GetNative("Service.json").string();
	const struct
	{
		const char* Behaviour;
		std::string Data;
	} Cases[] = {
		{"no JSON", "{ \"users\": [ "},
		{"a user without password", "{ \"users\": [ { \"userName\": \"lucia\" } ], \"projects\": [] }"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Folder.Write("Service.json", Case.Data);
		const FProgramResult Result = RunScript(SignIn, {"--service", Service});
		EXPECT_NE(Result.Output.find(Service), std::string::npos) << Result.Output;
		EXPECT_NE(Result.ExitStatus, 0) << "there are no projects to choose from";
	}
}

TEST_F(ScriptSteps, WordsMayHoldBlanksQuotesAndLineEnds)
{
	Do("call VelmorantEditorUtilitiesLibrary.CopyToClipboard \"a \\\"b\\\"\\n\\tc\\\\\" x # a comment\n"
	   "expect clipboard \"a \\\"b\\\"\\n\\tc\\\\\"\n"
	   "call VelmorantEditorUtilitiesLibrary.CopyToClipboard Ático#1 x\n"
	   "expect clipboard \"Ático#1\"\n");
}

TEST_F(ScriptSteps, RemembersTheUserOverRestartsAndLogins)
{
	const std::string Open = "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\n";
	const std::string Remembered = Open +
		"expect widget Login UserName value lucia\n"
		"expect widget Login RememberUserCheckBox state checked\n"
		"print snapshot Login\n"
		"click Login SummitButton\n"
		"wait 1\n"
		"expect widget Login LoginStatus value \"Signed in as lucia\"\n";
	const FProgramResult Result = Do(Open +
		"check Login RememberUserCheckBox\n"
		"type Login UserName lucia\n"
		"type Login UserPassword harbor-2026\n"
		"click Login SummitButton\n"
		"wait 1\n"
		"restart\n" +
		Remembered + "restart\n" + Remembered);
	EXPECT_EQ(Result.Output.find("harbor-2026"), std::string::npos) << Result.Output;
	EXPECT_TRUE(std::filesystem::exists(Folder.GetNative("UserConfig")));
}

TEST_F(ScriptSteps, StepsAreTakenBackAndDoneAgain)
{
	const std::string Place = SignIn + CreateAsset +
		"select /Game/Velmorant/Configurator/Configurator_GardenFlat\n"
		"action ConfiguratorDataAsset_CreateLevelVariantSet\n"
		"action ConfiguratorDataAsset_CreateLevelVariantActor\n"
		"inspect actor:VelmorantLevelVariantSetsActor as Sets\n"
		"type Sets ActorLabel \"Garden flat\"\n"
		"save\n";
	const FProgramResult Result = Do(Place +
		"undo\n"
		"expect no row Sets ActorLabel value \"Garden flat\"\n"
		"undo\n"
		"expect actors VelmorantLevelVariantSetsActor 0\n"
		"expect unsaved /Game/Maps/HarborTower\n"
		"print undo\n"
		"redo\n"
		"redo\n"
		"expect property actor:VelmorantLevelVariantSetsActor ActorLabel \"Garden flat\"\n"
		"undo\n"
		"undo\n"
		"save\n"
		"restart\n"
		"expect actors VelmorantLevelVariantSetsActor 0\n"
		"print undo\n");
	EXPECT_NE(Result.Output.find("    undone: Edit Actor Label\n"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("    redone: Place LevelVariantActor into Level\n"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("> print undo\n"
								 "    Create LevelVariantSet <- undo\n"
								 "    Place LevelVariantActor into Level (undone) <- redo\n"
								 "    Edit Actor Label (undone)\n"),
		std::string::npos)
		<< Result.Output;
	EXPECT_NE(Result.Output.find("> print undo\n", Result.Output.find("> restart")), std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Output.find("LevelVariantSet <- undo", Result.Output.find("> restart")), std::string::npos) << "another editor has no steps yet";
}

TEST_F(ScriptSteps, NothingToUndoOrRedoIsAFailure)
{
	const std::string Edit = "inspect \"actor:Spot harbour promenade\"\ntype Details ActorLabel Quay\n";
	const struct
	{
		std::string Script;
		const char* Message;
	} Cases[] = {
		{"undo\n", "(1): failed: there is nothing to undo"},
		{"redo\n", "(1): failed: there is nothing to redo"},
		{Edit + "redo\n", "(3): failed: there is nothing to redo"},
		{Edit + "undo\nundo\n", "(4): failed: there is nothing to undo"},
		{Edit + "undo\ntype Details ActorLabel Pier\nredo\n", "(5): failed: there is nothing to redo"},
		{Edit + "save\nopen level /Game/Maps/HarborTower\nundo\n", "(5): failed: there is nothing to undo"},
	};
	for (const auto& Case : Cases)
	{
		const FProgramResult Result = RunScript(Case.Script);
		EXPECT_EQ(Result.ExitStatus, 1) << Case.Script;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors << Case.Script;
	}
	const FProgramResult Json = RunScript("undo\n", {"--json"});
	EXPECT_NE(Json.Output.find(R"("message":"there is nothing to undo")"), std::string::npos) << Json.Output;
	EXPECT_NE(Json.Output.find(R"("outcome":"failed")"), std::string::npos) << Json.Output;
}
