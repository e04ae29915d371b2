// Copyright Velmorant. All Rights Reserved.

#include "HeaderToolRun.h"

#include <gtest/gtest.h>

namespace GeneratedFiles
{
	const std::string Good = ClassWith("UPROPERTY()\nint32 Size;\nUFUNCTION()\nvoid Go(UOther* Other, FValue Value);");

	void AddOther(FHeaderToolRun& Run)
	{
		Run.AddHeader("Module", "Sub/Other.h", "#include \"Other.generated.h\"\nUCLASS()\nclass UOther : public UObject { GENERATED_BODY() };\nUSTRUCT()\nstruct FOtherValue { GENERATED_BODY() };\n");
		Run.AddHeader("Below", "Values/Value.h", "#include \"Value.generated.h\"\nUSTRUCT()\nstruct FValue { GENERATED_BODY() };\n");
	}

	/** Writes each file's time stamp far into the past, so that any later write shows. */
	void Age(const FHeaderToolRun& Run, const std::string& Name)
	{
		const std::filesystem::path Path = Run.Folder.GetNative("Out/" + Name);
		std::filesystem::last_write_time(Path, std::filesystem::last_write_time(Path) - std::chrono::hours(24));
	}

	std::filesystem::file_time_type TimeOf(const FHeaderToolRun& Run, const std::string& Name)
	{
		return std::filesystem::last_write_time(Run.Folder.GetNative("Out/" + Name));
	}
}

using namespace GeneratedFiles;

TEST(GeneratedFiles, ComeInPairsForEachHeaderOfTheModule)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.AddHeader("Module", "X.h", Good);
	const FHeaderToolRun::FResult Result = Run.Generate("Module");
	ASSERT_EQ(Result.ExitStatus, 0) << Result.Errors;
	EXPECT_EQ(Result.Errors, "");
	EXPECT_TRUE(Run.HasOutput("X.generated.h"));
	EXPECT_TRUE(Run.HasOutput("X.gen.cpp"));
	EXPECT_TRUE(Run.HasOutput("Other.generated.h"));
	EXPECT_TRUE(Run.HasOutput("Other.gen.cpp"));
	EXPECT_EQ(Run.Folder.Count("Out"), 4u) << "something was generated for a module that is only referenced";
}

TEST(GeneratedFiles, AreMadeForEnumsOfEachTypeThatTheEngineReflects)
{
	FHeaderToolRun Run;
	std::string Source = "#include \"X.generated.h\"\n";
	for (const char* Type : {"uint8", "uint16", "uint32", "uint64", "int8", "int16", "int32", "int64"})
	{
		const std::string Name = std::string("EOf") + Type;
		Source += "UENUM()\nenum class " + Name + " : " + Type + " { A };\nUENUM()\nenum " + Name + "Plain : " + Type + " { " + Name + "_A };\n";
	}
	Source += "UENUM()\nenum class EOfNothing { A };\nUENUM(BlueprintType)\nenum EPlainOfNothing { Nothing_A };\n";
	Source += "UENUM(BlueprintType)\nenum EOfInt : int { Int_A };\nUENUM(BlueprintType)\nnamespace ESpaced { enum Type : int { A }; }\n";
	Run.AddHeader("Module", "X.h", Source);
	const FHeaderToolRun::FResult Result = Run.Generate("Module");
	EXPECT_EQ(Result.Errors, "");
	EXPECT_EQ(Result.ExitStatus, 0);
}

TEST(GeneratedFiles, IncludeValueTypesAndOnlyDeclareClasses)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.AddHeader("Module", "X.h", Good);
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	const std::string Source = Run.ReadOutput("X.gen.cpp");
	EXPECT_NE(Source.find("#include \"Values/Value.h\"\n"), std::string::npos);
	EXPECT_EQ(Source.find("Other.h"), std::string::npos);
	EXPECT_NE(Source.find("class UOther;\n"), std::string::npos);
}

TEST(GeneratedFiles, DependOnNothingButTheHeaders)
{
	FHeaderToolRun First;
	FHeaderToolRun Second;
	for (FHeaderToolRun* Run : {&First, &Second})
	{
		AddOther(*Run);
		Run->AddHeader("Module", "X.h", Good);
		ASSERT_EQ(Run->Generate("Module").ExitStatus, 0);
	}
	for (const char* Name : {"X.generated.h", "X.gen.cpp", "Other.generated.h", "Other.gen.cpp"})
	{
		EXPECT_EQ(First.ReadOutput(Name), Second.ReadOutput(Name)) << Name << " differs between two folders";
		EXPECT_EQ(First.ReadOutput(Name).find(First.GetPath("")), std::string::npos) << Name << " names the folder it was made from";
	}
}

