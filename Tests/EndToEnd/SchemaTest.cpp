// Copyright Velmorant. All Rights Reserved.

#include "ProjectOnDisk.h"

#include <sstream>

enum class EJudge
{
	Both, // the schema refuses it, and so does the reader
	Reader, // it needs to know what a schema cannot
	Nobody
};

/** Documents, and who refuses them. */
struct FSchemaCase
{
	const char* Behaviour;
	std::string Document;
	EJudge Refuses;
};

class Schema : public FProjectOnDisk
{
protected:
	Schema() { MakeProject(); }

	/** By the validator: a word for each file. Empty where it is not installed. */
	std::vector<std::string> Validate(const char* SchemaName, const std::vector<std::string>& Files) const
	{
		std::vector<std::string> Arguments = {VELMORANT_SOURCE_DIR "/Tests/EndToEnd/ValidateSchema.py", std::string(VELMORANT_SOURCE_DIR "/Docs/Schemas/") + SchemaName + ".schema.json"};
		Arguments.insert(Arguments.end(), Files.begin(), Files.end());
		const std::string Built = std::exchange(FProgramRun::Program, "/usr/bin/python3");
		const FProgramResult Result = FProgramRun::Run(Arguments);
		FProgramRun::Program = Built;
		EXPECT_TRUE(Result.ExitStatus == 0 || Result.ExitStatus == 77 || Result.ExitStatus == 127) << Result.Errors;
		std::istringstream Lines(Result.Output);
		std::vector<std::string> Words;
		for (std::string Line; std::getline(Lines, Line);)
		{
			Words.push_back(Line);
		}
		return Words;
	}

	template<size_t NumCases, typename ReadType>
	void Compare(const char* SchemaName, const FSchemaCase (&Cases)[NumCases], ReadType Accepts) const
	{
		std::vector<std::string> Files;
		for (size_t Index = 0; Index < NumCases; ++Index)
		{
			const std::string Name = "Case" + std::to_string(Index) + "Data.json";
			Folder.Write(Name, Cases[Index].Document);
			Files.push_back(Folder.GetNative(Name).string());
		}
		const std::vector<std::string> Verdicts = Validate(SchemaName, Files);
		if (Verdicts.empty())
		{
			GTEST_SKIP() << "the validator of python3-jsonschema is not installed";
		}
		ASSERT_EQ(Verdicts.size(), NumCases);
		for (size_t Index = 0; Index < NumCases; ++Index)
		{
			SCOPED_TRACE(Cases[Index].Behaviour);
			EXPECT_EQ(Verdicts[Index] == "accepted", Cases[Index].Refuses != EJudge::Both) << "by the schema";
			EXPECT_EQ(Accepts(Cases[Index].Document), Cases[Index].Refuses == EJudge::Nobody) << "by the reader";
		}
	}
};

