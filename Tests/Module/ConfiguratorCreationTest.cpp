// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "UObject/Package.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"

using testing::ElementsAre;

namespace ConfiguratorCreationTest
{
	const FOutcome Created{"Success Configuration Creation", "", SNotificationItem::CS_Success, 7.0f};
	const FOutcome Cancelled{"Cancelled Configuration Creation", "", SNotificationItem::CS_Fail, 7.0f};
	const FOutcome AlreadyThere{"Failed Configuration Creation", "Configurator is already created", SNotificationItem::CS_Fail, 7.0f};
	const FOutcome NoProject{"Failed Configuration Creation", "Selected Project Wrapper is null. Please select a project first.", SNotificationItem::CS_Fail, 10.0f};
	const FOutcome NoMatch{"Failed Configuration Creation", "Configurator ID doesn't match", SNotificationItem::CS_Fail, 10.0f};
	const char* const NoProjectLine =
		"Warning: UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator :: Failed \n Selected Project Wrapper is null. Please select a project first.";
	const char* const NoMatchLine = "Warning: UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator :: Failed \n Configurator ID doesn't match";

	void Create(const TCHAR* Configurator)
	{
		UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator(Configurator);
	}

	void AnswerSaveDialog(const TCHAR* Choice, const TMap<FString, FString>& Fields = {})
	{
		HostQuestions::Enqueue("SaveAsset", FHostAnswer{Choice, Fields});
	}

	/** What the save dialog last proposed, as "folder/name". */
	std::string LastProposal()
	{
		const FHostQuestion& Question = HostQuestions::GetAsked().Last().Question;
		EXPECT_EQ(ToUtf8(Question.Kind), "SaveAsset");
		return ToUtf8(Question.Fields.FindRef(TEXT("Path"))) + "/" + ToUtf8(Question.Fields.FindRef(TEXT("Name")));
	}
}

using namespace ConfiguratorCreationTest;

class ConfiguratorCreation : public FConfiguratorTest
{
};

TEST_F(ConfiguratorCreation, MakesAnUnsavedAssetOfTheServicesData)
{
	StartWithConfigurators(OneRoomConfigurator);
	Create(TEXT("Tower"));

	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
	EXPECT_EQ(LastProposal(), "/Game/Velmorant/Configurator/Configurator_Tower");
	const UVelmorantConfiguratorDataAsset* Asset = FindAsset(TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(ToUtf8(Asset->ConfiguratorName), "Tower");
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer"));
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_TRUE(Asset->GetPackage()->IsDirty());
	EXPECT_FALSE(Folder.Exists("Project/Content/Velmorant")) << "saving is the designer's";
}

TEST_F(ConfiguratorCreation, MakesAssetNamesOfConfiguratorNames)
{
	const struct
	{
		const char* Configurator;
		const char* AssetName;
	} Cases[] = {
		{"Tower:A-1 Blue", "Configurator_Tower_A1Blue"},
		{"Türmchen Ñ", "Configurator_TürmchenÑ"},
		{"Λόφος №5", "Configurator_Λόφος5"},
		{"under_score", "Configurator_under_score"},
		{"a.b/c", "Configurator_abc"},
		{"::", "Configurator___"},
		{" -(!)- ", "Configurator_"},
	};
	std::string Configurators;
	for (const auto& Case : Cases)
	{
		Configurators += std::string(Configurators.empty() ? "" : ", ") + "{\"name\": \"" + Case.Configurator + "\"}";
	}
	StartWithConfigurators(Configurators);
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Configurator);
		AnswerSaveDialog(TEXT("Cancel"));
		Create(UTF8_TO_TCHAR(Case.Configurator));
		EXPECT_EQ(LastProposal(), std::string("/Game/Velmorant/Configurator/") + Case.AssetName);
		EXPECT_THAT(TakeOutcomes(), ElementsAre(Cancelled));
	}
}

TEST_F(ConfiguratorCreation, NumbersANameThatIsTakenBesideTheFolder)
{
	StartWithConfigurators(OneRoomConfigurator);
	MakeLevelVariantSets(TEXT("/Game/Velmorant"), TEXT("Configurator_Tower"));
	Create(TEXT("Tower"));
	EXPECT_EQ(LastProposal(), "/Game/Velmorant/Configurator/Configurator_Tower1");
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
}

TEST_F(ConfiguratorCreation, NeverReplacesAnAssetOfTheSameNameUnasked)
{
	StartWithConfigurators(R"({"name": "Tower:A"}, {"name": "Tower_A"})");
	Create(TEXT("Tower:A"));
	Create(TEXT("Tower_A"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created, Cancelled));
	EXPECT_EQ(ToUtf8(HostQuestions::GetAsked().Last().Question.Kind), "ReplaceAsset");
	EXPECT_EQ(ToUtf8(HostQuestions::GetAsked().Last().Answer.Choice), "No");
	EXPECT_EQ(ToUtf8(FindAsset(TEXT("/Game/Velmorant/Configurator/Configurator_Tower_A.Configurator_Tower_A"))->ConfiguratorName), "Tower:A");
}

