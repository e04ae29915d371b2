// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "HostObjects.h"
#include "LevelVariantSets.h"
#include "Misc/OutputDeviceRedirector.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtr.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace ConfiguratorRefreshTest
{
	/** Looks, when the service is asked, whether somebody listens for the answer already. */
	class FListenersWhenAsked : public FOutputDevice
	{
	public:
		FListenersWhenAsked() { GLog->AddOutputDevice(this); }
		virtual ~FListenersWhenAsked() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type, const FName&) override
		{
			if (FString(V).EndsWith(TEXT("has this request fail.")))
			{
				Found.push_back(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false)->GetProjectRequestManager()->GetOnUpdateRequest().IsBound());
			}
		}

		std::vector<bool> Found;
	};

	const FOutcome Requested{"Success Configuration Updated", "", SNotificationItem::CS_Success, 7.0f};
	const FOutcome NoValidUser{"VelmorantDeveloperUser isn't valid", "User isn't login or hasn't a valid token. Check login process", SNotificationItem::CS_Fail, 7.0f};
	const FOutcome NameDoesNotMatch{"Fail Configuration Updated ", "Configurator name doesn't match with current data", SNotificationItem::CS_Fail, 7.0f};

	const char* const GrownConfigurator = R"({"name": "Tower", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak", "Lacquer", "Steel"]}]}]})";

	bool Refresh(UVelmorantConfiguratorDataAsset* Asset)
	{
		return UVelmorantEditorUtilitiesLibrary::UpdateConfiguratorDataAssetInfo(Asset);
	}
}

using namespace ConfiguratorRefreshTest;

class ConfiguratorRefresh : public FConfiguratorTest
{
protected:
	/** Starts with the asset of the one-room configurator, and then has the service offer a third product. */
	UVelmorantConfiguratorDataAsset* StartWithGrownConfigurator()
	{
		StartWithConfigurators(OneRoomConfigurator);
		UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower"));
		WriteConfigurators(GrownConfigurator);
		return Asset;
	}

	/** As the request manager tells that a request has finished. */
	static void Raise(EUpdateRequestDataType DataType) { GetRequests()->GetOnUpdateRequest().Broadcast(DataType, EUpdateRequestType::Get); }
};

TEST_F(ConfiguratorRefresh, BringsTheNewDataOnceTheServiceAnswers)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	std::vector<std::string> Told;
	GetRequests()->GetOnUpdateRequest().AddLambda([&Told](EUpdateRequestDataType DataType, EUpdateRequestType RequestType) {
		Told.push_back(std::to_string(static_cast<int>(DataType)) + "/" + std::to_string(static_cast<int>(RequestType)));
	});
	EXPECT_TRUE(Refresh(Asset));
	Asset->ConfiguratorName = TEXT("Renamed"); // what is on its way is still Tower's
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Requested));
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer")) << "an answer within the call, even without delay";

	Wait(0.0);
	EXPECT_THAT(Told, ElementsAre("4/0")) << "configurator data, fetched";
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer, Steel"));
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull()) << "a refresh makes no level variant sets";
}

TEST_F(ConfiguratorRefresh, ListensOnceTheServiceHasBeenAsked)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	WriteServiceWith(R"("failingRequests": ["configurator"])");
	const FListenersWhenAsked Listeners;
	EXPECT_TRUE(Refresh(Asset));
	EXPECT_THAT(Listeners.Found, ElementsAre(false));
	EXPECT_TRUE(GetRequests()->GetOnUpdateRequest().IsBound());
}

TEST_F(ConfiguratorRefresh, AddsWhatIsNewToTheLevelVariantSets)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	Refresh(Asset);
	Wait(0.0);
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
}