TEST_F(Schema, OfServiceDataRefusesNothingThatIsRead)
{
	const std::string User = R"({"users": [{"userName": "a", "password": "b")";
	const std::string Project = R"({"projects": [{"keyCode": "A", "name": "B")";
	const FSchemaCase Cases[] = {
		{"nothing", "{}", EJudge::Nobody},
		{"the sample", ReadBytes(Sample / "VelmorantService.json"), EJudge::Nobody},
		{"no object", "[]", EJudge::Both},
		{"an unknown member", R"({"user": []})", EJudge::Both},
		{"seconds as text", R"({"delaySeconds": "1"})", EJudge::Both},
		{"less than no time", R"({"tokenSeconds": -1})", EJudge::Both},
		{"more time than there is", R"({"tokenSeconds": 1e10})", EJudge::Both},
		{"users that are no list", R"({"users": {}})", EJudge::Both},
		{"a user without password", R"({"users": [{"userName": "a"}]})", EJudge::Both},
		{"a user with an empty name", R"({"users": [{"userName": "", "password": "b"}]})", EJudge::Both},
		{"a user with all there is", User + R"(, "firstName": "", "lastName": "", "email": "", "projects": []}]})", EJudge::Nobody},
		{"a user with what there is not", User + R"(, "age": 5}]})", EJudge::Both},
		{"a user of a project that is not there", User + R"(, "projects": ["X"]}]})", EJudge::Reader},
		{"two users of one name", R"({"users": [{"userName": "a", "password": "b"}, {"userName": "A", "password": "b"}]})", EJudge::Reader},
		{"a project", Project + "}]}", EJudge::Nobody},
		{"a project without a name", R"({"projects": [{"keyCode": "A"}]})", EJudge::Both},
		{"a unit without a number", Project + R"(, "unitGroups": [{"keyCode": "G", "name": "", "units": [{"keyCode": "U", "name": "N"}]}]}]})", EJudge::Both},
		{"a unit with half a number", Project + R"(, "unitGroups": [{"keyCode": "G", "name": "", "units": [{"keyCode": "U", "name": "N", "unitID": 1.5}]}]}]})", EJudge::Both},
		{"a unit with too large a number", Project + R"(, "unitGroups": [{"keyCode": "G", "name": "", "units": [{"keyCode": "U", "name": "N", "unitID": 2147483648}]}]}]})", EJudge::Both},
		{"a configurator", Project + R"(, "configurators": [{"name": "C", "rooms": [{"name": "R", "groups": [{"name": "G", "products": ["P", ""]}]}]}]}]})", EJudge::Nobody},
		{"a product that is no text", Project + R"(, "configurators": [{"name": "C", "rooms": [{"name": "R", "groups": [{"name": "G", "products": [5]}]}]}]}]})", EJudge::Both},
		{"a configurator of no unit group", Project + R"(, "configurators": [{"name": "C", "unitGroups": ["X"]}]}]})", EJudge::Reader},
		{"a request that fails", R"({"failingRequests": ["login"]})", EJudge::Nobody},
		{"a request that there is not", R"({"failingRequests": ["logout"]})", EJudge::Both},
	};
	Compare("Service", Cases, [this](const std::string& Document) {
		Folder.Write("Data.json", Document);
		std::filesystem::copy_file(Sample / "Lucia.png", Folder.GetNative("Lucia.png"), std::filesystem::copy_options::overwrite_existing);
		const FProgramResult Result = RunScript(
			"open /VelmorantPro/EditorHelpers/DeveloperPanel/LoginPanel as Login\ntype Login UserName a\ntype Login UserPassword b\nclick Login SummitButton\nwait 1\n",
			{"--service", Folder.GetNative("Data.json").string()});
		const bool bRefused = Result.Errors.find("Data.json: ") != std::string::npos;
		EXPECT_EQ(Result.ExitStatus, bRefused ? 3 : 0) << Result.Output << Result.Errors;
		return !bRefused;
	});
}