TEST(GeneratedFiles, AreTouchedOnlyWhenTheyChange)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.AddHeader("Module", "X.h", Good);
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	for (const char* Name : {"X.generated.h", "X.gen.cpp", "Other.gen.cpp"})
	{
		Age(Run, Name);
	}
	const auto Header = TimeOf(Run, "X.generated.h");
	const auto Source = TimeOf(Run, "X.gen.cpp");
	const auto Other = TimeOf(Run, "Other.gen.cpp");

	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	EXPECT_EQ(TimeOf(Run, "X.generated.h"), Header);
	EXPECT_EQ(TimeOf(Run, "X.gen.cpp"), Source);

	Run.Folder.Write("X.h", ClassWith("UPROPERTY()\nint32 Width;\nUFUNCTION()\nvoid Go(UOther* Other, FValue Value);"));
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	EXPECT_EQ(TimeOf(Run, "X.generated.h"), Header) << "the generated header does not depend on properties";
	EXPECT_NE(TimeOf(Run, "X.gen.cpp"), Source);
	EXPECT_EQ(TimeOf(Run, "Other.gen.cpp"), Other);
	EXPECT_NE(Run.ReadOutput("X.gen.cpp").find("\"Width\""), std::string::npos);
	EXPECT_EQ(Run.Folder.Count("Out"), 4u) << "a temporary file was left behind";
}

TEST(GeneratedFiles, GoAwayWhenTheModuleHasErrors)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.AddHeader("Module", "X.h", Good);
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	Run.Folder.Write("Out/Notes.txt", "not ours");
	Run.Folder.Write("X.h", ClassWith("UPROPERTY()\nstd::string A;"));
	EXPECT_EQ(Run.Generate("Module").ExitStatus, 1);
	EXPECT_EQ(Run.Folder.Count("Out"), 1u) << "only the foreign file may be left";
	EXPECT_TRUE(Run.HasOutput("Notes.txt"));
}

TEST(GeneratedFiles, GoAwayWithTheirHeader)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.Folder.Write("Out/Gone.generated.h", "// of a header that was removed");
	Run.Folder.Write("Out/Gone.gen.cpp", "");
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	EXPECT_FALSE(Run.HasOutput("Gone.generated.h"));
	EXPECT_FALSE(Run.HasOutput("Gone.gen.cpp"));
	EXPECT_TRUE(Run.HasOutput("Other.gen.cpp"));
}

TEST(GeneratedFiles, OfTwoHeadersMayNotShareAName)
{
	FHeaderToolRun Run;
	AddOther(Run);
	Run.AddHeader("Module", "Other.h", "#include \"Other.generated.h\"\nUSTRUCT()\nstruct FZ { GENERATED_BODY() };\n");
	const FHeaderToolRun::FResult Result = Run.Generate("Module");
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_EQ(Result.Errors, "Other.h: error: has the same file name as Sub/Other.h in module 'Module'; rename one, their generated files would overwrite each other.\n");
}

