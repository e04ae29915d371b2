// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

class ScriptErrors : public FProjectOnDisk
{
protected:
	ScriptErrors() { MakeProject(); }
};

TEST_F(ScriptErrors, MalformedLinesAreNamedBeforeAnythingRuns)
{
	const struct
	{
		const char* Behaviour;
		std::string Script;
		std::string Line;
		std::string Message;
	} Cases[] = {
		{"an unknown command", "wait 0\n# note\nclik A B\n", "(3)", "there is no command \"clik\". Did you mean \"click\"? There are: open, close, click"},
		{"two words, one mistyped", "print snapshoot A\n", "(1)", "Did you mean \"print snapshot\"?"},
		{"an unknown expectation", "expect weather sunny\n", "(1)", "nothing called \"weather\" can be expected. There are: panel, widget"},
		{"nothing expected", "expect no\n", "(1)", "nothing called \"\" can be expected"},
		{"too few words", "\n\nclick Panel\n", "(3)", "this is written: click PANEL WIDGET"},
		{"too many words", "save all\n", "(1)", "this is written: save"},
		{"an unknown option", "expect notification \"A\" colour red\n", "(1)", "this is written: expect [no] notification TITLE"},
		{"an option without value", "press \"A\" on\n", "(1)", "this is written: press BUTTON"},
		{"an open quote", "wait 0\nheading \"Start\n", "(2)", "a quote is opened and not closed"},
		{"an unknown escape", "heading \"a\\b\"\n", "(1)", "after a backslash"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = RunScript(Case.Script);
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_EQ(Result.Errors.rfind(GetScript() + Case.Line + ": error: ", 0), 0u) << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ(Result.Output, "");
	}
}

TEST_F(ScriptErrors, AllMalformedLinesAreTold)
{
	const FProgramResult Result = RunScript("first\nwait 0\nsecond\nheading \"\n");
	EXPECT_EQ(CountOf(Result.Errors, ": error: "), 3u) << Result.Errors;
	EXPECT_LT(Result.Errors.find("(1)"), Result.Errors.find("(3)"));
	EXPECT_LT(Result.Errors.find("(3)"), Result.Errors.find("(4)"));
}

TEST_F(ScriptErrors, StepsThatCannotBeDoneEndTheScriptWithThree)
{
	const struct
	{
		const char* Behaviour;
		std::string Step;
		std::string Message;
	} Cases[] = {
		{"no such panel asset", "open /VelmorantPro/Nowhere", "/VelmorantPro/Nowhere"},
		{"a mistyped panel asset", "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPannel", "Did you mean \"/VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel\"? There are: "},
		{"a mistyped property", "print property default:VelmorantSDKSettings ApiKei", "has no property ApiKei. Did you mean \"ApiKey\"? There are: "},
		{"a mistyped class", "print actors UnitVolumeActr", "there is no class UnitVolumeActr. Did you mean \"UnitVolumeActor\"?"},
		{"a mistyped function", "call VelmorantEditorUtilitiesLibrary.CopyToClipbord a b", "Did you mean \"CopyToClipboard\"? There are: "},
		{"a mistyped thing to place", "place \"Sun Sky Velmorrant\"", "Did you mean \"Sun Sky Velmorant\"? There are: "},
		{"an asset of a class that nobody makes", "make asset Actor /Game/A", "the editor makes no assets of the class Actor; it makes data assets and: "},
		{"an asset without a folder", "make asset MinimapConfigAsset A", "the log says why"},
		{"an actor of no class", "place actor MinimapConfigAsset", "Nothing makes actors of /Script/VelmorantPro.MinimapConfigAsset"},
		{"no actor to move", "move actor Nobody \"X=1 Y=2 Z=3\"", "there is no class Nobody, and no actor of that label"},
		{"no place to move to", "move actor Nobody home", "Nobody"},
		{"no actor to delete", "delete actors Nobody", "Nobody"},
		{"no such panel", "click Login SummitButton", "no panel named Login is open"},
		{"no such button", "press \"Whatever\"", "\"Whatever\" cannot be pressed"},
		{"no such notification", "press \"Skip\" on \"Nothing\"", "no notification \"Nothing\""},
		{"no such asset", "select /Game/Nothing", "/Game/Nothing"},
		{"no such class", "call Nothing.Anything", "neither an open panel nor a class"},
		{"no such function", "call VelmorantEditorUtilitiesLibrary.Anything", "no function Anything"},
		{"nothing to place", "place Sunshine", "Sun Sky Velmorant"},
		{"no place", "place \"Sun Sky Velmorant\" at home", "\"home\" is no place"},
		{"not reflected", "call VelmorantEditorUtilitiesLibrary.NotifyPopup a b c d", "no function NotifyPopup"},
		{"not for Blueprints to call", "call default:VlmEWLoginUser.OnLoginInProcess true", "cannot call OnLoginInProcess"},
		{"wrong number of arguments", "call VelmorantEditorUtilitiesLibrary.CopyToClipboard a", "Text: FString, SubText: FString"},
		{"an argument of another type", "call VelmorantEditorUtilitiesLibrary.PushEditorNotification a b CS_Success soon", "Duration: "},
		{"no asset for an argument", "call VelmorantEditorUtilitiesLibrary.CreateVariantSetFromConfigurator /Game/Nothing", "/Game/Nothing"},
		{"no time", "wait soon", "seconds are a number"},
		{"time does not run backwards", "wait -1", "seconds are a number"},
		{"no such kind of question", "answer Weather Yes", "SaveAsset"},
		{"files elsewhere", "print file ../../etc/passwd", "stand in it"},
		{"no such file", "print file Config/None.ini", "Config/None.ini"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = RunScript("wait 0\n" + Case.Step + "\nheading \"Not reached\"\n");
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Errors;
		EXPECT_NE(Result.Errors.find(GetScript() + "(2): error: "), std::string::npos) << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ(Result.Output.find("Not reached"), std::string::npos);
	}
}

TEST_F(ScriptErrors, OfMistypedPanelsAndWidgetsNameWhatIsOnTheScreen)
{
	const std::string Open = "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\n";
	const struct
	{
		const char* Step;
		const char* Message;
	} Cases[] = {
		{"click Login SumitButton", "There is no widget \"SumitButton\". Did you mean \"SummitButton\"? There are: "},
		{"type Login Username2 a", "Did you mean \"UserName\"?"},
		{"print options Login \"LoginPanel/SumitButton\"", "There is no widget"},
		{"click Logn SummitButton", "no panel named Logn is open. Did you mean \"Login\"? There are: Login"},
		{"print property Logn Visibility", "no panel named Logn is open. Did you mean \"Login\"?"},
		{"click Login Weather", "There is no widget \"Weather\". There are: "},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Step);
		const FProgramResult Result = RunScript(Open + Case.Step + "\n");
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
	}
}

TEST_F(ScriptErrors, ExpectationsThatDoNotHoldEndTheScriptWithOne)
{
	const struct
	{
		const char* Step;
		const char* Message;
	} Cases[] = {
		{"expect notification \"Nothing\"", "there were: pending: Velmorant: Missing UnitVolume Profile"},
		{"expect no notification \"Velmorant: Missing UnitVolume Profile\"", "failed: expect no notification"},
		{"expect notification \"Velmorant: Missing UnitVolume Profile\" state success", "pending"},
		{"expect log \"Nothing\"", "no line of the log"},
		{"expect clipboard \"Nothing\"", "it holds \"\""},
		{"expect asset /Game/Nothing", "/Game/Nothing"},
		{"expect panel Login", "it is not open"},
		{"expect file Config/DefaultEngine.ini line Nothing", "that is not in it"},
		{"expect actors Actor 5", "there are 0"},
		{"expect unsaved", "nothing is unsaved"},
		{"expect property default:VelmorantSDKSettings ApiKey Nothing", "it is \"ht-7f3c-91d2-demo\""},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Step);
		const FProgramResult Result = RunScript(std::string("\n") + Case.Step + "\n");
		EXPECT_EQ(Result.ExitStatus, 1) << Result.Errors;
		EXPECT_NE(Result.Errors.find(GetScript() + "(2): failed: "), std::string::npos) << Result.Errors;
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
	}
}

TEST_F(ScriptErrors, PasswordsStayHiddenWhenTheirStepFails)
{
	const std::string Open = "open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\n";
	for (const char* Step : {"type Login NoSuchField s3cret-77", "type Nowhere UserPassword s3cret-77", "expect widget Login UserPassword value s3cret-77", "type Login UserPassword s3cret-77 again",
			 "type Login UserPassword \"s3cret-77"})
	{
		SCOPED_TRACE(Step);
		const FProgramResult Result = RunScript(Open + Step + "\n");
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Errors;
		EXPECT_EQ((Result.Output + Result.Errors).find("s3cret-77"), std::string::npos) << Result.Output << Result.Errors;
	}
}
