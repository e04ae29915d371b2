// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckReport.h"
#include "Check/RepairRecord.h"
#include "Check/ToolkitVerdict.h"
#include "Check/UnifiedDifference.h"
#include "CollisionIni.h"
#include "EditorHost.h"
#include "HostPaths.h"
#include "HostState.h"
#include "LineDifference.h"
#include "Logging/LogMacros.h"
#include "ProjectOnDisk.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <optional>

DEFINE_LOG_CATEGORY_STATIC(LogVelmorantProEditor, Log, All);

using namespace CollisionIni;
using FJson = nlohmann::ordered_json;

/** What check tells: the words of its reports, and the parts they are made of. */
class CheckReports : public FProjectOnDisk
{
protected:
	CheckReports() { MakeProject(); }
	~CheckReports() override { HostState::DestroyAll(); }

	static std::string PrintText(const FCheckReport& Report, CheckReport::EChanges Changes = CheckReport::EChanges::Lines)
	{
		testing::internal::CaptureStdout();
		CheckReport::PrintText(Report, Changes);
		return testing::internal::GetCapturedStdout();
	}

	static std::string PrintJson(const FCheckReport& Report)
	{
		testing::internal::CaptureStdout();
		CheckReport::PrintJson(Report);
		return testing::internal::GetCapturedStdout();
	}

	static inline const FSpoiler Channel{TEXT("channel"), TEXT("/P/B.ini"), 12, TEXT("!D=Cl\u00E9ar")};

	static inline const std::string Loaded = "LogVelmorantProEditor: Warning: VelmorantProEditor module has been loaded";
	static inline const std::string Asked = "Notification: Velmorant: Missing UnitVolume Profile";
	static inline const std::string Added = "Notification: UnitVolume Collision Profiles Added";
	static inline const std::string Restart = "Notification: Restart Editor Required";
	static inline const std::string Checked = "LogVelmorantProEditor: Checked UnitVolume DefaultChannelResponses and profile exist.";
};

TEST_F(CheckReports, EachVerdictHasItsStatusWordAndSentence)
{
	const std::string Missing = "Missing: the UnitVolume channel or profile is not there. --repair ";
	const std::string Engine = " With them come the engine's current profiles (3 lines), which a project without a collision section gets first.";
	const FString Reason = TEXT("a line is gone");
	const FHostProblem Problem{TEXT("/P/d"), 0, TEXT("read-only"), TEXT("")};
	const FFileChange FromEngine{TEXT("/P/c"), false, {}, {}, {TEXT("1"), TEXT("2"), TEXT("3")}, {}};
	const std::string But = " But remove the line above: the toolkit looks for the channel in DefaultEngine.ini only.";
	const std::string Sound = "Sound: the UnitVolume channel and profile are there.";
	const std::string Repaired = "Repaired: the UnitVolume channel and profile were missing and have been added.";
	const struct
	{
		ECheckStatus Status;
		TArray<FSpoiler> SpoiledBy;
		TArray<FFileChange> RepairWrites;
		TArray<FFileChange> WrittenFiles;
		FString Reason;
		TArray<FHostProblem> Problems;
		EExitStatus ExitStatus;
		const char* Word;
		std::string Sentence;
	} Cases[] = {
		{ECheckStatus::Sound, {}, {}, {}, {}, {}, EExitStatus::Done, "sound", Sound},
		{ECheckStatus::Sound, {Channel}, {}, {}, {}, {}, EExitStatus::Done, "sound", Sound + But},
		{ECheckStatus::Repaired, {}, {}, {}, {}, {}, EExitStatus::Done, "repaired", Repaired},
		{ECheckStatus::Repaired, {Channel}, {}, {FromEngine}, {}, {}, EExitStatus::Done, "repaired", Repaired + Engine + But},
		{ECheckStatus::Missing, {}, {}, {}, {}, {}, EExitStatus::Failed, "missing", Missing + "adds them."},
		{ECheckStatus::Missing, {Channel}, {FromEngine}, {}, {}, {}, EExitStatus::Failed, "missing", Missing + "adds them." + Engine},
		{ECheckStatus::Missing, {}, {}, {}, Reason, {}, EExitStatus::Failed, "missing", Missing + "cannot help: a line is gone."},
		{ECheckStatus::Missing, {}, {}, {}, {}, {Problem}, EExitStatus::Failed, "missing", Missing + "cannot add them until what the error output tells is put right."},
		{ECheckStatus::StillMissing, {}, {}, {}, Reason, {}, EExitStatus::Failed, "stillMissing", "Still missing, nothing was written. The repair would not help: a line is gone."},
		{ECheckStatus::Undone, {}, {}, {}, {}, {}, EExitStatus::Done, "undone", "Undone: what the last repair added is gone again."},
		{ECheckStatus::NotUndone, {}, {}, {}, Reason, {}, EExitStatus::Failed, "notUndone", "Not undone, nothing was changed: a line is gone."},
		{ECheckStatus::Trouble, {Channel}, {}, {}, {}, {}, EExitStatus::Trouble, "trouble", "No verdict."},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Sentence);
		FCheckReport Report;
		Report.Status = Case.Status;
		Report.SpoiledBy = Case.SpoiledBy;
		Report.RepairWrites = Case.RepairWrites;
		Report.WrittenFiles = Case.WrittenFiles;
		Report.Reason = Case.Reason;
		Report.Problems = Case.Problems;
		EXPECT_EQ(CheckReport::GetExitStatus(Case.Status), Case.ExitStatus);
		EXPECT_TRUE(PrintText(Report).ends_with("\n" + Case.Sentence + "\n")) << PrintText(Report);
		const FJson Json = FJson::parse(PrintJson(Report), nullptr, false);
		EXPECT_EQ(Json.value("status", -1), static_cast<int>(Case.ExitStatus));
		EXPECT_EQ(Json.value("verdict", ""), Case.Word);
	}
}

