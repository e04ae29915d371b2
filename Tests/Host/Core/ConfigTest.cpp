// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostFiles.h"
#include "Misc/ConfigCacheIni.h"

#include <algorithm>

namespace ConfigTest
{
	class Config : public FEditorFilesTest
	{
	protected:
		/** The section of a file read by path; one line says so when there is none. */
		std::vector<std::string> GetSection(const FString& Filename, const TCHAR* Section)
		{
			TArray<FString> Lines{TEXT("left over")};
			const bool bFound = GConfig->GetSection(Section, Lines, Filename);
			return bFound ? ToUtf8(Lines) : std::vector<std::string>{"no such section"};
		}

		std::vector<std::string> GetArray(const FString& Filename, const TCHAR* Key)
		{
			TArray<FString> Values;
			GConfig->GetArray(TEXT("S"), Key, Values, Filename);
			return ToUtf8(Values);
		}

		FString File = Folder.Get("Config/DefaultEngine.ini");
	};

	TEST_F(Config, AFileReadByPathKeepsItsLinesAsTheyAre)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Text;
			std::vector<std::string> Expected;
		};
		const FCase Cases[] = {
			{"operations stay in front of keys", "[S]\n+A=1\n-A=2\n.A=3\n!A=4\n@A=5\n*A=6\n", {"+A=1", "-A=2", ".A=3", "!A=4", "@A=5", "*A=6"}},
			{"quotes around the whole value go", "[S]\nA=\" x \\\"y\\\" \\\\ \\n\"\n", {"A= x \"y\" \\ \n"}},
			{"comments and lines without '=' are ignored", "[S]\n; A=1\n  ;A=2\nnothing\nA=3 ; no comment\n// B=4\n", {"A=3 ; no comment", "// B=4"}},
			{"a value may hold '='", "[S]\nA=b=c\n", {"A=b=c"}},
			{"a value may be empty", "[S]\nA=\n=b\n", {"A="}},
			{"blanks around a header", "  [S]  \nA=1\n", {"A=1"}},
			{"entries before the first header belong to none", "A=1\n[S]\nB=2\n", {"B=2"}},
			{"a backslash at the end joins the next line", "[S]\nA=1\\\n2\\\n[T]\nB=3\n", {"A=12[T]", "B=3"}},
			{"CRLF", "[S]\r\nA=1\r\nB=2", {"A=1", "B=2"}},
			{"a lone CR", "[S]\rA=1\rB=2\r", {"A=1", "B=2"}},
			{"a mark in front", "\xEF\xBB\xBF[S]\nA=\xC3\xBC\n", {"A=\xC3\xBC"}},
			{"a key may look numbered", "[S]\nA_01=1\nA_1=2\nA_0=3\n", {"A_01=1", "A_1=2", "A_0=3"}},
			{"a key may be as long as a name", "[S]\n" + std::string(1023, 'k') + "=1\nA=2\n", {std::string(1023, 'k') + "=1", "A=2"}},
			{"what is too long for a key is none", "[S]\n" + std::string(1024, 'k') + "=1\nA=2\n", {"A=2"}},
			{"all kinds of blanks go", "[S]\n\f\v\tA\v=\f1\v \n", {"A=1"}},
			{"a bracket alone is no header", "[S]\n[\n]\n[T\nT]\nA=1\n", {"A=1"}},
			{"a header may name nothing", "[S]\nA=1\n[]\nB=2\n", {"A=1"}},
			{"a comment joins nothing", "[S]\n; c\\\nA=1\n ; c\\\n[T]\nB=2\n", {"A=1"}},
			{"a comment within joined lines is text", "[S]\nA=1\\\n;2\nB=3\n", {"A=1;2", "B=3"}},
			{"joined lines at the very end", "[S]\nA=1\\", {"A=1"}},
			{"what stands behind the closing quote goes", "[S]\nA=\"x\" y\nB=\"open\nC=x \"y\"\n", {"A=x", "B=open", "C=x \"y\""}},
			{"other letters behind a backslash mean themselves", "[S]\nA=\"\\t\\\\n\\\"\nB=\\n\n", {"A=\\t\\n\"", "B=\\n"}},
			{"all mixed line ends", "[S]\rA=1\r\nB=2\n\rC=3\r\r\nD=4", {"A=1", "B=2", "C=3", "D=4"}},
			{"a mark in UTF-16", std::string("\xFF\xFE[\0S\0]\0\n\0A\0=\0\xAC\x20\n\0", 18), {"A=\xE2\x82\xAC"}},
			{"an empty section", "[S]\n[T]\nA=1\n", {}},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("Config/DefaultEngine.ini", Case.Text);
			GConfig->UnloadFile(File);
			EXPECT_EQ(GetSection(File, TEXT("s")), Case.Expected);
		}
	}

	TEST_F(Config, AFileReadByPathStaysAsItWasUntilItIsUnloaded)
	{
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=1\n");
		ASSERT_TRUE(GConfig->DoesSectionExist(TEXT("S"), File));
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=2\n[T]\n");
		EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=1"});
		EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("T"), File));
		const FConfigSection* const Forced = GConfig->GetSection(TEXT("T"), true, File);
		ASSERT_NE(Forced, nullptr);
		EXPECT_EQ(Forced->Num(), 0) << "whoever insists gets an empty one";
		EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("T"), File));
		GConfig->UnloadFile(File);
		EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=2"});
		EXPECT_TRUE(GConfig->DoesSectionExist(TEXT("t"), File));
		Folder.Write("Config/DefaultEngine.ini", "A=0\n[S]\nA=3\n");
		GConfig->UnloadFile(File);
		EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=3"});
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=4\n");
		EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=3"}) << "it was read before";
		EXPECT_EQ(GetSection(File, TEXT("")), std::vector<std::string>{"no such section"});
		Folder.Write("Engine.ini", "[S]\n+A=1\n-A=1\n");
		EXPECT_EQ(GetSection(Folder.Get("Engine.ini"), TEXT("S")), (std::vector<std::string>{"+A=1", "-A=1"})) << "a branch's name alone makes none";
	}

	TEST_F(Config, ACopyOfASingleFileFollowsWhatTheEditorWrites)
	{
		const auto MakeLines = [](const TCHAR* Value) { return TArray<TPair<FString, FString>>{TPair<FString, FString>(TEXT("A"), Value)}; };
		for (const bool bOverlay : {false, true})
		{
			SCOPED_TRACE(bOverlay ? "in the overlay" : "on disk");
			Folder.Write("Config/DefaultEngine.ini", "[T]\nB=1\n");
			Restart();
			if (bOverlay)
			{
				HostFiles::BeginOverlay();
			}
			EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"no such section"});
			EXPECT_EQ(GetArray(GEngineIni, TEXT("A")), std::vector<std::string>{});
			HostConfig::UpdateSection(File, TEXT("S"), MakeLines(TEXT("section")), {});
			EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=section"});
			HostFiles::Write(Folder.Get("Config/../Config/DefaultEngine.ini"), "[S]\nA=text\n");
			EXPECT_EQ(GetSection(File, TEXT("S")), std::vector<std::string>{"A=text"}) << "whatever the path was called";
			EXPECT_EQ(GetArray(GEngineIni, TEXT("A")), std::vector<std::string>{}) << "a branch waits until it is reloaded";
			HostFiles::Delete(File);
			EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("S"), File));
		}
	}

	TEST_F(Config, AMissingFileHasNoSectionsUntilItTurnsUp)
	{
		EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("S"), File));
		EXPECT_EQ(GetArray(File, TEXT("A")), std::vector<std::string>{});
		EXPECT_EQ(GConfig->GetSection(TEXT("S"), false, File), nullptr) << "asking makes none";
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=1\n");
		EXPECT_TRUE(GConfig->DoesSectionExist(TEXT("S"), File));
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(Config, AnUnreadableFileIsReportedAndHasNoSections)
	{
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=T\xFCr\n");
		EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("S"), File));
		EXPECT_EQ(HostProblems::GetAll().Num(), 1);
	}

	TEST_F(Config, ABranchMergesEngineProjectAndUser)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Base;
			std::string Project;
			std::string User;
			std::vector<std::string> Expected;
		};
		const FCase Cases[] = {
			{"a plain key replaces", "A=1", "A=2", "", {"2"}},
			{"a plain key replaces a whole list", "+A=1\n+A=2", "A=3", "", {"3"}},
			{"plus adds", "+A=1", "+A=2", "+A=3", {"1", "2", "3"}},
			{"plus adds no value twice", "+A=1", "+A=1\n+A=2", "+A=2", {"1", "2"}},
			{"case makes another value", "+A=x", "+A=X", "", {"x", "X"}},
			{"a dot adds in any case", "+A=1", ".A=1", "", {"1", "1"}},
			{"minus removes the value", "+A=1\n+A=2", "-A=1", "", {"2"}},
			{"minus of an unknown value does nothing", "+A=1", "-A=2", "", {"1"}},
			{"what was removed can be added at the end", "+A=1\n+A=2", "-A=1\n+A=1", "", {"2", "1"}},
			{"an exclamation mark removes all", "+A=1\n+A=2", "!A=ClearArray\n+A=3", "", {"3"}},
			{"minus removes every copy", ".A=1\n.A=2\n.A=1", "-A=1", "", {"2"}},
			{"a star adds as plus does", "*A=1", "*A=1\n*A=2", "", {"1", "2"}},
			{"an at sign brings nothing", "A=1", "@A=2", "", {"1"}},
			{"an operation without key brings nothing", "A=1", "+=2\n!=3", "", {"1"}},
			{"what is too long for a key is none", std::string(1024, 'k') + "=1\nA=1", "", "", {"1"}},
			{"keys above the first header belong to none", "A=1", "", "", {"1"}},
			{"keys ignore case", "+a=1", "+A=2", "", {"1", "2"}},
			{"the user has the last word", "A=1", "A=2", "A=3", {"3"}},
			{"no layer has the key", "", "", "", {}},
		};
		HostPaths::SetEngineDir(Folder.Get("Engine"));
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("Engine/Config/BaseEngine.ini", "[S]\n" + Case.Base);
			Folder.Write("Config/DefaultEngine.ini", "A=above\n[S]\n" + Case.Project);
			Folder.Write("Saved/Config/LinuxEditor/Engine.ini", "[S]\n" + Case.User);
			HostConfig::ReloadBranch(TEXT("Engine"));
			EXPECT_EQ(GetArray(GEngineIni, TEXT("A")), Case.Expected);
		}
	}

	TEST_F(Config, LaterLayersOverruleEarlierOnes)
	{
		HostPaths::SetEngineDir(Folder.Get("Engine"));
		const struct
		{
			const char* Platform;
			std::vector<const char*> Layers; // lowest first
			std::vector<const char*> Others; // not read
		} Cases[] = {
			{"Linux",
				{"Engine/Config/BaseEngine.ini", "Config/DefaultEngine.ini", "Config/Unix/UnixEngine.ini", "Platforms/Unix/Config/UnixEngine.ini", "Config/Linux/LinuxEngine.ini", "Platforms/Linux/Config/LinuxEngine.ini", "Config/UserEngine.ini", "Saved/Config/LinuxEditor/Engine.ini"},
				{"Config/Windows/WindowsEngine.ini", "Config/Mac/MacEngine.ini", "Saved/Config/WindowsEditor/Engine.ini"}},
			{"Windows",
				{"Engine/Config/BaseEngine.ini", "Config/DefaultEngine.ini", "Config/Windows/WindowsEngine.ini", "Platforms/Windows/Config/WindowsEngine.ini", "Config/UserEngine.ini", "Saved/Config/WindowsEditor/Engine.ini"},
				{"Config/Linux/LinuxEngine.ini", "Config/Unix/UnixEngine.ini", "Saved/Config/LinuxEditor/Engine.ini"}},
			{"Mac", {"Engine/Config/BaseEngine.ini", "Config/Mac/MacEngine.ini"}, {"Config/Linux/LinuxEngine.ini", "Config/Unix/UnixEngine.ini"}},
		};
		for (const auto& Case : Cases)
		{
			SCOPED_TRACE(Case.Platform);
			Restart();
			HostPaths::SetEngineDir(Folder.Get("Engine"));
			HostConfig::SetPlatform(Case.Platform);
			for (const char* Other : Case.Others)
			{
				Folder.Write(Other, "[S]\nA=other\n+List=other\n");
			}
			std::vector<std::string> List;
			for (const char* Layer : Case.Layers)
			{
				Folder.Write(Layer, std::string("[S]\nA=") + Layer + "\n+List=" + Layer + "\n");
				List.push_back(Layer);
				const FString Branch = HostConfig::GetBranchFile(TEXT("Engine"));
				HostConfig::ReloadBranch(TEXT("Engine"));
				EXPECT_EQ(GetArray(Branch, TEXT("A")), std::vector<std::string>{Layer});
				EXPECT_EQ(GetArray(Branch, TEXT("List")), List);
			}
			for (const std::vector<const char*>& Files : {Case.Layers, Case.Others})
			{
				for (const char* Written : Files)
				{
					std::filesystem::remove(Folder.GetNative(Written));
				}
			}
		}
	}

	TEST_F(Config, TellsWhichLineTookAValueAway)
	{
		Folder.Write("Config/DefaultEngine.ini", "; c\n[S]\n+A=1\n+A=2\n+A=3\nB=4\n+C=5\n[T]\n!C=ClearArray\n");
		Folder.Write("Config/Linux/LinuxEngine.ini", "[S]\r\n-a = 2\r\nB=6\r\n");
		Folder.Write("Config/UserEngine.ini", "[Other]\n\n[s]\rX=1\\\n2\r!A=ClearArray\n+A=3\n");
		std::vector<std::string> Found;
		for (const HostConfig::FRemovedValue& Removed : HostConfig::GetRemovedValues(TEXT("Engine"), TEXT("S")))
		{
			const std::string Relative = std::filesystem::relative(ToUtf8(Removed.File), Folder.GetNative()).string();
			Found.push_back(ToUtf8(Removed.Key) + "=" + ToUtf8(Removed.Value) + " by " + Relative + "(" + std::to_string(Removed.Line) + ") " + ToUtf8(Removed.LineText));
		}
		EXPECT_EQ(Found, (std::vector<std::string>{"A=1 by Config/UserEngine.ini(6) !A=ClearArray", "A=2 by Config/Linux/LinuxEngine.ini(2) -a = 2", "A=3 by Config/UserEngine.ini(6) !A=ClearArray", "B=4 by Config/Linux/LinuxEngine.ini(3) B=6"}));
	}

	TEST_F(Config, AnyNameIsABranchAndAnyLayerMayBeMissing)
	{
		Folder.Write("Config/DefaultVelmorant.ini", "[S]\n+A=1\n");
		EXPECT_EQ(GetArray(HostConfig::GetBranchFile(TEXT("Velmorant")), TEXT("A")), std::vector<std::string>{"1"});
		EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("S"), HostConfig::GetBranchFile(TEXT("Unheard")))) << "nothing is written for it anywhere";
	}

	TEST_F(Config, MacrosInValuesStandForFolders)
	{
		HostPaths::SetProjectFile(Folder.Get("Harbor.uproject"));
		HostPaths::SetEngineDir(Folder.Get("Engine"));
		Folder.Write("Config/DefaultGame.ini", "[S]\nA=%GAMEDIR%Content %GAMEDIR%\nB=100%\nD=%GAME%-%ENGINEDIR%-%game%\nE=%APPSETTINGSDIR%\n");
		FString Value;
		const std::string Project = Folder.GetNative().string() + "/";
		const std::pair<const TCHAR*, std::string> Expected[] = {
			{TEXT("A"), Project + "Content " + Project},
			{TEXT("B"), "100%"},
			{TEXT("D"), "Harbor-" + Project + "Engine/-%game%"},
			{TEXT("E"), Project + "Saved/Config/"},
		};
		for (const auto& [Key, Text] : Expected)
		{
			ASSERT_TRUE(GConfig->GetString(TEXT("S"), Key, Value, GGameIni));
			EXPECT_EQ(ToUtf8(Value), Text);
		}
		EXPECT_FALSE(GConfig->GetString(TEXT("S"), TEXT("C"), Value, GGameIni));
	}

	TEST_F(Config, TheHostBringsTheStockCollisionProfiles)
	{
		TArray<FString> Profiles;
		EXPECT_EQ(GConfig->GetArray(TEXT("/Script/Engine.CollisionProfile"), TEXT("Profiles"), Profiles, GEngineIni), 18);
		ASSERT_FALSE(Profiles.IsEmpty());
		EXPECT_TRUE(Profiles[0].StartsWith(TEXT("(Name=\"NoCollision\",CollisionEnabled=NoCollision,")));
		for (const FString& Profile : Profiles)
		{
			EXPECT_EQ(Profile.Contains(TEXT("UnitVolume")), false);
			EXPECT_TRUE(Profile.EndsWith(TEXT("\")"))) << ToUtf8(Profile);
		}
	}

	TEST_F(Config, GoesWithItsEditor)
	{
		const std::pair<const FString*, const TCHAR*> Files[] = {{&GEngineIni, TEXT("Engine.ini")}, {&GGameIni, TEXT("Game.ini")}, {&GEditorIni, TEXT("Editor.ini")}, {&GEditorPerProjectIni, TEXT("EditorPerProjectUserSettings.ini")}};
		for (const auto& [Branch, Name] : Files)
		{
			EXPECT_TRUE(Branch->EndsWith(FString(TEXT("/Saved/Config/LinuxEditor/")) + Name)) << ToUtf8(*Branch);
		}
		HostState::DestroyAll();
		EXPECT_EQ(GConfig, nullptr);
		for (const auto& [Branch, Name] : Files)
		{
			EXPECT_TRUE(Branch->IsEmpty()) << ToUtf8(Name);
		}
	}

	class SectionUpdate : public Config
	{
	protected:
		struct FLine
		{
			const char* Key;
			const char* Value;
		};

		bool Update(const std::vector<FLine>& Wanted, const std::vector<const char*>& Owned = {"A", "List"})
		{
			TArray<TPair<FString, FString>> Lines;
			for (const FLine& Line : Wanted)
			{
				Lines.Add(TPair<FString, FString>(FString(Line.Key), FString(UTF8_TO_TCHAR(Line.Value))));
			}
			TArray<FString> Keys;
			for (const char* Key : Owned)
			{
				Keys.Add(FString(Key));
			}
			return HostConfig::UpdateSection(File, TEXT("S"), Lines, Keys);
		}
	};

	TEST_F(SectionUpdate, ChangesItsOwnKeysAndNothingElse)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Before;
			std::vector<FLine> Wanted;
			std::string After;
		};
		const FCase Cases[] = {
			{"a changed value changes in place", "; c\n[S]\nX=1\nA=old ; text\nY=2\n[T]\nA=old\n", {{"A", "new"}}, "; c\n[S]\nX=1\nA=new\nY=2\n[T]\nA=old\n"},
			{"a new key ends the section, before blank lines", "[S]\nX=1\n\n[T]\nB=2\n", {{"A", "1"}}, "[S]\nX=1\nA=1\n\n[T]\nB=2\n"},
			{"a section without entries", "[S]\n\n[T]\n", {{"A", "1"}}, "[S]\nA=1\n\n[T]\n"},
			{"a new section ends the file", "[T]\nB=2\n", {{"A", "1"}}, "[T]\nB=2\n\n[S]\nA=1\n"},
			{"a list keeps its place and grows there", "[S]\n+List=1\n; about X\nX=1\n", {{"+List", "1"}, {"+List", "2"}}, "[S]\n+List=1\n+List=2\n; about X\nX=1\n"},
			{"a list shrinks", "[S]\n+List=1\n+List=2\nX=1\n+List=3\n", {{"+List", "1"}}, "[S]\n+List=1\nX=1\n"},
			{"all own lines may go", "[S]\nA=1\nX=2\n+List=3\n", {}, "[S]\nX=2\n"},
			{"whatever the operation in front of an own key", "[S]\n.List=1\n!List=x\n", {{"+List", "1"}}, "[S]\n+List=1\n"},
			{"foreign keys that begin alike stay", "[S]\nAB=1\nA=1\n", {{"A", "2"}}, "[S]\nAB=1\nA=2\n"},
			{"case of section and key does not count", "[s]\na=1\n", {{"A", "2"}}, "[s]\nA=2\n"},
			{"a section in two parts", "[S]\nA=1\n[T]\n[S]\nX=1\n", {{"A", "2"}, {"+List", "1"}}, "[S]\nA=2\n[T]\n[S]\nX=1\n+List=1\n"},
			{"line ends stay", "[S]\r\nA=1\r\nX=1\n[T]\r\n", {{"A", "2"}, {"+List", "1"}}, "[S]\r\nA=2\r\nX=1\n+List=1\r\n[T]\r\n"},
			{"a missing last line end stays missing", "[S]\nX=1", {{"A", "2"}}, "[S]\nX=1\nA=2"},
			{"an entry on several lines is one", "[S]\nA=1\\\n2\nX=1\n", {{"A", "3"}}, "[S]\nA=3\nX=1\n"},
			{"a comment that looks like an entry", "[S]\n;A=1\n", {{"A", "2"}}, "[S]\n;A=1\nA=2\n"},
			{"keys above the first header are none of its", "A=0\n\n[S]\nA=1\n", {{"A", "2"}}, "A=0\n\n[S]\nA=2\n"},
			{"entries on several lines that say the same stay", "[S]\nA=1\\\n2\\\n3\nX=1\n", {{"A", "123"}}, "[S]\nA=1\\\n2\\\n3\nX=1\n"},
			{"what is wanted on one line comes in place of several", "[S]\r\nA=1\\\r\n2\nX=1\r\n", {{"A", "1"}}, "[S]\r\nA=1\nX=1\r\n"},
			{"foreign entries on several lines stay", "[S]\nX=1\\\nA=9\n", {{"A", "1"}}, "[S]\nX=1\\\nA=9\nA=1\n"},
			{"other operation, same value", "[S]\n-List=1\n", {{"+List", "1"}}, "[S]\n+List=1\n"},
			{"new keys come in the caller's order", "[S]\n\n", {{"+List", "1"}, {"A", "2"}, {"+List", "3"}}, "[S]\n+List=1\n+List=3\nA=2\n\n"},
			{"a blank line in front of a new section is there already", "[T]\nB=2\n \n", {{"A", "1"}}, "[T]\nB=2\n \n[S]\nA=1\n"},
			{"a file of comments", "; c", {{"A", "1"}}, "; c\n\n[S]\nA=1"},
			{"a section's last line is a comment", "[S]\n; c\n\n[T]\n", {{"A", "1"}}, "[S]\n; c\nA=1\n\n[T]\n"},
			{"line breaks in values", "[S]\n", {{"A", "a\r\nb"}, {"+List", "x\\y"}, {"+List", "a\"b"}, {"+List", ""}}, "[S]\nA=\"a\\nb\"\n+List=x\\y\n+List=a\"b\n+List=\n"},
			{"nothing to say to a section that is not there", "[T]\nA=1\n", {}, "[T]\nA=1\n"},
			{"a euro sign beside it", "; \xE2\x82\xAC\n[S]\nA=1\n; \xF0\x9F\x8F\xA0\n", {{"A", "2"}}, "; \xE2\x82\xAC\n[S]\nA=2\n; \xF0\x9F\x8F\xA0\n"},
			{"values are quoted where they must be", "[S]\n", {{"+List", " x "}, {"+List", "\"q\""}, {"+List", "(a=\"b\")"}, {"+List", "c\\"}}, "[S]\n+List=\" x \"\n+List=\"\\\"q\\\"\"\n+List=(a=\"b\")\n+List=\"c\\\\\"\n"},
			{"a mark stays", "\xEF\xBB\xBF[S]\nA=1\n", {{"A", "\xC3\xBC"}}, "\xEF\xBB\xBF[S]\nA=\xC3\xBC\n"},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("Config/DefaultEngine.ini", Case.Before);
			EXPECT_TRUE(Update(Case.Wanted));
			EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), Case.After);
		}
	}

	TEST_F(SectionUpdate, LeavesAFileAloneThatSaysAllThisAlready)
	{
		for (const std::string Text : {"[S]\r\n a = 1\r\n+List=\"x\"\r\n\r\nX=y", "\xEF\xBB\xBF[s]\nA=\"1\"\n+LIST=x\n"})
		{
			Folder.Write("Config/DefaultEngine.ini", Text);
			const auto Before = Age("Config/DefaultEngine.ini");
			EXPECT_TRUE(Update({{"A", "1"}, {"+List", "x"}}));
			EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), Text);
			EXPECT_EQ(std::filesystem::last_write_time(Folder.GetNative("Config/DefaultEngine.ini")), Before);
		}
	}

	TEST_F(SectionUpdate, CreatesFileAndFolderOnlyWhenThereIsSomethingToSay)
	{
		EXPECT_TRUE(Update({}));
		EXPECT_FALSE(Folder.Exists("Config/DefaultEngine.ini"));
		EXPECT_TRUE(Update({{"A", "1"}}));
		EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), "[S]\nA=1\n");
		Folder.Write("Config/DefaultEngine.ini", "");
		EXPECT_TRUE(Update({{"A", "\xC3\xBC"}}));
		EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini").substr(0, 4), std::string("\xFF\xFE[\0", 4)) << "as the editor encodes a new file";
	}

	TEST_F(SectionUpdate, WhatIsWrittenReadsBackAfterAReload)
	{
		const std::vector<FLine> Lines = {{"+List", "  blanks  "}, {"+List", "say \"hi\""}, {"+List", "\"quoted\" \\ and \n broken"}, {"+List", "T\xC3\xBCr"}};
		EXPECT_EQ(GetArray(GEngineIni, TEXT("List")), std::vector<std::string>{});
		ASSERT_TRUE(Update(Lines));
		EXPECT_EQ(GetArray(GEngineIni, TEXT("List")), std::vector<std::string>{}) << "a branch changes when it is reloaded, not before";
		HostConfig::ReloadBranch(TEXT("Engine"));
		EXPECT_EQ(GetArray(GEngineIni, TEXT("List")), (std::vector<std::string>{"  blanks  ", "say \"hi\"", "\"quoted\" \\ and \n broken", "T\xC3\xBCr"}));
	}

	TEST_F(SectionUpdate, RefusesFilesThatItCannotReadOrWrite)
	{
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=T\xFCr\n");
		EXPECT_FALSE(Update({{"A", "1"}}));
		EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), "[S]\nA=T\xFCr\n");
		Folder.Write("Config/DefaultEngine.ini", "[S]\n");
		std::filesystem::permissions(Folder.GetNative("Config/DefaultEngine.ini"), std::filesystem::perms::owner_read);
		EXPECT_FALSE(Update({{"A", "1"}}));
		EXPECT_EQ(HostProblems::GetAll().Num(), 3) << GetProblems();
		EXPECT_EQ(HostProblems::GetNotWritten().Num(), 2) << "the fault in the text, and that nothing was written";
	}

	class LineRemoval : public Config
	{
	protected:
		HostConfig::ERemoval Remove(const std::vector<std::vector<const char*>>& Blocks)
		{
			TArray<TArray<FString>> Texts;
			for (const std::vector<const char*>& Block : Blocks)
			{
				TArray<FString>& Lines = Texts.AddDefaulted_GetRef();
				for (const char* Line : Block)
				{
					Lines.Add(FString(UTF8_TO_TCHAR(Line)));
				}
			}
			Reason.Empty();
			return HostConfig::RemoveLines(File, Texts, Reason);
		}

		FString Reason;
	};

	TEST_F(LineRemoval, TakesOutWhatWasPutInWhereverItStandsNow)
	{
		const struct
		{
			const char* Behaviour;
			std::string Before;
			std::vector<std::vector<const char*>> Blocks;
			std::string After;
		} Cases[] = {
			{"a block", "[S]\nA=1\nP=1\nC=1\nB=1\n", {{"P=1", "C=1"}}, "[S]\nA=1\nB=1\n"},
			{"with lines before, between and behind it", "; new\n[S]\nA=1\nX=1\nP=1\nY=1\nC=1\nZ=1\n", {{"P=1", "C=1"}}, "; new\n[S]\nA=1\nX=1\nY=1\nZ=1\n"},
			{"of two that are equal, the last", "[S]\nP=1\nC=1\nA=1\nP=1\nC=1\nB=1\n", {{"P=1", "C=1"}}, "[S]\nP=1\nC=1\nA=1\nB=1\n"},
			{"the lines that stand closest", "[S]\nP=1\nC=1\nA=1\nP=1\nB=1\nC=1\n", {{"P=1", "C=1"}}, "[S]\nA=1\nP=1\nB=1\nC=1\n"},
			{"the same block twice", "[S]\nP=1\nA=1\nP=1\n", {{"P=1"}, {"P=1"}}, "[S]\nA=1\n"},
			{"a section with the blank line in front", "[A]\nK=1\n\n[S]\nP=1\n", {{"", "[S]", "P=1"}}, "[A]\nK=1\n"},
			{"a section whose blank line is gone", "[A]\nK=1\n[S]\nP=1\n", {{"", "[S]", "P=1"}}, "[A]\nK=1\n"},
			{"the blank line at the top", "\n[S]\nP=1\n", {{"", "[S]", "P=1"}}, ""},
			{"no more blank lines than were put in", "[A]\n\n\n[S]\nP=1\n", {{"", "[S]", "P=1"}}, "[A]\n\n"},
			{"a section with a comment and another section behind it", "[A]\nK=1\n[S]\nP=1\n; c\n[B]\nL=1\n", {{"[S]", "P=1"}}, "[A]\nK=1\n; c\n[B]\nL=1\n"},
			{"everything", "[S]\nP=1\n", {{"[S]", "P=1"}}, ""},
			{"line ends stay, each its own", "[S]\r\nA=1\nP=1\r\nB=1\r\n", {{"P=1"}}, "[S]\r\nA=1\nB=1\r\n"},
			{"a missing last line end stays missing", "[S]\nA=1\nP=1", {{"P=1"}}, "[S]\nA=1"},
			{"letters beyond ASCII and a mark", "\xEF\xBB\xBF; \xC3\xBC\n[S]\nP=\xC3\xA1\n", {{"P=\xC3\xA1"}}, "\xEF\xBB\xBF; \xC3\xBC\n[S]\n"},
			{"keys above the first header", "A=1\n[S]\nP=1\n", {{"[S]", "P=1"}}, "A=1\n"},
			{"the second header of a section", "[S]\nA=1\n[s]\nP=1\nB=1\n", {{"[s]", "P=1"}}, "[S]\nA=1\nB=1\n"},
			{"nothing but blank lines", "[S]\n\nP=1\n", {{"", ""}}, "[S]\n\nP=1\n"},
			{"blank lines behind the block stay", "[S]\nP=1\n\nA=1\n", {{"P=1", ""}}, "[S]\n\nA=1\n"},
			{"three lines, the closest of which are in the middle", "P=1\nX=1\nC=1\nD=1\nP=1\nC=1\nD=1\nP=1\nC=1\nX=1\nD=1\n", {{"P=1", "C=1", "D=1"}}, "P=1\nX=1\nC=1\nD=1\nP=1\nC=1\nX=1\nD=1\n"},
			{"a header that another line continues is none", "[A]\nK=1\\\n[S]\nL=2\nP=1\n", {{"P=1"}}, "[A]\nK=1\\\n[S]\nL=2\n"},
		};
		for (const auto& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("Config/DefaultEngine.ini", Case.Before);
			EXPECT_EQ(Remove(Case.Blocks), HostConfig::ERemoval::Done) << ToUtf8(Reason);
			EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), Case.After);
		}
	}

	TEST_F(LineRemoval, LeavesAFileAloneThatIsNotAsItWas)
	{
		const struct
		{
			const char* Behaviour;
			std::string Text;
			std::vector<std::vector<const char*>> Blocks;
			const char* Reason;
		} Cases[] = {
			{"a line is gone", "[S]\nP=1\n", {{"P=1", "C=1"}}, "the line \"C=1\" is not there any more"},
			{"a line is gone behind the first of the file", "P=1\n", {{"P=1", "C=1"}}, "the line \"C=1\" is not there any more"},
			{"blanks and case count", "[S]\nP= 1\np=1\n", {{"P=1"}}, "the line \"P=1\" is not there any more"},
			{"the second block is gone", "[S]\nP=1\n", {{"P=1"}, {"P=1"}}, "the line \"P=1\" is not there any more"},
			{"another order", "[S]\nC=1\nP=1\n", {{"P=1", "C=1"}}, "the lines from \"P=1\" on do not stand in their order any more"},
			{"something was added at the end of the section", "[A]\nK=1\n[S]\nP=1\nMine=1\n", {{"[S]", "P=1"}}, "line 5, \"Mine=1\", was added to the section that would go"},
			{"something was added in the middle of it", "[S]\nMine=1\nP=1\n", {{"[S]", "P=1"}}, "line 2, \"Mine=1\", was added to the section that would go"},
		};
		for (const auto& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("Config/DefaultEngine.ini", Case.Text);
			EXPECT_EQ(Remove(Case.Blocks), HostConfig::ERemoval::NotThere);
			EXPECT_EQ(ToUtf8(Reason), Case.Reason);
			EXPECT_EQ(Folder.Read("Config/DefaultEngine.ini"), Case.Text);
		}
		std::filesystem::remove(Folder.GetNative("Config/DefaultEngine.ini"));
		EXPECT_EQ(Remove({{"P=1"}}), HostConfig::ERemoval::NotThere);
		EXPECT_EQ(ToUtf8(Reason), "the file is not there any more");
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=1\n");
		for (const size_t Length : {80u, 81u})
		{
			const std::string Line(Length, 'x');
			EXPECT_EQ(Remove({{Line.c_str()}}), HostConfig::ERemoval::NotThere);
			EXPECT_EQ(ToUtf8(Reason), "the line \"" + Line.substr(0, 80) + (Length > 80 ? "...\"" : "\"") + " is not there any more");
		}
		Folder.Write("Config/DefaultEngine.ini", "[S]\nA=T\xFCr\n");
		EXPECT_EQ(Remove({{"[S]"}}), HostConfig::ERemoval::Failed);
	}

	TEST_F(SectionUpdate, TwoProcessesAtOnceKeepEachOthersKeys)
	{
		constexpr int Rounds = 40;
		const auto Write = [this](const FString& Key) {
			for (int32 Round = 1; Round <= Rounds; ++Round)
			{
				HostConfig::UpdateSection(File, TEXT("S"), {TPair<FString, FString>(Key, FString::FromInt(Round))}, {});
			}
		};
		const pid_t First = Fork([&] { Write(TEXT("First")); });
		const pid_t Second = Fork([&] { Write(TEXT("Second")); });
		ASSERT_EQ(Wait(First), 0);
		ASSERT_EQ(Wait(Second), 0);
		std::vector<std::string> Lines = GetSection(File, TEXT("S"));
		std::sort(Lines.begin(), Lines.end());
		EXPECT_EQ(Lines, (std::vector<std::string>{"First=40", "Second=40"}));
	}
}
