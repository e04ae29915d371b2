// Copyright Velmorant. All Rights Reserved.

#include "Engine/Engine.h"
#include "UObject/UnrealType.h"
#include "Engine/World.h"
#include "LevelTestEditor.h"
#include "TestActors.h"
#include "UObject/Package.h"

class WorldSpawn : public FLevelTestEditor
{
};

TEST_F(WorldSpawn, PutsTheActorWhereItWasAskedFor)
{
	AActor* Actor = GetWorld().SpawnActor<ATestActor>(FVector(0, 0, 500), FRotator(10, 20, 400));
	ASSERT_NE(Actor, nullptr);
	EXPECT_EQ(Actor->GetActorLocation(), FVector(0, 0, 500));
	EXPECT_EQ(Actor->GetActorRotation(), FRotator(10, 20, 400)) << "a rotation of more than a full turn is kept";
	EXPECT_EQ(Actor->GetLevel(), GetWorld().GetCurrentLevel());
	EXPECT_EQ(Actor->GetWorld(), &GetWorld());
	EXPECT_TRUE(Actor->HasAnyFlags(RF_Transactional));
}

TEST_F(WorldSpawn, TakesLocationRotationAndScaleOfATransform)
{
	const FTransform Transform(FRotator(0, 90, 0), FVector(1, 2, 3), FVector(2, 2, 2));
	AActor* Actor = GetWorld().SpawnActor<ATestActor>(ATestSpecialActor::StaticClass(), Transform);
	ASSERT_NE(Actor, nullptr);
	EXPECT_TRUE(Actor->IsA<ATestSpecialActor>());
	EXPECT_EQ(Actor->GetActorLocation(), FVector(1, 2, 3));
	EXPECT_NEAR(Actor->GetActorRotation().Yaw, 90.0, 1e-6);
	EXPECT_EQ(*Actor->GetClass()->FindPropertyByName(TEXT("ActorScale"))->ContainerPtrToValuePtr<FVector>(Actor), FVector(2, 2, 2));
}

TEST_F(WorldSpawn, GivesNothingForWhatIsNoActorClassThatCanBeMade)
{
	struct FCase
	{
		const char* Behaviour;
		UClass* Class;
	};
	const FCase Cases[] = {
		{"no class", nullptr},
		{"an abstract class", ATestAbstractActor::StaticClass()},
		{"not an actor", UTestPlainObject::StaticClass()},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(GetWorld().SpawnActor(Case.Class), nullptr);
		EXPECT_TRUE(GetLabels().empty());
	}
	EXPECT_EQ(GetLog("LogSpawn").size(), std::size(Cases)) << "each refusal is logged";
}

TEST_F(WorldSpawn, GivesNothingInAWorldThatIsGoingDown)
{
	GetWorld().bIsTearingDown = true;
	EXPECT_EQ(GetWorld().SpawnActor<ATestActor>(), nullptr);
}

TEST_F(WorldSpawn, AnswersATakenNameAsTheNameModeSays)
{
	using ENameMode = FActorSpawnParameters::ESpawnActorNameMode;
	FActorSpawnParameters Parameters;
	Parameters.Name = TEXT("Tower");
	AActor* First = GetWorld().SpawnActor<ATestActor>(Parameters);
	ASSERT_NE(First, nullptr);
	EXPECT_EQ(First->GetFName(), FName(TEXT("Tower")));

	Parameters.NameMode = ENameMode::Required_ReturnNull;
	EXPECT_EQ(GetWorld().SpawnActor<ATestActor>(Parameters), nullptr);
	EXPECT_TRUE(GetLog("LogSpawn").empty()) << "asked for silence";

	Parameters.NameMode = ENameMode::Required_ErrorAndReturnNull;
	EXPECT_EQ(GetWorld().SpawnActor<ATestActor>(Parameters), nullptr);
	EXPECT_EQ(GetLog("LogSpawn").size(), 1u);

	Parameters.NameMode = ENameMode::Requested;
	AActor* Second = GetWorld().SpawnActor<ATestActor>(Parameters);
	ASSERT_NE(Second, nullptr);
	EXPECT_NE(Second->GetFName(), First->GetFName());
}

TEST_F(WorldSpawn, CopiesTheTemplateButNotItsLabel)
{
	ATestActor* Template = GetWorld().SpawnActor<ATestActor>();
	Template->Storey = 12;
	Template->SetActorLabel(TEXT("Pattern"));
	FActorSpawnParameters Parameters;
	Parameters.Template = Template;
	const ATestActor* Copy = GetWorld().SpawnActor<ATestActor>(Parameters);
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(Copy->Storey, 12);
	EXPECT_NE(Utf8(Copy->GetActorLabel()), "Pattern");
	EXPECT_EQ(GetWorld().SpawnActor<AActor>(ATestSpecialActor::StaticClass(), Parameters), nullptr) << "a template of another class";
}

TEST_F(WorldSpawn, DirtiesTheLevel)
{
	GetWorld().GetPackage()->SetDirtyFlag(false);
	GetWorld().SpawnActor<ATestActor>();
	EXPECT_TRUE(GetWorld().GetPackage()->IsDirty());
}

TEST_F(WorldSpawn, LabelsActorsOfOneClassByNumber)
{
	GetWorld().SpawnActor<ATestActor>();
	GetWorld().SpawnActor<ATestActor>();
	GetWorld().SpawnActor<ATestSpecialActor>();
	EXPECT_EQ(GetLabels(), (std::vector<std::string>{"TestActor", "TestActor2", "TestSpecialActor"}));
}

TEST_F(WorldSpawn, LeavesNoLabelWhereNoneMayBeMade)
{
	const AActor* Actor = GetWorld().SpawnActor<ATestActor>();
	EXPECT_TRUE(Actor->GetActorLabel(false).IsEmpty());
	EXPECT_FALSE(Actor->GetActorLabel().IsEmpty());
}

TEST_F(WorldSpawn, DestroyTakesTheActorOutOfTheWorldOnce)
{
	AActor* Actor = GetWorld().SpawnActor<ATestActor>();
	const TWeakObjectPtr<AActor> Weak = Actor;
	EXPECT_TRUE(Actor->Destroy());
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Actor->IsActorBeingDestroyed());
	EXPECT_FALSE(Actor->Destroy());
	EXPECT_TRUE(GetLabels().empty());
}

TEST_F(WorldSpawn, WorldOfAnObjectIsThatOfItsLevel)
{
	const AActor* Actor = GetWorld().SpawnActor<ATestActor>();
	EXPECT_EQ(GEngine->GetWorldFromContextObject(Actor, EGetWorldErrorMode::ReturnNull), &GetWorld());
	EXPECT_EQ(GEngine->GetWorldFromContextObject(GetTransientPackage(), EGetWorldErrorMode::LogAndReturnNull), nullptr);
	EXPECT_EQ(GetLog("LogEngine").size(), 1u);
}
