// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

#include <nlohmann/json.hpp>
#include <sstream>

/** Work that cannot be written, as the person at the editor and the one who runs a script see it. */
class FailedWrites : public FProjectOnDisk
{
protected:
	FailedWrites() { CopySample(); }

	void MakeReadOnly(const std::filesystem::path& File) const { std::filesystem::permissions(File, std::filesystem::perms(0444)); }

	/** Titles and sub-texts of the notifications of the failed step, a line each. */
	static std::string GetFailures(const FProgramResult& Result)
	{
		std::string Failures;
		std::istringstream Lines(Result.Output);
		for (std::string Line; std::getline(Lines, Line);)
		{
			const nlohmann::json Step = nlohmann::json::parse(Line, nullptr, false);
			for (const nlohmann::json& Notification : Step.value("notifications", nlohmann::json::array()))
			{
				const bool bFailed = Step.value("outcome", "") == "error" && Notification.value("state", "") == "fail";
				Failures += bFailed ? Notification.value("title", "") + ": " + Notification.value("subText", "") + "\n" : "";
			}
		}
		return Failures;
	}

	static inline const std::string AddToConfig = "press \"Add to Project Config\"\n";
	static inline const std::string Remember =
		"open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\n"
		"type Login UserName lucia\n"
		"type Login UserPassword harbor-2026\n"
		"check Login RememberUserCheckBox\n"
		"click Login SummitButton\n"
		"wait 1\n";
};

TEST_F(FailedWrites, EndTheStepAndShowFileAndRemedy)
{
	const struct
	{
		const char* Behaviour;
		std::string Script;
		std::filesystem::path File;
		const char* Message;
		const char* Remedy;
	} Cases[] = {
		{"a configuration that is read-only", AddToConfig + "expect clipboard never\n", Folder.GetNative(IniFile), "the file is read-only and was left as it is", "Make it writable, or check it out in version control."},
		{"a user who is to be remembered", Remember + "expect clipboard never\n", Folder.GetNative("UserConfig/velmorant/VelmorantUser.json"), "the folder cannot be created: Not a directory", "Check its path and permissions."},
	};
	MakeReadOnly(Folder.GetNative(IniFile));
	Folder.Write("UserConfig", "a file where the folder should be");
	const std::string Before = ReadIni();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FProgramResult Result = RunScript(Case.Script, {"--json"});
		EXPECT_EQ(Result.ExitStatus, 3) << Result.Output << Result.Errors;
		const std::string Told = Case.File.string() + ": " + Case.Message + ". " + Case.Remedy;
		EXPECT_EQ(GetFailures(Result), "Not written: " + Case.File.filename().string() + ": " + Told + "\n") << Result.Output;
		const FProgramResult Text = RunScript(Case.Script);
		EXPECT_NE(Text.Errors.find(": error: " + Told + "\n"), std::string::npos) << Text.Errors;
		EXPECT_EQ(Text.Output.find("clipboard"), std::string::npos) << "nothing goes on behind the failed step";
		EXPECT_EQ(Text.Output.find("harbor-2026"), std::string::npos);
		const FProgramResult Unshown = RunScript(Case.Script, {"--json", "--no-notifications"});
		EXPECT_EQ(GetFailures(Unshown), "");
		EXPECT_EQ(Unshown.Output.find(Told) != std::string::npos, Case.File == Folder.GetNative(IniFile) ? false : true) << "no button stands to be pressed there";
	}
	EXPECT_EQ(ReadIni(), Before);
}

TEST_F(FailedWrites, OfReadOnlyFilesUnderVersionControlAreAskedAbout)
{
	Folder.Write("Project/Config/DefaultEditor.ini", "[Velmorant.VersionControl]\nCheckOutCommand=chmod u+w\n");
	const struct
	{
		const char* Answer; // empty: none
		const char* Choice;
		int ExitStatus;
		std::vector<std::string> Options;
	} Cases[] = {
		{"", "Leave", 3, {}},
		{"answer ReadOnlyFile \"Check Out\"\n", "Leave", 3, {"--unattended"}},
		{"answer ReadOnlyFile Rename\n", "Leave", 3, {}},
		{"answer ReadOnlyFile \"Check Out\"\n", "Check Out", 0, {}},
	};
	const std::string Before = ReadIni();
	MakeReadOnly(Folder.GetNative(IniFile));
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Answer);
		const FProgramResult Result = RunScript(Case.Answer + AddToConfig, Case.Options);
		EXPECT_EQ(Result.ExitStatus, Case.ExitStatus) << Result.Output << Result.Errors;
		EXPECT_EQ(CountOf(Result.Output, "asked: " + Folder.GetNative(IniFile).string() + " is read-only. What is to be done before it is written? -> " + Case.Choice), 1u) << Result.Output;
		EXPECT_EQ(ReadIni() == Before, Case.ExitStatus != 0);
	}
	const FProgramResult Wrong = RunScript("answer Weather \"Check Out\"\n");
	EXPECT_EQ(Wrong.ExitStatus, 3);
	EXPECT_NE(Wrong.Errors.find("SaveAsset, ReplaceAsset, DeleteAssets, ReadOnlyFile and Message"), std::string::npos) << Wrong.Errors;
}
