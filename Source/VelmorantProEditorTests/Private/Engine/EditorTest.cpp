// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/CollisionProfile.h"
#include "Interfaces/IPluginManager.h"
#include "IPlacementModeModule.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/DelayedAutoRegister.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "UnitVolumeActor.h"
#include "VelmorantAssets.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModulesTest, "Velmorant.Engine.Modules.Loading", VelmorantTests::Flags)

bool FVelmorantModulesTest::RunTest(const FString&)
{
	TestTrue(TEXT("a loaded module is given again"), FModuleManager::Get().LoadModule("PropertyEditor") == FModuleManager::GetModulePtr<FPropertyEditorModule>("PropertyEditor"));
	TestFalse(TEXT("an unknown one is not loaded"), FModuleManager::Get().IsModuleLoaded("VelmorantNowhere"));
	const TSharedRef<int32> NumRuns = MakeShared<int32>(0); // where it waits instead, it outlives the test
	const FDelayedAutoRegisterHelper Late(EDelayedRegisterRunPhase::EndOfEngineInit, [NumRuns] { ++*NumRuns; });
	TestEqual(TEXT("a registration for a phase that has passed runs at once"), *NumRuns, 1);
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("velmorantPRO"));
	if (TestValid(TEXT("plugins are found without regard to case"), Plugin))
	{
		TestEqualSensitive(TEXT("under their own name"), *Plugin->GetName(), TEXT("VelmorantPro"));
		TestFalse(TEXT("their folder has no slash at its end"), Plugin->GetBaseDir().EndsWith(TEXT("/")));
	}
	TestInvalid(TEXT("an unknown plugin is null"), IPluginManager::Get().FindPlugin(TEXT("VelmorantNowhere")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantBlueprintsTest, "Velmorant.Engine.Blueprints.Create", VelmorantTests::Flags)

bool FVelmorantBlueprintsTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	TestTrue(TEXT("unit-volume actions can be made as Blueprints"), FKismetEditorUtilities::CanCreateBlueprintOfClass(UUnitVolumeAction::StaticClass()));
	TestFalse(TEXT("packages cannot"), FKismetEditorUtilities::CanCreateBlueprintOfClass(UPackage::StaticClass()));
	UPackage* Package = CreatePackage(*Content.GetPackageName(TEXT("Action")));
	UBlueprint* Blueprint = FKismetEditorUtilities::CreateBlueprint(UUnitVolumeAction::StaticClass(), Package, TEXT("Action"), BPTYPE_Normal, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), NAME_None);
	if (TestNotNull(TEXT("a Blueprint is there"), Blueprint))
	{
		TestTrue(TEXT("of the class"), Blueprint->ParentClass == UUnitVolumeAction::StaticClass());
		TestTrue(TEXT("with a class of its own"), Blueprint->GeneratedClass && Blueprint->GeneratedClass->IsChildOf(UUnitVolumeAction::StaticClass()));
		Blueprint->MarkAsGarbage();
	}
	Package->SetDirtyFlag(false);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantPlacementTest, "Velmorant.Engine.Placement.Categories", VelmorantTests::Flags)

bool FVelmorantPlacementTest::RunTest(const FString&)
{
	IPlacementModeModule& Placement = IPlacementModeModule::Get();
	const FName Handle = TEXT("VelmorantTests");
	TestTrue(TEXT("a category can be registered"), Placement.RegisterPlacementCategory(FPlacementCategoryInfo(INVTEXT("Velmorant tests"), Handle, TEXT("VelmorantTests"), 99)));
	TestFalse(TEXT("but no second one of its handle"), Placement.RegisterPlacementCategory(FPlacementCategoryInfo(INVTEXT("Again"), Handle, TEXT("VelmorantTests"), 98)));
	TestTrue(TEXT("an item can be put into it"), Placement.RegisterPlaceableItem(Handle, MakeShareable(new FPlaceableItem(nullptr, FAssetData(AUnitVolumeActor::StaticClass())))).IsSet());
	TestFalse(TEXT("but not into one that is not there"), Placement.RegisterPlaceableItem("VelmorantNowhere", MakeShareable(new FPlaceableItem(nullptr, FAssetData(AUnitVolumeActor::StaticClass())))).IsSet());
	Placement.UnregisterPlacementCategory(Handle);
	TestNull(TEXT("unregistered, it is gone"), Placement.GetRegisteredPlacementCategory(Handle));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCollisionProfilesTest, "Velmorant.Engine.Collision.Profiles", VelmorantTests::Flags)

bool FVelmorantCollisionProfilesTest::RunTest(const FString&)
{
	FCollisionResponseTemplate Template;
	TestTrue(TEXT("stock profiles are known"), UCollisionProfile::Get()->GetProfileTemplate("BlockAll", Template));
	TestTrue(TEXT("whatever the case of their names"), UCollisionProfile::Get()->GetProfileTemplate("BLOCKall", Template));
	VelmorantTests::RecordBelief(*this, TEXT("the profile BlockAll has a help text"), !Template.HelpMessage.IsEmpty());
	TestFalse(TEXT("others are not"), UCollisionProfile::Get()->GetProfileTemplate("VelmorantNowhere", Template));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantColorsTest, "Velmorant.Engine.Colors.Conversions", VelmorantTests::Flags)

bool FVelmorantColorsTest::RunTest(const FString&)
{
	TestEqual(TEXT("a colour of bytes is meant as on the screen"), FLinearColor(FColor(128, 0, 255)).R, 0.2158605f);
	TestEqual(TEXT("and comes back"), FLinearColor(FColor::Purple).ToFColor(true), FColor::Purple);
	TestEqual(TEXT("emerald"), FColor::Emerald, FColor(80, 200, 120));
	TestEqual(TEXT("purple"), FColor::Purple, FColor(169, 7, 228));
	FLinearColor Color;
	TestTrue(TEXT("a colour reads what it writes"), Color.InitFromString(FLinearColor(0.25f, 0.5f, 0.75f, 1.0f).ToString()));
	TestEqual(TEXT("the same colour"), Color, FLinearColor(0.25f, 0.5f, 0.75f, 1.0f));
	TestFalse(TEXT("other text is no colour"), Color.InitFromString(TEXT("blue")));
	return true;
}

#endif