TEST_F(ConfiguratorCreation, FollowsTheDialogsNameAndFolder)
{
	StartWithConfigurators(OneRoomConfigurator);
	AnswerSaveDialog(TEXT("Save"), {{TEXT("Name"), TEXT("MyTower")}, {TEXT("Path"), TEXT("/Game/Sales")}});
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
	const UVelmorantConfiguratorDataAsset* Asset = FindAsset(TEXT("/Game/Sales/MyTower.MyTower"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(ToUtf8(Asset->ConfiguratorName), "Tower");
}

TEST_F(ConfiguratorCreation, ACancelledDialogLeavesNoAsset)
{
	StartWithConfigurators(OneRoomConfigurator);
	AnswerSaveDialog(TEXT("Cancel"));
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Cancelled));
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created)) << "nothing stands in the way of a second attempt";
}

TEST_F(ConfiguratorCreation, RefusesASecondAssetWhereverTheFirstOneIs)
{
	StartWithConfigurators(std::string(R"({"name": "Loft"}, )") + OneRoomConfigurator);
	Create(TEXT("Loft")); // another one's stands before it
	AnswerSaveDialog(TEXT("Save"), {{TEXT("Name"), TEXT("Elsewhere")}, {TEXT("Path"), TEXT("/Game/Z/Old")}});
	Create(TEXT("Tower"));
	Create(TEXT("Tower"));
	Create(TEXT("TOWER"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created, Created, AlreadyThere, AlreadyThere));
	EXPECT_EQ(HostQuestions::GetAsked().Num(), 2) << "the dialog must not come up again";
}

TEST_F(ConfiguratorCreation, RefusesASecondAssetWhenTheFirstOneIsOnDiskOnly)
{
	StartWithConfigurators(OneRoomConfigurator);
	Create(TEXT("Tower"));
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());

	StartEditor(); // nobody has signed in: that does not matter yet
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(AlreadyThere));

	StartEditor();
	const char* const File = "Content/Velmorant/Configurator/Configurator_Tower.uasset.json";
	const std::string Saved = ReadProjectFile(File);
	WriteProjectFile(File, Saved.substr(0, Saved.size() / 2)); // its kind is still told
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoProject, NoMatch)) << "what cannot be loaded does not count";
}

TEST_F(ConfiguratorCreation, ReportsBothFailuresWithoutASelectedProject)
{
	WriteConfigurators(OneRoomConfigurator);
	StartEditor();
	TakeModuleLog();
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoProject, NoMatch)) << "nobody has signed in";
	EXPECT_THAT(TakeModuleLog(), ElementsAre(NoProjectLine, NoMatchLine));

	SignIn();
	Create(TEXT("Tower"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoProject, NoMatch)) << "no project is selected";
	EXPECT_THAT(TakeModuleLog(), ElementsAre(NoProjectLine, NoMatchLine));
}

TEST_F(ConfiguratorCreation, ReportsAConfiguratorThatTheProjectDoesNotHave)
{
	StartWithConfigurators(OneRoomConfigurator);
	Create(TEXT("Tower 2"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoMatch));
	EXPECT_THAT(TakeModuleLog(), ElementsAre(NoMatchLine));
	EXPECT_EQ(HostQuestions::GetAsked().Num(), 0);
}

TEST_F(ConfiguratorCreation, FindsAConfiguratorByNameWhateverItsCase)
{
	StartWithConfigurators(OneRoomConfigurator);
	Create(TEXT("tOWER"));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
	EXPECT_EQ(LastProposal(), "/Game/Velmorant/Configurator/Configurator_tOWER");
}

TEST_F(ConfiguratorCreation, LeavesTheRecordEmptyWhenNoneBearsTheName)
{
	StartWithConfigurators(R"({"name": "Tower", "recordName": "Other", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak"]}]}]})");
	const UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->ConfiguratorUnit.Rooms.IsEmpty());
}

TEST_F(ConfiguratorCreation, SavedAssetsLoadBackEqual)
{
	StartWithConfigurators(R"({"name": "Türmchen: Ñ", "rooms": [{"name": "Küche \"Süd\"", "groups": [{"name": "Fronten - hell", "products": ["Eiche, geölt", "Lack", ""]}, {"name": "Leer"}]}]})");
	const std::vector<std::string> Rooms = DescribeRooms(CreateAsset(TEXT("Türmchen: Ñ")));
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());

	StartWithProject();
	const UVelmorantConfiguratorDataAsset* Asset = LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Velmorant/Configurator/Configurator_Türmchen_Ñ.Configurator_Türmchen_Ñ"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(ToUtf8(Asset->ConfiguratorName), "Türmchen: Ñ");
	EXPECT_EQ(DescribeRooms(Asset), Rooms);
	EXPECT_EQ(Rooms.size(), 2u);
}