TEST_F(ConfiguratorRefresh, WhatItBringsIsAnUnsavedChange)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	SaveAll();
	Refresh(Asset);
	EXPECT_THAT(Unsaved(), IsEmpty()) << "nothing has come yet";
	Wait(0.0);
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Velmorant/Configurator/Configurator_Tower", "/Game/Velmorant/Configurator/LevelVariant_Tower"));
	SaveAndRestart();
	Asset = LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer, Steel"));
}

TEST_F(ConfiguratorRefresh, LeavesEverythingCleanThatIsThereAlready)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	Refresh(Asset);
	Wait(0.0);
	SaveAll();
	Refresh(Asset);
	Wait(0.0);
	EXPECT_THAT(Unsaved(), IsEmpty());

	ULevelVariantSets* LevelVariantSets = CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());
	LevelVariantSets->RemoveVariantSets(LevelVariantSets->GetVariantSets()); // shows whether they are filled again
	SaveAll();
	Raise(EUpdateRequestDataType::ConfiguratorData);
	EXPECT_THAT(Describe(LevelVariantSets), ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Velmorant/Configurator/LevelVariant_Tower")) << "the record is the same";

	WriteConfigurators(R"({"name": "Tower", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak", "lacquer", "Steel"]}]}]})");
	SaveAll();
	Refresh(Asset);
	Wait(0.0);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, lacquer, Steel"));
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Velmorant/Configurator/Configurator_Tower")) << "letter case is a change of the record";
}

TEST_F(ConfiguratorRefresh, CopiesOnlyTheRecordWhenThePathIsNotLoaded)
{
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(StartWithGrownConfigurator());
	SaveAll();
	for (const TCHAR* Path : {TEXT("/Game/Velmorant/Configurator/LevelVariant_Tower.LevelVariant_Tower"), TEXT("/Game/Gone/LevelVariant_Tower.LevelVariant_Tower")})
	{
		StartWithProject(); // on disk, or nowhere
		UVelmorantConfiguratorDataAsset* Asset = LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"));
		ASSERT_NE(Asset, nullptr);
		Asset->LevelVariantSets = FSoftObjectPath(FString(Path));
		Refresh(Asset);
		TakeOutcomes();
		Wait(0.0);
		EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer, Steel"));
		EXPECT_THAT(TakeOutcomes(), IsEmpty());
		EXPECT_EQ(Asset->LevelVariantSets.ResolveObject(), nullptr) << ToUtf8(FString(Path));
	}
}

TEST_F(ConfiguratorRefresh, RefusesWithoutAnAssetSilently)
{
	StartWithConfigurators(OneRoomConfigurator);
	EXPECT_FALSE(Refresh(nullptr));
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}

TEST_F(ConfiguratorRefresh, NeedsAUserWithAValidToken)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Loose = NewObject<UVelmorantConfiguratorDataAsset>();
	EXPECT_FALSE(Refresh(Loose));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoValidUser)) << "there is no user";
	EXPECT_EQ(UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false), nullptr) << "and none is made";

	WriteServiceWith("\"tokenSeconds\": 60");
	SignIn();
	Wait(61.0);
	EXPECT_FALSE(Refresh(Loose));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoValidUser)) << "the token has expired";
}

TEST_F(ConfiguratorRefresh, NeedsAConfiguratorWithARecordOfItsName)
{
	StartWithConfigurators(R"({"name": "Tower"}, {"name": "Odd", "recordName": "Other"})");
	UVelmorantConfiguratorDataAsset* Asset = NewObject<UVelmorantConfiguratorDataAsset>();
	for (const TCHAR* Name : {TEXT("Unknown"), TEXT("Odd"), TEXT("Other")})
	{
		Asset->ConfiguratorName = Name;
		EXPECT_FALSE(Refresh(Asset)) << ToUtf8(FString(Name));
		EXPECT_THAT(TakeOutcomes(), ElementsAre(NameDoesNotMatch)) << ToUtf8(FString(Name));
	}
	EXPECT_THAT(TakeModuleLog(), IsEmpty());
}

