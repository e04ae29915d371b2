// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestDoor.h"

namespace DynamicDelegateTest
{
	class DynamicDelegate : public FObjectSystemTest
	{
	protected:
		UTestDoor* Door = NewObject<UTestDoor>(GetTransientPackage(), TEXT("Door"));
		UTestDoor* Listener = NewObject<UTestDoor>(GetTransientPackage(), TEXT("Listener"));
	};

	TEST_F(DynamicDelegate, ListenersAreCalledInOrderWithTheParameters)
	{
		Door->OnOpened.AddUniqueDynamic(Listener, &UTestDoor::HandleOpened);
		Door->OnOpened.AddUniqueDynamic(Door, &UTestDoor::HandleOpened);
		Door->OnOpened.Broadcast(TEXT("Ann"), true);
		Door->OnOpened.Broadcast(TEXT("Bo"), false);
		EXPECT_EQ(Listener->Log, (TArray<FString>{TEXT("Ann wide"), TEXT("Bo narrow")}));
		EXPECT_EQ(Door->Log, Listener->Log);
	}

	TEST_F(DynamicDelegate, ABindingIsAnObjectAndAFunctionName)
	{
		EXPECT_FALSE(Door->OnMoved.IsBound());
		Door->OnMoved.AddUniqueDynamic(Listener, &UTestDoor::HandleMoved);
		Door->OnMoved.AddUniqueDynamic(Listener, &UTestDoor::HandleMoved);
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Listener->Log.Num(), 1);

		Door->OnMoved.RemoveDynamic(Listener, &UTestDoor::HandleMoved);
		EXPECT_FALSE(Door->OnMoved.IsBound());
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Listener->Log.Num(), 1);
	}

	TEST_F(DynamicDelegate, ABroadcastRunsOnTheListItStartedWith)
	{
		UTestDoor* Late = NewObject<UTestDoor>(GetTransientPackage(), TEXT("Late"));
		Listener->WhenMoved = [this, Late] {
			Door->OnMoved.RemoveDynamic(Door, &UTestDoor::HandleMoved);
			Door->OnMoved.AddUniqueDynamic(Late, &UTestDoor::HandleMoved);
		};
		Door->OnMoved.AddUniqueDynamic(Listener, &UTestDoor::HandleMoved);
		Door->OnMoved.AddUniqueDynamic(Door, &UTestDoor::HandleMoved);
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Door->Log.Num(), 1) << "removed meanwhile, called still";
		EXPECT_EQ(Late->Log.Num(), 0) << "added meanwhile, not called yet";
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Door->Log.Num(), 1);
		EXPECT_EQ(Late->Log.Num(), 1);
	}

	TEST_F(DynamicDelegate, DeadListenersAreSkipped)
	{
		Door->OnMoved.AddUniqueDynamic(Listener, &UTestDoor::HandleMoved);
		Listener->MarkAsGarbage();
		EXPECT_FALSE(Door->OnMoved.IsBound());
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Listener->Log.Num(), 0);
		Door->AddToRoot();
		HostObjects::CollectGarbage();
		Door->OnMoved.Broadcast();
	}

	TEST_F(DynamicDelegate, SingleOnesReturnTheResult)
	{
		FTestCount Count;
		EXPECT_FALSE(Count.IsBound());
		Count.BindUFunction(Listener, TEXT("CountFrom"));
		EXPECT_EQ(Count.Execute(4), 5);
	}

	TEST_F(DynamicDelegate, BindingsByNameAreCheckedWhenTheyAreCalled)
	{
		FScriptDelegate ByName;
		ByName.BindUFunction(Listener, TEXT("handleMoved"));
		EXPECT_TRUE(ByName.IsBound());
		Door->OnMoved.Add(ByName);
		Door->OnMoved.Broadcast();
		EXPECT_EQ(Listener->Log.Num(), 1);

		FScriptDelegate Misfit;
		Misfit.BindUFunction(Listener, TEXT("CountFrom"));
		Door->OnOpened.Add(Misfit);
		Door->OnOpened.Broadcast(TEXT("Ann"), true);
		EXPECT_GT(CountLogLines(TEXT("does not take the parameters")), 0);

		FScriptDelegate Missing;
		Missing.BindUFunction(Listener, TEXT("NoSuchFunction"));
		EXPECT_FALSE(Missing.IsBound());
	}
}
