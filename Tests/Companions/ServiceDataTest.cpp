// Copyright Velmorant. All Rights Reserved.

#include "ToolkitTest.h"
#include "VelmorantDeveloperUser.h"

#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace ServiceDataTest
{
	/** A document with one configurator of one group; Group is the inside of the group's object. */
	std::string WithGroup(const std::string& Group)
	{
		return R"({"projects": [{"keyCode": "A", "name": "A", "configurators": [{"name": "C", "rooms": [{"name": "R", "groups": [{)" + Group + "}]}]}]}]}";
	}

	/** A document with one unit group; Members is the inside of the project's object behind it. */
	std::string WithUnits(const std::string& Units, const std::string& Members = "")
	{
		return R"({"projects": [{"keyCode": "A", "name": "A", "unitGroups": [{"keyCode": "G", "name": "G", "units": [)" + Units + "]}]" + Members + "}]}";
	}
}

using namespace ServiceDataTest;

/** Data files that stand in for the service. */
class ServiceData : public FToolkitTest
{
protected:
	/** Whether any request can be answered from the file: signs in, which needs nothing but a document that can be used. */
	std::vector<std::string> ComplaintsAbout(const std::string& Json)
	{
		WriteService(Json);
		GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("nobody"), TEXT("secret-password")));
		Wait(0.0);
		std::vector<std::string> Complaints;
		for (const std::string& Line : TakeSdkLog())
		{
			if (Line.starts_with("Error: "))
			{
				Complaints.push_back(Line);
			}
		}
		return Complaints;
	}
};

TEST_F(ServiceData, ThatCannotBeUsedIsRefusedWithItsPlaceAndReason)
{
	const std::string LongName(2000, 'x');
	const struct
	{
		const char* Behaviour;
		std::string Json;
		std::string Complaint; // behind the file's path
	} Cases[] = {
		{"no JSON", "{\n\t\"users\": [\n}", "line 3: this is not JSON: "},
		{"an empty file", "", "line 1: this is not JSON: "},
		{"bytes that are no UTF-8", "{\n\"users\": \"\xC3\x28\"}", "line 2: this is not JSON: "},
		{"a number beyond all bounds", "{\"delaySeconds\": 1e400}", "line 1: this is not JSON: the number in column 18 is out of range. "},
		{"another kind of document", "[]", "the document: must be an object"},
		{"a misspelt member", R"({"user": []})", "/user: is not known here; is it misspelt?"},
		{"a misspelt member deep within", WithGroup(R"("name": "G", "product": [])"), "/projects/0/configurators/0/rooms/0/groups/0/product: is not known here; is it misspelt?"},
		{"a list that is none", R"({"projects": {}})", "/projects: must be an array"},
		{"an element of another kind", R"({"projects": ["A"]})", "/projects/0: must be an object"},
		{"a text that is none", WithGroup(R"("name": "G", "products": ["P", 2])"), "/projects/0/configurators/0/rooms/0/groups/0/products/1: must be a text"},
		{"a missing member", R"({"projects": [{"name": "A"}]})", "/projects/0: misses \"keyCode\""},
		{"an empty key code", R"({"projects": [{"keyCode": "", "name": "A"}]})", "/projects/0/keyCode: must not be empty"},
		{"a name that is too long", R"({"projects": [{"keyCode": "A", "name": "A", "configurators": [{"name": ")" + LongName + R"("}]}]})", "/projects/0/configurators/0/name: must not be longer than"},
		{"seconds that are no number", R"({"delaySeconds": "1"})", "/delaySeconds: must be a number of seconds, at least 0"},
		{"negative seconds", R"({"tokenSeconds": -1})", "/tokenSeconds: must be a number of seconds, at least 0"},
		{"a number that is not whole", WithUnits(R"({"keyCode": "U", "name": "U", "unitID": 1.5})"), "/projects/0/unitGroups/0/units/0/unitID: must be a whole number of 32 bits"},
		{"a number that is too large", WithUnits(R"({"keyCode": "U", "name": "U", "unitID": 2147483648})"), "/projects/0/unitGroups/0/units/0/unitID: must be a whole number of 32 bits"},
		{"a member twice, of which the last one counts", R"({"delaySeconds": 0, "delaySeconds": -1})", "/delaySeconds: must be a number of seconds, at least 0"},
		{"a project twice", R"({"projects": [{"keyCode": "HT", "name": "A"}, {"keyCode": "ht", "name": "B"}]})", "/projects/1/keyCode: \"ht\" is there already; letter case does not count"},
		{"a user twice", R"({"users": [{"userName": "a", "password": "x"}, {"userName": "A", "password": "y"}]})", "/users/1/userName: \"A\" is there already; letter case does not count"},
		{"a unit twice", WithUnits(R"({"keyCode": "U", "name": "U", "unitID": 1}, {"keyCode": "u", "name": "V", "unitID": 2})"), "/projects/0/unitGroups/0/units/1/keyCode: \"u\" is there already; letter case does not count"},
		{"a configurator twice", R"({"projects": [{"keyCode": "A", "name": "A", "configurators": [{"name": "C"}, {"name": "c"}]}]})", "/projects/0/configurators/1/name: \"c\" is there already; letter case does not count"},
		{"a user's project that is not there", R"({"users": [{"userName": "a", "password": "x", "projects": ["A"]}]})", "/users/0/projects/0: there is no project with this key code"},
		{"a unit group that is not there", WithUnits("", R"(, "configurators": [{"name": "C", "unitGroups": ["H"]}])"), "/projects/0/configurators/0/unitGroups/0: there is no unit group with this key code in the project"},
		{"a failing request that does not exist", R"({"failingRequests": ["logout"]})", "/failingRequests/0: must be one of \"login\", \"projects\", \"projectData\", \"configurator\""},
		{"a picture that is not there", R"({"users": [{"userName": "a", "password": "x", "picture": "a.png"}]})", "/users/0/picture: the file "},
	};
	StartEditor();
	const std::string Path = ToUtf8(Folder.Get("Project/Service.json"));
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const std::vector<std::string> Complaints = ComplaintsAbout(Case.Json);
		ASSERT_THAT(Complaints, SizeIs(1));
		EXPECT_THAT(Complaints[0], StartsWith("Error: " + Path + ": " + Case.Complaint));
	}
	EXPECT_THAT(WholeLog(), testing::Not(HasSubstr("secret-password")));
}

