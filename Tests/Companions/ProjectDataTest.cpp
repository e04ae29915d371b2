// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorWrapper.h"
#include "HostObjects.h"
#include "ProjectWrapper.h"
#include "ToolkitTest.h"
#include "UnitGroupWrapper.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace ProjectDataTest
{
	const char* const TwoProjects = R"({
		"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT", "QV"]}],
		"projects": [
			{"keyCode": "HT", "name": "Harbor Tower",
				"unitGroups": [
					{"keyCode": "T2", "name": "Tower 2", "units": [{"keyCode": "T2-B", "name": "B", "unitID": -7}, {"keyCode": "T2-A", "name": "A", "unitID": 2147483647}]},
					{"keyCode": "T1", "name": "Tower 1"}],
				"configurators": [
					{"name": "Tower", "unitGroups": ["T1", "T2"], "rooms": [{"name": "Kitchen"}]},
					{"name": "Loft", "recordName": "Other"}]},
			{"keyCode": "QV", "name": "Quay View", "unitGroups": [{"keyCode": "Q", "name": "Quay"}]}]})";
}

using namespace ProjectDataTest;

/** The selected project's data as wrappers hold it. */
class ProjectData : public FToolkitTest
{
protected:
	ProjectData() { WriteService(TwoProjects); }

	/** Kinds of the updates that were told, by number. */
	std::vector<int> Updates;

	void Listen()
	{
		GetRequests()->GetOnUpdateRequest().AddLambda([this](EUpdateRequestDataType DataType, EUpdateRequestType) { Updates.push_back(static_cast<int>(DataType)); });
	}

	static UProjectWrapper& Project() { return *GetRequests()->GetProjectWrapper(); }

	static std::vector<std::string> UnitGroupNames()
	{
		std::vector<std::string> Names;
		for (const FUnitGroupData& Group : Project().GetUnitGroupListData())
		{
			Names.push_back(ToUtf8(Group.Name));
		}
		return Names;
	}
};

TEST_F(ProjectData, ComesInTheServicesOrder)
{
	StartWithProject();
	EXPECT_THAT(UnitGroupNames(), ElementsAre("Tower 2", "Tower 1"));
	ASSERT_EQ(Project().GetConfigurators().Num(), 2);
	const UConfiguratorWrapper& Tower = *Project().GetConfigurators()[0];
	EXPECT_EQ(ToUtf8(Tower.GetConfiguratorName()), "Tower");
	ASSERT_EQ(Tower.GetConfigtorUnitGroupCollection().Num(), 2);
	EXPECT_EQ(ToUtf8(Tower.GetConfigtorUnitGroupCollection()[0].Key) + " " + ToUtf8(Tower.GetConfigtorUnitGroupCollection()[0].Name), "T1 Tower 1");
	EXPECT_EQ(Tower.GetConfigtorUnitCollection()["TOWER"].Rooms.Num(), 1) << "records are found by name, whatever its case";
	EXPECT_TRUE(Project().GetConfigurators()[1]->GetConfigtorUnitCollection().Contains("Other"));
	EXPECT_EQ(Project().GetConfiguratorByName("tOWER"), &Tower);
	EXPECT_EQ(Project().GetConfiguratorByName("Other"), nullptr) << "that is a record, not a configurator";
}

TEST_F(ProjectData, HasNoTargetUnitGroupBeforeOneIsSelected)
{
	StartWithProject();
	EXPECT_FALSE(Project().HasUnitGroupTarget());
	GetRequests()->SetSelectedUnitGroup("nowhere");
	EXPECT_FALSE(Project().HasUnitGroupTarget());
	GetRequests()->SetSelectedUnitGroup("t2");
	ASSERT_TRUE(Project().HasUnitGroupTarget());
	const TArray<FUnitData> Units = Project().GetUnitGroupTarget()->GetUnitListData();
	ASSERT_EQ(Units.Num(), 2);
	EXPECT_EQ(ToUtf8(Units[0].KeyCode), "T2-B");
	EXPECT_EQ(Units[0].UnitID, -7);
	EXPECT_EQ(Units[1].UnitID, 2147483647);
}

TEST_F(ProjectData, IsToldWhenItHasArrived)
{
	StartEditor();
	SignIn();
	GetUser()->RequestEditorUserProjects();
	Wait(0.0);
	Listen();
	GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[0], false);
	EXPECT_EQ(ToUtf8(Project().GetProjectData().ProjectName), "Harbor Tower") << "name and key are there at once";
	EXPECT_THAT(UnitGroupNames(), IsEmpty());
	EXPECT_THAT(Updates, ElementsAre(5)) << "told as new data: none, so far";
	EXPECT_TRUE(GetRequests()->IsRequestingProjectData());
	EXPECT_FALSE(GetRequests()->HasProjectData());
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(5, 5));
	EXPECT_THAT(UnitGroupNames(), ElementsAre("Tower 2", "Tower 1"));
	EXPECT_FALSE(GetRequests()->IsRequestingProjectData());
	EXPECT_TRUE(GetRequests()->HasProjectData());
}