TEST_F(CheckReports, EveryPartHasItsLinesAndMembers)
{
	FCheckReport Report;
	Report.Status = ECheckStatus::StillMissing;
	Report.Project = TEXT("/P/Test.uproject");
	Report.Messages = {TEXT("one\ntwo\nthree"), TEXT("four")};
	Report.SpoiledBy = {Channel};
	Report.PendingWrites = {{TEXT("/P/a"), false, {TEXT("+a")}, {}, {TEXT("+a")}, {}}, {TEXT("/P/b"), true, {}, {TEXT("-b"), TEXT("-c")}, {}, {}}};
	Report.RepairWrites = {{TEXT("/P/e"), false, {TEXT("+e")}, {}, {}, {TEXT("+e")}}};
	Report.WrittenFiles = {{TEXT("/P/c"), false, {TEXT("\u20AC"), TEXT("")}, {TEXT("out")}, {}, {}}, {TEXT("/P/f"), false, {TEXT("+f"), TEXT("+g")}, {}, {TEXT("+f")}, {TEXT("+g")}}};
	Report.Difference = "--- c\n+++ c\n";
	Report.LinesToAdd = {TEXT("+1"), TEXT("+2")};
	Report.Reason = TEXT("because");
	Report.Problems = {{TEXT("/P/d"), 7, TEXT("broken"), TEXT("Mend it.")}, {TEXT(""), 0, TEXT("odd"), TEXT("")}};

	const std::string Head = "/P/Test.uproject\n  one two three\n  four\n";
	const std::string Tail = "/P/B.ini(12): takes the UnitVolume channel away: !D=Cl\xC3\xA9"
							 "ar\nStill missing, nothing was written. The repair would not help: because.\n"
							 "Add to the section [/Script/Engine.CollisionProfile] of Config/DefaultEngine.ini by hand:\n+1\n+2\n";
	EXPECT_EQ(PrintText(Report), Head + "Would have written /P/a\n  the engine's current profiles:\n    +a\nWould have written /P/b (deleted)\n  taken out: -b\n  taken out: -c\nWritten /P/c\n  \xE2\x82\xAC\n  \n  taken out: out\nWritten /P/f\n  the engine's current profiles:\n    +f\n  the toolkit's lines:\n    +g\n" + Tail);
	EXPECT_EQ(PrintText(Report, CheckReport::EChanges::Difference), Head + "Would have written /P/a\nWould have written /P/b (deleted)\nWritten /P/c\nWritten /P/f\n--- c\n+++ c\n" + Tail);

	using FLines = std::vector<std::string>;
	const auto Change = [](const char* Path, const FLines& In, const FLines& Out, const FLines& Engine, const FLines& Toolkit) {
		return FJson{{"path", Path}, {"deleted", In.empty()}, {"addedLines", In}, {"removedLines", Out}, {"engineLines", Engine}, {"toolkitLines", Toolkit}};
	};
	const FJson Expected = {
		{"status", 1},
		{"verdict", "stillMissing"},
		{"project", "/P/Test.uproject"},
		{"messages", {"one\ntwo\nthree", "four"}},
		{"spoiledBy", FJson::array({{{"what", "channel"}, {"file", "/P/B.ini"}, {"line", 12}, {"text", "!D=Cl\xC3\xA9"
																									   "ar"}}})},
		{"pendingWrites", FJson::array({Change("/P/a", {"+a"}, {}, {"+a"}, {}), Change("/P/b", {}, {"-b", "-c"}, {}, {})})},
		{"repairWrites", FJson::array({Change("/P/e", {"+e"}, {}, {}, {"+e"})})},
		{"writtenFiles", FJson::array({Change("/P/c", {"\xE2\x82\xAC", ""}, {"out"}, {}, {}), Change("/P/f", {"+f", "+g"}, {}, {"+f"}, {"+g"})})},
		{"diff", "--- c\n+++ c\n"},
		{"problems", FJson::array({{{"file", "/P/d"}, {"line", 7}, {"message", "broken"}, {"remedy", "Mend it."}}, {{"file", ""}, {"line", 0}, {"message", "odd"}}})},
		{"linesToAdd", {"+1", "+2"}},
		{"reason", "because"},
	};
	EXPECT_EQ(PrintJson(Report), Expected.dump(2) + "\n");
}

