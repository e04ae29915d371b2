// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "EngineUtils.h"
#include "HostAssertions.h"
#include "Kismet/GameplayStatics.h"
#include "LevelTestEditor.h"
#include "TestActors.h"

class ActorIteration : public FLevelTestEditor
{
protected:
	ActorIteration()
	{
		Spawn(ATestActor::StaticClass(), TEXT("A"));
		Spawn(ATestSpecialActor::StaticClass(), TEXT("B"));
		Spawn(ATestSealedActor::StaticClass(), TEXT("C"));
		Spawn(ATestActor::StaticClass(), TEXT("D"));
	}

	AActor* Spawn(UClass* Class, const TCHAR* Label)
	{
		AActor* Actor = GetWorld().SpawnActor(Class);
		Actor->SetActorLabel(Label);
		return Actor;
	}

	AActor* Find(const char* Label) const
	{
		for (TActorIterator<AActor> It(&GetWorld()); It; ++It)
		{
			if (Utf8(It->GetActorLabel()) == Label)
			{
				return *It;
			}
		}
		return nullptr;
	}

	std::string Visit(UClass* Class, EActorIteratorFlags Flags = EActorIteratorFlags::OnlyActiveLevels | EActorIteratorFlags::SkipPendingKill) const
	{
		std::string Labels;
		for (FActorIterator It(&GetWorld(), Class, Flags); It; ++It)
		{
			Labels += Utf8(It->GetActorLabel());
		}
		return Labels;
	}
};

TEST_F(ActorIteration, VisitsAClassAndThoseBelowItInOrderOfSpawning)
{
	EXPECT_EQ(Visit(AActor::StaticClass()), "ABCD");
	EXPECT_EQ(Visit(ATestActor::StaticClass()), "ABD");
	EXPECT_EQ(Visit(ATestSpecialActor::StaticClass()), "B");
	EXPECT_EQ(Visit(nullptr), "");
}

TEST_F(ActorIteration, TypedIteratorAndRangeGiveTheType)
{
	int32 Sum = 0;
	for (TActorIterator<ATestActor> It(&GetWorld()); It; ++It)
	{
		(*It)->Storey = 3;
	}
	for (TActorIterator<ATestActor> It(&GetWorld()); It; ++It)
	{
		Sum += (*It)->Storey;
	}
	EXPECT_EQ(Sum, 9);
}

TEST_F(ActorIteration, FlagsNarrowWhatIsVisited)
{
	GEditor->SelectActor(Find("B"), true, false);
	GEditor->SelectActor(Find("D"), true, false);
	EXPECT_EQ(Visit(AActor::StaticClass(), EActorIteratorFlags::OnlySelectedActors), "BD");

	GetWorld().GetCurrentLevel()->bIsVisible = false;
	EXPECT_EQ(Visit(AActor::StaticClass()), "") << "a level that does not show is not active";
	EXPECT_EQ(Visit(AActor::StaticClass(), EActorIteratorFlags::AllActors), "ABCD");
}

TEST_F(ActorIteration, SkipsGarbageUnlessToldOtherwise)
{
	Find("B")->MarkAsGarbage();
	EXPECT_EQ(Visit(AActor::StaticClass()), "ACD");
	EXPECT_EQ(Visit(AActor::StaticClass(), EActorIteratorFlags::AllActors), "ABCD");
}

TEST_F(ActorIteration, MayDestroyTheCurrentActor)
{
	std::string Visited;
	for (TActorIterator<AActor> It(&GetWorld()); It; ++It)
	{
		Visited += Utf8(It->GetActorLabel());
		It->Destroy();
	}
	EXPECT_EQ(Visited, "ABCD");
	EXPECT_EQ(Visit(AActor::StaticClass()), "");
}

TEST_F(ActorIteration, RefusesToWalkOverNoWorld)
{
	EXPECT_THROW(TActorIterator<AActor>(nullptr), FHostAssertionFailure);
}

TEST_F(ActorIteration, GameplayStaticsResetTheirResult)
{
	TArray<AActor*> Found;
	UGameplayStatics::GetAllActorsOfClass(Find("C"), ATestActor::StaticClass(), Found);
	EXPECT_EQ(Found.Num(), 3);
	UGameplayStatics::GetAllActorsOfClass(&GetWorld(), ATestSpecialActor::StaticClass(), Found);
	ASSERT_EQ(Found.Num(), 1);
	EXPECT_EQ(Found[0], Find("B"));
	UGameplayStatics::GetAllActorsOfClass(&GetWorld(), nullptr, Found);
	EXPECT_EQ(Found.Num(), 0);
	EXPECT_EQ(UGameplayStatics::GetActorOfClass(&GetWorld(), ATestActor::StaticClass()), Find("A"));
	EXPECT_EQ(UGameplayStatics::GetActorOfClass(&GetWorld(), ATestAbstractActor::StaticClass()), nullptr);
}