TEST(GeneratedFiles, AreOfNoUseWhenSomethingCannotBeReadOrWritten)
{
	FHeaderToolRun Run;
	AddOther(Run);
	ASSERT_EQ(Run.Generate("Module").ExitStatus, 0);
	const std::string Manifest = Run.GetPath("Module.manifest");
	const std::string Output = Run.GetPath("Out");
	Run.Folder.Write("Missing.manifest", "module Module\nheader Gone.h " + Run.GetPath("Gone.h") + "\n");
	Run.Folder.Write("Broken.manifest", "module Module\nheader OnlyOnePath.h\nfile X\n");
	Run.Folder.Write("Nameless.manifest", "header Other.h " + Run.GetPath("Sub/Other.h") + "\n");
	Run.Folder.Write("File", "");
	struct FCase
	{
		const char* Behaviour;
		std::vector<std::string> Arguments;
		std::string Expected;
	};
	const FCase Cases[] = {
		{"header that is not there", {"--module", "Module", "--output", Output, "--manifest", Run.GetPath("Missing.manifest")}, "Gone.h: error: cannot be read (No such file or directory); check the path and its permissions.\n"},
		{"manifest that is not there", {"--module", "Module", "--output", Output, "--manifest", Run.GetPath("None.manifest")}, "None.manifest: error: cannot be read (No such file or directory); check the path and its permissions.\n"},
		{"reference that is a folder", {"--module", "Module", "--output", Output, "--manifest", Manifest, "--reference", Run.GetPath("Sub")}, "Sub: error: this is a folder; name a file.\n"},
		{"lines that make no sense", {"--module", "Module", "--output", Output, "--manifest", Run.GetPath("Broken.manifest")},
			"Broken.manifest(2): error: expected 'module NAME' or 'header INCLUDE_PATH FILE', but found 'header OnlyOnePath.h'.\n"
			"Broken.manifest(3): error: expected 'module NAME' or 'header INCLUDE_PATH FILE', but found 'file X'.\n"},
		{"manifest without module", {"--module", "Module", "--output", Output, "--manifest", Run.GetPath("Nameless.manifest")}, "Nameless.manifest: error: names no module; add a line 'module NAME'.\n"},
		{"manifest of another module", {"--module", "Else", "--output", Output, "--manifest", Manifest}, "Module.manifest: error: belongs to module 'Module', but --module says 'Else'.\n"},
		{"output folder that is a file", {"--module", "Module", "--output", Run.GetPath("File"), "--manifest", Manifest, "--reference", Run.GetPath("Below.manifest")}, "File: error: the output folder cannot be made (Not a directory); name another one.\n"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FHeaderToolRun::FResult Result = Run.Run(Case.Arguments);
		EXPECT_EQ(Result.ExitStatus, 1);
		EXPECT_EQ(Result.Errors, Case.Expected);
	}
}

TEST(GeneratedFiles, ThatCannotBeReplacedAreReported)
{
	FHeaderToolRun Run;
	AddOther(Run);
	std::filesystem::create_directories(Run.Folder.GetNative("Out/Other.generated.h/occupied"));
	const FHeaderToolRun::FResult Result = Run.Generate("Module");
	EXPECT_EQ(Result.ExitStatus, 1);
	EXPECT_EQ(Result.Errors.find("Out/Other.generated.h: error: cannot be replaced ("), 0u) << Result.Errors;
	EXPECT_FALSE(Run.HasOutput("Other.gen.cpp")) << "half of the output was left";
}

TEST(CommandLine, IsExplainedWhenItMakesNoSense)
{
	struct FCase
	{
		const char* Behaviour;
		std::vector<std::string> Arguments;
		std::string Expected;
	};
	const FCase Cases[] = {
		{"nothing given", {}, "--module is required"},
		{"no output", {"--module", "M", "--manifest", "F"}, "--output is required"},
		{"no manifest", {"--module", "M", "--output", "O"}, "--manifest is required"},
		{"no value", {"--module"}, "--module: 1 required NAME missing"},
		{"unknown option", {"--modul", "M"}, "The following arguments were not expected: --modul M"},
		{"given twice", {"--module", "M", "--module", "N", "--output", "O", "--manifest", "F"}, "--module: At Most 1 required but received 2"},
		{"word too many", {"--module", "M", "--output", "O", "--manifest", "F", "--reference", "R", "S"}, "The following argument was not expected: S"},
	};
	const FHeaderToolRun Run;
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FHeaderToolRun::FResult Result = Run.Run(Case.Arguments);
		EXPECT_EQ(Result.ExitStatus, 2);
		EXPECT_EQ(Result.Errors, "VelmorantHeaderTool: " + Case.Expected + "\nRun with --help for more information.\n");
		EXPECT_EQ(Result.Output, "");
	}
}

TEST(CommandLine, ShowsItsHelpOnRequest)
{
	const FHeaderToolRun Run;
	const FHeaderToolRun::FResult Result = Run.Run({"--help"});
	EXPECT_EQ(Result.ExitStatus, 0);
	EXPECT_EQ(Result.Errors, "");
	for (const char* Option : {"--module", "--output", "--manifest", "--reference", "--help", "Ends with 0"})
	{
		EXPECT_NE(Result.Output.find(Option), std::string::npos) << Option << " is not explained";
	}
}