TEST_F(ServiceData, ThatIsNotThereIsRefused)
{
	StartEditor();
	std::filesystem::remove(Folder.GetNative("Project/Service.json"));
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	EXPECT_THAT(TakeSdkLog(), testing::Contains("Error: " + ToUtf8(Folder.Get("Project/Service.json")) + ": the file cannot be read. Have this mended, or name another data file, then try again."));
}

TEST_F(ServiceData, NeedsNothingButAnObject)
{
	StartEditor();
	for (const char* Json : {"{}", "\xEF\xBB\xBF{}", R"({"users": [], "projects": [], "failingRequests": []})"})
	{
		EXPECT_THAT(ComplaintsAbout(Json), IsEmpty()) << Json;
	}
}

TEST_F(ServiceData, IsReadAnewForEveryRequest)
{
	StartEditor();
	ComplaintsAbout("{");
	WriteServiceWith("");
	SignIn();
}

TEST_F(ServiceData, IsNamedByTheProjectsSettings)
{
	CommandLine.Empty();
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nServiceDataFile=Data/My Service.json\n");
	WriteProjectFile("Data/My Service.json", R"({"users": [{"userName": "ada", "password": "sesame-77"}]})");
	StartEditor();
	SignIn();
}

TEST_F(ServiceData, OfTheCommandLineComesBeforeThatOfTheSettings)
{
	WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantSDK.VelmorantSDKSettings]\nServiceDataFile=Missing.json\n");
	StartEditor();
	SignIn();
}

TEST_F(ServiceData, ThatNobodyNamedFailsEveryRequestAndTellsWhatToDo)
{
	CommandLine.Empty();
	StartEditor();
	GetUser()->RequestUserLogin(FVelmorantUserInformation(false, TEXT("ada"), TEXT("sesame-77")));
	Wait(0.0);
	EXPECT_FALSE(GetUser()->HasValidToken());
	EXPECT_THAT(TakeSdkLog(), ElementsAre(HasSubstr("ServiceDataFile")));
}