TEST_F(CheckReports, TheProgramFillsThemIn)
{
	const std::string Ini = Folder.GetNative(IniFile).string();
	const std::string Project = GetProject() + "/Test.uproject";
	const std::string Lines = "  " + ProfileLine + "  " + ChannelLine;
	const std::string Usual = SectionLine + GlassLine;
	const auto WithMessages = [&Project](std::initializer_list<std::string> Messages) {
		std::string Text = Project + "\n";
		for (const std::string& Message : Messages)
		{
			Text += "  " + Message + "\n";
		}
		return Text;
	};
	const struct
	{
		const char* Behaviour;
		std::string Before; // of DefaultEngine.ini
		std::vector<std::string> Options;
		std::string Text;
		std::string After;
	} Cases[] = {
		{"missing", Usual, {}, WithMessages({Loaded, Asked}) + "Missing: the UnitVolume channel or profile is not there. --repair adds them.\n", Usual},
		{"repaired", Usual, {"--repair"}, WithMessages({Loaded, Asked, Added, Restart, Loaded, Checked}) + "Written " + Ini + "\n" + Lines + "Repaired: the UnitVolume channel and profile were missing and have been added.\n", Usual + ProfileLine + ChannelLine},
		{"sound", Usual + ProfileLine + ChannelLine, {"--repair"}, WithMessages({Loaded, Checked}) + "Sound: the UnitVolume channel and profile are there.\n", Usual + ProfileLine + ChannelLine},
		{"letters of every length stay", "; \xE2\x82\xAC \xF0\x9F\x8F\xA0 \xC3\xBC\n" + Usual + "; \xE2\x82\xAC\n", {"--repair"}, WithMessages({Loaded, Asked, Added, Restart, Loaded, Checked}) + "Written " + Ini + "\n" + Lines + "Repaired: the UnitVolume channel and profile were missing and have been added.\n", "; \xE2\x82\xAC \xF0\x9F\x8F\xA0 \xC3\xBC\n" + Usual + ProfileLine + ChannelLine + "; \xE2\x82\xAC\n"},
		{"a second copy of the channel", Usual + ChannelLine, {"--repair"}, WithMessages({Loaded, Asked, Added, Restart, Loaded, Checked}) + "Written " + Ini + "\n" + Lines + "Repaired: the UnitVolume channel and profile were missing and have been added.\n", Usual + ProfileLine + ChannelLine + ChannelLine},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(Case.Before);
		EXPECT_EQ(Check(Case.Options).Output, Case.Text);
		EXPECT_EQ(ReadIni(), Case.After);
		EXPECT_FALSE(Folder.Exists("Project/Saved")) << "what is tried out leaves nothing";
		WriteIni(Case.Before);
		std::vector<std::string> Options = Case.Options;
		Options.push_back("--json");
		const FJson Report = FJson::parse(Check(Options).Output, nullptr, false);
		ASSERT_TRUE(Report.is_object());
		EXPECT_EQ(Report["project"], Project);
		EXPECT_TRUE(Report["linesToAdd"].empty());
		EXPECT_EQ(Report["writtenFiles"].size(), Case.After == Case.Before ? 0u : 1u);
		EXPECT_EQ(Report["diff"].get<std::string>().empty(), Case.After == Case.Before && *Case.Behaviour != 'm');
	}
}