TEST_F(Schema, OfAssetsRefusesNothingThatIsRead)
{
	const std::string Class = R"("Class": "/Script/VelmorantPro.MinimapConfigAsset")";
	const std::string Package = "{" + Class + R"(, "Format": 1, "Objects": [)";
	const std::string Main = R"({"Name": "A", )" + Class;
	const std::string Part = R"({"Name": "P", "Class": "/Script/VelmorantPro.VelmorantViewConfig")";
	const std::string Table = R"({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/VelmorantProUI.FontIconRow")";
	const FSchemaCase Cases[] = {
		{"an asset", Package + Main + "}]}", EJudge::Nobody},
		{"an asset with a part", Package + Main + "}, " + Part + R"(, "Outer": "A", "Flags": "Public|Transactional", "Properties": {}}]})", EJudge::Nobody},
		{"without a class", R"({"Format": 1, "Objects": []})", EJudge::Both},
		{"a class that is no path", R"({"Class": "Asset", "Format": 1, "Objects": [{"Name": "A", "Class": "Asset"}]})", EJudge::Both},
		{"a class that is not there", R"({"Class": "/Script/Nowhere.Asset", "Format": 1, "Objects": [{"Name": "A", "Class": "/Script/Nowhere.Asset"}]})", EJudge::Reader},
		{"without a format", "{" + Class + R"(, "Objects": []})", EJudge::Both},
		{"of a later format", "{" + Class + R"(, "Format": 2, "Objects": [)" + Main + "}]}", EJudge::Both},
		{"without objects", "{" + Class + R"(, "Format": 1})", EJudge::Both},
		{"with no object", Package + "]}", EJudge::Both},
		{"an unknown member", "{" + Class + R"(, "Format": 1, "Note": "", "Objects": [)" + Main + "}]}", EJudge::Both},
		{"an unknown member of an object", Package + Main + R"(, "Note": ""}]})", EJudge::Both},
		{"an object without a name", Package + "{" + Class + "}]}", EJudge::Both},
		{"an object with another's name", Package + R"({"Name": "B", )" + Class + "}]}", EJudge::Reader},
		{"a name with a dot", Package + Main + "}, " + R"({"Name": "P.Q", "Class": "/Script/VelmorantPro.VelmorantViewConfig", "Outer": "A"}]})", EJudge::Both},
		{"a name that means none", Package + Main + "}, " + R"({"Name": "none", "Class": "/Script/VelmorantPro.VelmorantViewConfig", "Outer": "A"}]})", EJudge::Both},
		{"an owner that is not there", Package + Main + "}, " + Part + R"(, "Outer": "B"}]})", EJudge::Reader},
		{"flags that there are not", Package + Main + R"(, "Flags": "Private"}]})", EJudge::Both},
		{"no flags", Package + Main + "}, " + Part + R"(, "Outer": "A", "Flags": "None"}]})", EJudge::Nobody},
		{"properties that are no object", Package + Main + R"(, "Properties": []}]})", EJudge::Both},
		{"a property that there is not", Package + Main + R"(, "Properties": {"Weather": 1}}]})", EJudge::Reader},
		{"a value of another type", Package + Main + R"(, "Properties": {"Floors": 1}}]})", EJudge::Reader},
		{"a data table", Table + R"-(, "Rows": {"boat": "(Label=\"Boat\")"}})-", EJudge::Nobody},
		{"a data table without a struct", R"({"Class": "/Script/Engine.DataTable", "Rows": {}})", EJudge::Both},
		{"rows that are no object", Table + R"(, "Rows": []})", EJudge::Both},
		{"a row that is no text", Table + R"(, "Rows": {"boat": {}}})", EJudge::Both},
		{"a row without a name", Table + R"-(, "Rows": {"": "()"}})-", EJudge::Both},
	};
	Compare("Asset", Cases, [this](const std::string& Document) {
		Folder.Write("Project/Content/A.uasset.json", Document);
		const FProgramResult Result = RunScript("expect asset /Game/A\n");
		EXPECT_EQ(Result.ExitStatus == 0, Result.Errors.empty()) << Result.Errors;
		return Result.ExitStatus == 0;
	});
}

TEST_F(Schema, OfAssetsAcceptsWhatIsInTheRepository)
{
	std::vector<std::string> Files;
	for (const char* Root : {VELMORANT_SOURCE_DIR "/Samples", VELMORANT_SOURCE_DIR "/Companions"})
	{
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Root))
		{
			const std::string Name = Entry.path().filename().string();
			if (Name.ends_with(".uasset.json") || Name.ends_with(".umap.json"))
			{
				Files.push_back(Entry.path().string());
			}
		}
	}
	ASSERT_GT(Files.size(), 10u);
	const std::vector<std::string> Verdicts = Validate("Asset", Files);
	for (size_t Index = 0; Index < Verdicts.size(); ++Index)
	{
		EXPECT_EQ(Verdicts[Index], "accepted") << Files[Index];
	}
}
