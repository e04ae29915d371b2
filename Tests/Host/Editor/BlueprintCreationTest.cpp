// Copyright Velmorant. All Rights Reserved.

#include "ActorFactories/ActorFactoryBlueprint.h"
#include "HostAssertions.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostPlacement.h"
#include "HostProblems.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "LevelTestEditor.h"
#include "TestActors.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

class BlueprintCreation : public FLevelTestEditor
{
protected:
	static UBlueprint* Make(UClass* Parent)
	{
		return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(TEXT("/Game/Action")), TEXT("Action"), BPTYPE_Normal,
			UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), NAME_None);
	}
};

TEST_F(BlueprintCreation, AllowsWhatTheClassOrTheNearestAboveItAllows)
{
	struct FCase
	{
		const char* Behaviour;
		UClass* Class;
		bool bAllowed;
	};
	const FCase Cases[] = {
		{"says so itself", AActor::StaticClass(), true},
		{"inherits it", ATestSpecialActor::StaticClass(), true},
		{"takes it back", ATestSealedActor::StaticClass(), false},
		{"nobody says so", UTestPlainObject::StaticClass(), false},
		{"the root of all", UObject::StaticClass(), true},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(FKismetEditorUtilities::CanCreateBlueprintOfClass(Case.Class), Case.bAllowed);
	}
}

TEST_F(BlueprintCreation, MakesAClassThatCanBeSpawned)
{
	const UBlueprint* Blueprint = Make(ATestActor::StaticClass());
	ASSERT_NE(Blueprint, nullptr);
	EXPECT_EQ(Blueprint->ParentClass, ATestActor::StaticClass());
	EXPECT_EQ(Blueprint->BlueprintType, BPTYPE_Normal);
	EXPECT_TRUE(Blueprint->HasAnyFlags(RF_Public));
	EXPECT_TRUE(Blueprint->HasAnyFlags(RF_Standalone));
	EXPECT_TRUE(Blueprint->HasAnyFlags(RF_Transactional));
	EXPECT_TRUE(Blueprint->GetPackage()->IsDirty());
	UClass* Class = Blueprint->GeneratedClass;
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Utf8(Class->GetPathName()), "/Game/Action.Action_C");
	EXPECT_TRUE(FKismetEditorUtilities::CanCreateBlueprintOfClass(Class));
	const AActor* Actor = GetWorld().SpawnActor(Class);
	ASSERT_NE(Actor, nullptr);
	EXPECT_EQ(Actor->GetClass(), Class);
	EXPECT_TRUE(Actor->IsA<ATestActor>());
	EXPECT_EQ(Utf8(Actor->GetActorLabel()), "Action");
}

TEST_F(BlueprintCreation, RefusesATakenName)
{
	Make(ATestActor::StaticClass());
	EXPECT_THROW(Make(ATestActor::StaticClass()), FHostAssertionFailure);
}

TEST_F(BlueprintCreation, IsPlacedWhenItIsABlueprintOfActors)
{
	const auto Place = [](const FPlaceableItem& Item) {
		FText Reason;
		const AActor* Actor = HostPlacement::Place(Item, FTransform(FVector(1.0, 2.0, 3.0)), Reason);
		return Actor != nullptr ? Utf8(Actor->GetClass()->GetName() + TEXT(" at ") + Actor->GetActorLocation().ToString()) : Utf8(Reason.ToString());
	};
	UClass& Factory = *UActorFactoryBlueprint::StaticClass();
	const FAssetData Missing(TEXT("/Game/Sun"), TEXT("/Game"), TEXT("Sun"), FTopLevelAssetPath(TEXT("/Script/Engine"), TEXT("Blueprint")));
	EXPECT_EQ(Place(FPlaceableItem(Factory, Missing)), "/Game/Sun.Sun is no Blueprint with a class.");

	UBlueprint* Blueprint = Make(ATestActor::StaticClass());
	EXPECT_EQ(Place(FPlaceableItem(Factory, FAssetData(Blueprint))), "Action_C at X=1.000 Y=2.000 Z=3.000");
	EXPECT_EQ(Place(FPlaceableItem(nullptr, FAssetData(Blueprint))), "Action_C at X=1.000 Y=2.000 Z=3.000") << "the editor finds the factory";
	EXPECT_EQ(Place(FPlaceableItem(nullptr, FAssetData(ATestActor::StaticClass()))), "TestActor at X=1.000 Y=2.000 Z=3.000");

	UBlueprint* NoActor = FKismetEditorUtilities::CreateBlueprint(UObject::StaticClass(), CreatePackage(TEXT("/Game/Rule")), TEXT("Rule"), BPTYPE_Normal, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass());
	EXPECT_EQ(Place(FPlaceableItem(Factory, FAssetData(NoActor))), "Rule is no class of actors.");
	EXPECT_EQ(Place(FPlaceableItem(nullptr, FAssetData(NoActor))), "Nothing makes actors of /Game/Rule.Rule.");
	EXPECT_EQ(Place(FPlaceableItem(nullptr, FAssetData(ATestAbstractActor::StaticClass()))), "Nothing makes actors of /Script/TestActors.TestAbstractActor.");
}

TEST_F(BlueprintCreation, HasItsClassAgainAfterLoading)
{
	ASSERT_TRUE(HostPackages::Save(Make(ATestActor::StaticClass())->GetPackage()).Succeeded());
	Restart();
	const UBlueprint* Loaded = Cast<UBlueprint>(HostPackages::LoadAsset(TEXT("/Game/Action")));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->ParentClass, ATestActor::StaticClass());
	UClass* Class = LoadObject<UClass>(nullptr, TEXT("/Game/Action.Action_C"));
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class, Loaded->GeneratedClass);
	HostObjects::CollectGarbage();
	EXPECT_NE(GetWorld().SpawnActor(Class), nullptr);
}