TEST_F(ConfiguratorRefresh, NeedsASelectedProject)
{
	StartEditor();
	SignIn();
	EXPECT_FALSE(Refresh(NewObject<UVelmorantConfiguratorDataAsset>()));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NameDoesNotMatch));
}

TEST_F(ConfiguratorRefresh, IgnoresUpdatesOfOtherKinds)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	Refresh(Asset);
	Wait(0.0);
	Asset->ConfiguratorUnit.Rooms.Empty(); // shows the next copy
	for (const EUpdateRequestDataType DataType : {EUpdateRequestDataType::None, EUpdateRequestDataType::Projects, EUpdateRequestDataType::Configurator, EUpdateRequestDataType::Units, EUpdateRequestDataType::ProjectData})
	{
		Raise(DataType);
		EXPECT_THAT(DescribeRooms(Asset), IsEmpty()) << "kind " << static_cast<int>(DataType);
	}
	Raise(EUpdateRequestDataType::ConfiguratorData);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer, Steel"));
}

TEST_F(ConfiguratorRefresh, RunsOncePerRefreshOnEveryLaterUpdate)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	ULevelVariantSets* LevelVariantSets = CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());

	// A handler of its own between those of the two refreshes sees what the first one did, and undoes it.
	std::vector<std::string> Between;
	Refresh(Asset);
	GetRequests()->GetOnUpdateRequest().AddLambda([&Between, Asset, LevelVariantSets](EUpdateRequestDataType, EUpdateRequestType) {
		Between = Describe(LevelVariantSets);
		LevelVariantSets->RemoveVariantSets(LevelVariantSets->GetVariantSets());
		Asset->ConfiguratorUnit.Rooms.Empty();
	});
	Refresh(Asset);
	Wait(0.0);
	Raise(EUpdateRequestDataType::None); // undoes what the answers brought
	ASSERT_THAT(Describe(LevelVariantSets), IsEmpty());

	Raise(EUpdateRequestDataType::ConfiguratorData);
	EXPECT_THAT(Between, ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
	EXPECT_THAT(Describe(LevelVariantSets), ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer, Steel"));
}

TEST_F(ConfiguratorRefresh, ChangesNothingWhenTheRecordIsGone)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	ULevelVariantSets* LevelVariantSets = CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());
	LevelVariantSets->RemoveVariantSets(LevelVariantSets->GetVariantSets()); // shows whether they are filled again

	WriteConfigurators(R"({"name": "Tower", "recordName": "Other", "rooms": [{"name": "Bath"}]})");
	Refresh(Asset);
	Wait(0.0);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer"));
	EXPECT_THAT(Describe(LevelVariantSets), IsEmpty());
}

TEST_F(ConfiguratorRefresh, StaysHarmlessWhenTheAssetIsGone)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	Refresh(Asset);
	const TWeakObjectPtr<UVelmorantConfiguratorDataAsset> WeakAsset(Asset);
	Asset->GetPackage()->ClearFlags(RF_Standalone | RF_Public);
	Asset->ClearFlags(RF_Standalone | RF_Public);
	Asset->MarkAsGarbage();
	HostObjects::CollectGarbage();
	ASSERT_FALSE(WeakAsset.IsValid()) << "a refresh must not keep the asset";

	TakeOutcomes();
	Wait(0.0);
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}

TEST_F(ConfiguratorRefresh, StaysHarmlessWhenTheProjectIsLeft)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	Refresh(Asset);
	GetUser()->SetSelectedProject(GetUser()->GetEditorUserProjects()[1], false); // before the answer
	Wait(0.0);
	HostObjects::CollectGarbage();
	Raise(EUpdateRequestDataType::ConfiguratorData);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer")) << "the wrapper that it asked is gone";
}

TEST_F(ConfiguratorRefresh, AFailedRequestChangesNothing)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithGrownConfigurator();
	WriteService("no JSON");
	EXPECT_TRUE(Refresh(Asset)) << "requested it is";
	Wait(0.0);
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer"));
}