TEST_F(CheckReports, DifferencesAreThoseThatPatchReads)
{
	const std::string Names = "--- f\n+++ f\n";
	const std::string Ten = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n";
	const struct
	{
		const char* Behaviour;
		std::optional<std::string> Old;
		std::optional<std::string> New;
		std::string Difference;
	} Cases[] = {
		{"nothing", "a\n", "a\n", ""},
		{"nothing of nothing", std::nullopt, "", ""},
		{"a new file of one line", std::nullopt, "a\n", "--- /dev/null\n+++ f\n@@ -0,0 +1 @@\n+a\n"},
		{"a file that goes", "a\nb\n", std::nullopt, "--- f\n+++ /dev/null\n@@ -1,2 +0,0 @@\n-a\n-b\n"},
		{"a line in the middle", Ten, CollisionIni::Replace(Ten, "5\n", "5\nx\n"), Names + "@@ -3,6 +3,7 @@\n 3\n 4\n 5\n+x\n 6\n 7\n 8\n"},
		{"a line taken out", Ten, CollisionIni::Replace(Ten, "5\n", ""), Names + "@@ -2,7 +2,6 @@\n 2\n 3\n 4\n-5\n 6\n 7\n 8\n"},
		{"two lines taken out, far apart", "x\n" + Ten + "y\n", Ten, Names + "@@ -1,4 +1,3 @@\n-x\n 1\n 2\n 3\n@@ -9,4 +8,3 @@\n 8\n 9\n 10\n-y\n"},
		{"six lines between are one piece", "1\n2\n3\n4\n5\n6\n", "x\n1\n2\n3\n4\n5\n6\ny\n", Names + "@@ -1,6 +1,8 @@\n+x\n 1\n 2\n 3\n 4\n 5\n 6\n+y\n"},
		{"seven are two", "1\n2\n3\n4\n5\n6\n7\n", "x\n1\n2\n3\n4\n5\n6\n7\ny\n", Names + "@@ -1,3 +1,4 @@\n+x\n 1\n 2\n 3\n@@ -5,3 +6,4 @@\n 5\n 6\n 7\n+y\n"},
		{"changes of both kinds are one", "a\nb\nc\nd\ne\n", "a\nx\nc\ny\nz\ne\n", Names + "@@ -1,5 +1,6 @@\n a\n-b\n+x\n c\n-d\n+y\n+z\n e\n"},
		{"as many lines before and after", "a\nb\n", "b\na\n", Names + "@@ -1,2 +1,2 @@\n-a\n b\n+a\n"},
		{"a second copy of a line", "a\nb\n", "a\nb\na\nb\n", Names + "@@ -1,2 +1,4 @@\n a\n b\n+a\n+b\n"},
		{"a last line without end", "a", "a\n", Names + "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(UnifiedDifference::Make("f", Case.Old, Case.New), Case.Difference);
		FFileText Before{TEXT("/f"), Case.Old.has_value(), Case.Old.value_or("")};
		const FFileText After{TEXT("/f"), Case.New.has_value(), Case.New.value_or("")};
		const FFileChange Change = FileChanges::Compare(Before, After);
		const size_t Body = Case.Difference.find("@@");
		const std::string Shown = "\n" + (Body == std::string::npos ? "" : Case.Difference.substr(Body));
		const size_t Ends = CountOf(Shown, "\\ No newline") * 2; // Compare() does not look at line ends
		EXPECT_EQ(static_cast<size_t>(Change.AddedLines.Num() + Change.RemovedLines.Num()) + Ends, CountOf(Shown, "\n+") + CountOf(Shown, "\n-"));
		EXPECT_EQ(Change.bDeleted, Case.Old.has_value() && !Case.New.has_value());
	}
	for (const auto& [Path, Name] : {std::pair("/p/Config/f", "Config/f"), std::pair("/pq/f", "/pq/f"), std::pair("/P/f", "/P/f")})
	{
		const FFileText File{FString(Path), true, std::string("a\n")};
		EXPECT_EQ(FileChanges::Describe(TEXT("/p/"), FFileText{FString(Path), true, {}}, File), std::string("--- ") + Name + "\n+++ " + Name + "\n@@ -0,0 +1 @@\n+a\n");
	}
	const TArray<FString> Extra = LineDifference::GetAdded("a\nb\nb\r\n", "b\na\na\r\nc\nb\nb\na");
	EXPECT_EQ(TCHAR_TO_UTF8(*FString::Join(Extra, TEXT(","))), std::string("a,c,b,a")) << "a second copy is one more line";
	EXPECT_EQ(LineDifference::Split("a\r\nb\rc\n\nd\r\r\n\n"), (LineDifference::FLines{"a", "b", "c", "", "d", "", ""}));
	EXPECT_EQ(LineDifference::Split("\ra\n\rb"), (LineDifference::FLines{"", "a", "", "b"}));
}

TEST_F(CheckReports, ARecordOfARepairIsReadBackOrRefused)
{
	const std::string State = Folder.GetNative("UserState").string();
	ASSERT_EQ(setenv("XDG_STATE_HOME", State.c_str(), 1), 0);
	HostState::DestroyAll();
	FRepairRecord Record;
	ASSERT_TRUE(RepairRecord::Make("a\nb\n", "x\na\ny\nz\nb\n", Record));
	Record.bCreated = true;
	const FString Project = TEXT("/nowhere/T\u00FCr");
	ASSERT_TRUE(RepairRecord::Save(Project, Record));
	const std::string File = "UserState/velmorant/repair-afb637a4c269efda.json"; // later versions look for the same name
	ASSERT_TRUE(Folder.Exists(File)) << std::filesystem::directory_iterator(Folder.GetNative("UserState/velmorant"))->path();
	const std::string Text = "{\n  \"project\": \"/nowhere/T\xC3\xBCr\",\n  \"created\": true,\n  \"added\": [\n    [\n      \"x\"\n    ],\n    [\n      \"y\",\n      \"z\"\n    ]\n  ]\n}\n";
	EXPECT_EQ(Folder.Read(File), Text);
	FRepairRecord Read;
	EXPECT_EQ(RepairRecord::Load(Project, Read), HostFiles::ERead::Done);
	EXPECT_TRUE(Read.bCreated);
	ASSERT_EQ(Read.Added.Num(), 2);
	EXPECT_TRUE(Read.Added[1] == Record.Added[1]);
	EXPECT_EQ(RepairRecord::Load(TEXT("/nowhere"), Read), HostFiles::ERead::Missing);

	for (const char* Other : {"", "[]", "{}", R"({"created": true, "added": []})", R"({"project": 1, "created": true, "added": []})", R"({"project": "", "added": []})", R"({"project": "", "created": 1, "added": []})", R"({"project": "", "created": true})", R"({"project": "", "created": true, "added": {}})", R"({"project": "", "created": true, "added": ["x"]})", R"({"project": "", "created": true, "added": [["x", 1]]})"})
	{
		SCOPED_TRACE(Other);
		Folder.Write(File, Other);
		HostProblems::Clear();
		EXPECT_EQ(RepairRecord::Load(Project, Read), HostFiles::ERead::Failed);
		EXPECT_EQ(HostProblems::GetAll().Num(), 1);
	}
	Folder.Write(File, R"({"project": "/nowhere/else", "created": false, "added": []})");
	EXPECT_EQ(RepairRecord::Load(Project, Read), HostFiles::ERead::Missing) << "another project's";
	EXPECT_TRUE(RepairRecord::Forget(Project));
	EXPECT_FALSE(Folder.Exists(File));
	EXPECT_FALSE(RepairRecord::Make("a\nb\n", "a\nx\n", Record)) << "a line was replaced";
	unsetenv("XDG_STATE_HOME");
}

TEST_F(CheckReports, TheVerdictIsReadFromWhatTheToolkitSays)
{
	const TCHAR* const SoundLine = TEXT("Checked UnitVolume DefaultChannelResponses and profile exist.");
	const TCHAR* const Refused = TEXT("Notification not shown: Velmorant: Da fehlt etwas: ");
	const struct
	{
		const char* Behaviour;
		bool bSound; // the project is, so that the toolkit says so
		const TCHAR* Line;
		bool bAsksMore;
		EToolkitVerdict Verdict;
	} Cases[] = {
		{"it says sound", true, nullptr, false, EToolkitVerdict::Sound},
		{"it asks", false, nullptr, false, EToolkitVerdict::Missing},
		{"it says both", true, nullptr, true, EToolkitVerdict::None},
		{"it asks and says sound", false, SoundLine, false, EToolkitVerdict::None},
		{"it asks in both ways", false, Refused, false, EToolkitVerdict::Missing},
		{"it could not show something else", true, Refused, false, EToolkitVerdict::Sound},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteIni(SectionLine + GlassLine + (Case.bSound ? ProfileLine + ChannelLine : ""));
		FEditorHostOptions Options;
		Options.Project = Folder.Get("Project/Test.uproject");
		Options.UserSettingsDir = Folder.Get("UserConfig");
		const FEditorHost Editor(Options);
		if (Case.Line != nullptr)
		{
			UE_LOG(LogVelmorantProEditor, Warning, TEXT("%s"), Case.Line);
		}
		if (Case.bAsksMore)
		{
			NewObject<UObject>(GetTransientPackage(), FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.CheckCollisionNotification")))->AddToRoot();
		}
		EXPECT_EQ(ToolkitVerdict::Read(), Case.Verdict);
	}
}