TEST_F(ProjectData, OfAProjectThatWasLeftMeanwhileIsDropped)
{
	StartWithProject();
	Listen();
	const TArray<FProject> Projects = GetUser()->GetEditorUserProjects();
	GetUser()->SetSelectedProject(Projects[1], false);
	GetUser()->SetSelectedProject(Projects[0], false);
	GetRequests()->RequestConfigurator("Tower", EUpdateRequestType::Get);
	GetUser()->SetSelectedProject(Projects[1], false);
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(5, 5, 5, 5)) << "three other projects; only the last one's answer counts";
	EXPECT_THAT(UnitGroupNames(), ElementsAre("Quay"));
}

TEST_F(ProjectData, KeepsWrappersAndTargetWhenFetchedAnew)
{
	StartWithProject();
	GetRequests()->SetSelectedUnitGroup("T1");
	const UConfiguratorWrapper* Tower = Project().GetConfiguratorByName("Tower");
	WriteService(R"({
		"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
		"projects": [{"keyCode": "HT", "name": "Harbor Tower", "unitGroups": [{"keyCode": "t1", "name": "Tower One"}], "configurators": [{"name": "New"}, {"name": "Tower"}]}]})");
	GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[0], true);
	Wait(0.0);
	EXPECT_EQ(Project().GetConfiguratorByName("Tower"), Tower);
	EXPECT_EQ(Project().GetConfiguratorByName("Loft"), nullptr);
	EXPECT_EQ(Project().GetConfigurators().Num(), 2);
	ASSERT_TRUE(Project().HasUnitGroupTarget());
	EXPECT_EQ(ToUtf8(Project().GetUnitGroupTarget()->GetUnitGroupData().Name), "Tower One");
}

TEST_F(ProjectData, SelectedAgainIsNotFetchedAgain)
{
	StartWithProject();
	Listen();
	FProject Same = GetUser()->GetEditorUserProjects()[0];
	Same.KeyCode = TEXT("ht");
	GetUser()->SetSelectedProject(Same, false);
	Wait(0.0);
	EXPECT_THAT(Updates, IsEmpty());
	GetUser()->SetSelectedProject(Same, true);
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(5));
}

TEST_F(ProjectData, ThatCouldNotBeFetchedIsAskedForAgain)
{
	StartWithProject();
	const TArray<FProject> Projects = GetUser()->GetEditorUserProjects();
	const std::string Sound = ReadProjectFile("Service.json");
	const std::string Failing = R"({"failingRequests": ["projectData"], )" + Sound.substr(1);
	WriteService(Failing);
	GetUser()->SetSelectedProject(Projects[1], false);
	Wait(0.0);
	EXPECT_FALSE(GetRequests()->HasProjectData());
	Listen();
	GetUser()->SetSelectedProject(Projects[1], false); // chosen again
	GetUser()->SetSelectedProject(Projects[1], false); // once more, while the answer is on its way
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(0)) << "asked again, once, and failed again";

	WriteService(Sound);
	GetRequests()->RefreshProject();
	GetRequests()->RefreshProject();
	EXPECT_EQ(ToUtf8(GetRequests()->GetProjectDataFailureText()), "") << "nothing is known of this request";
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(0, 5));
	EXPECT_THAT(UnitGroupNames(), ElementsAre("Quay"));

	WriteService(Failing);
	GetRequests()->RefreshProject();
	Wait(0.0);
	EXPECT_THAT(UnitGroupNames(), ElementsAre("Quay")) << "what is there stays";
	EXPECT_TRUE(GetRequests()->HasProjectData());
	EXPECT_NE(ToUtf8(GetRequests()->GetProjectDataFailureText()), "");
}

TEST_F(ProjectData, OfOneConfiguratorIsRefreshedAlone)
{
	StartWithProject();
	Listen();
	UConfiguratorWrapper* Tower = Project().GetConfiguratorByName("Tower");
	Tower->RequestUpdateData(EUpdateRequestDataType::Units, EUpdateRequestType::Get);
	Wait(0.0);
	EXPECT_THAT(Updates, IsEmpty()) << "only its own kind starts a refresh";

	WriteService(R"({
		"users": [{"userName": "ada", "password": "sesame-77", "projects": ["HT"]}],
		"projects": [{"keyCode": "HT", "name": "Harbor Tower", "configurators": [{"name": "Tower", "rooms": [{"name": "Bath"}, {"name": "Hall"}]}, {"name": "New"}]}]})");
	Tower->RequestUpdateData(EUpdateRequestDataType::Configurator, EUpdateRequestType::Get);
	EXPECT_EQ(Tower->GetConfigtorUnitCollection()["Tower"].Rooms.Num(), 1) << "an answer within the call";
	Wait(0.0);
	EXPECT_THAT(Updates, ElementsAre(4));
	EXPECT_EQ(Tower->GetConfigtorUnitCollection()["Tower"].Rooms.Num(), 2);
	EXPECT_EQ(Project().GetConfigurators().Num(), 2) << "the others stay as they were";
}

TEST_F(ProjectData, LivesAsLongAsItsUser)
{
	StartWithProject();
	HostObjects::CollectGarbage();
	GetRequests()->SetSelectedUnitGroup("T2");
	HostObjects::CollectGarbage();
	EXPECT_EQ(Project().GetUnitGroupTarget()->GetUnitListData().Num(), 2);
	EXPECT_EQ(ToUtf8(Project().GetConfigurators()[1]->GetConfiguratorName()), "Loft");
}
