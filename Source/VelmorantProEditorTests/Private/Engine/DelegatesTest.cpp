// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantBroadcastTest, "Velmorant.Engine.Delegates.Broadcast", VelmorantTests::Flags)

bool FVelmorantBroadcastTest::RunTest(const FString&)
{
	FSimpleMulticastDelegate Delegate;
	FString Order;
	Delegate.AddLambda([&Order] { Order += TEXT("1"); });
	Delegate.AddLambda([&Order] { Order += TEXT("2"); });
	Delegate.AddLambda([&Order] { Order += TEXT("3"); });
	Delegate.Broadcast();
	TestEqual(TEXT("each is called once"), Order.Len(), 3);
	VelmorantTests::RecordBelief(*this, TEXT("order of a native broadcast"), Order);

	int32 NumLate = 0;
	bool bAdded = false;
	Delegate.AddLambda([&] {
		if (!bAdded)
		{
			bAdded = true;
			Delegate.AddLambda([&NumLate] { ++NumLate; });
		}
	});
	Delegate.Broadcast();
	TestEqual(TEXT("who comes during a broadcast is not called in it"), NumLate, 0);
	Delegate.Broadcast();
	TestEqual(TEXT("but in the next one"), NumLate, 1);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantBroadcastRemovalTest, "Velmorant.Engine.Delegates.RemovalWithinBroadcast", VelmorantTests::Flags)

bool FVelmorantBroadcastRemovalTest::RunTest(const FString&)
{
	// Each removes the other: whoever comes first, one is called.
	FSimpleMulticastDelegate Delegate;
	FDelegateHandle First;
	FDelegateHandle Second;
	int32 NumCalls = 0;
	First = Delegate.AddLambda([&] { ++NumCalls; Delegate.Remove(Second); });
	Second = Delegate.AddLambda([&] { ++NumCalls; Delegate.Remove(First); });
	Delegate.Broadcast();
	TestEqual(TEXT("who was removed meanwhile is not called"), NumCalls, 1);
	Delegate.Broadcast();
	TestEqual(TEXT("nor later"), NumCalls, 2);

	FSimpleMulticastDelegate Once;
	int32 NumOnce = 0;
	FDelegateHandle Self;
	Self = Once.AddLambda([&] { ++NumOnce; Once.Remove(Self); });
	Once.Broadcast();
	Once.Broadcast();
	TestEqual(TEXT("a handler may remove itself"), NumOnce, 1);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantAddUniqueTest, "Velmorant.Engine.Delegates.AddUnique", VelmorantTests::Flags)

bool FVelmorantAddUniqueTest::RunTest(const FString&)
{
	UVelmorantTestListener* Listener = NewObject<UVelmorantTestListener>();
	Listener->Signal.AddUniqueDynamic(Listener, &UVelmorantTestListener::Hear);
	Listener->Signal.AddUniqueDynamic(Listener, &UVelmorantTestListener::Hear);
	Listener->Signal.Broadcast(1);
	TestEqual(TEXT("a dynamic delegate takes a function once"), Listener->NumHeard, 1);

	FSimpleMulticastDelegate Native;
	Native.AddUObject(Listener, &UVelmorantTestListener::HearPlainly);
	Native.AddUObject(Listener, &UVelmorantTestListener::HearPlainly);
	Native.Broadcast();
	TestEqual(TEXT("a native one as often as it was added"), Listener->NumHeard, 3);
	TestEqual(TEXT("and all go with their object"), Native.RemoveAll(Listener), 2);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDynamicBroadcastTest, "Velmorant.Engine.Delegates.DynamicBroadcast", VelmorantTests::Flags)

bool FVelmorantDynamicBroadcastTest::RunTest(const FString&)
{
	TArray<FString> Diary;
	UVelmorantTestListener* Source = NewObject<UVelmorantTestListener>();
	for (const TCHAR* Name : {TEXT("A"), TEXT("B")})
	{
		UVelmorantTestListener* Listener = NewObject<UVelmorantTestListener>(Source);
		Listener->Label = Name;
		Listener->Diary = &Diary;
		Source->Signal.AddDynamic(Listener, &UVelmorantTestListener::Hear);
	}
	Source->Signal.Broadcast(7);
	TestEqual(TEXT("both are called"), Diary.Num(), 2);
	VelmorantTests::RecordBelief(*this, TEXT("order of a dynamic broadcast"), FString::Join(Diary, TEXT(", ")));

	// Each silences the other: whoever comes first, the second is called or not.
	UVelmorantTestListener* Quarrel = NewObject<UVelmorantTestListener>();
	UVelmorantTestListener* First = NewObject<UVelmorantTestListener>(Quarrel);
	UVelmorantTestListener* Second = NewObject<UVelmorantTestListener>(Quarrel);
	First->Friend = Second;
	Second->Friend = First;
	Quarrel->Signal.AddDynamic(First, &UVelmorantTestListener::HearAndSilence);
	Quarrel->Signal.AddDynamic(Second, &UVelmorantTestListener::HearAndSilence);
	Quarrel->Signal.Broadcast(1);
	VelmorantTests::RecordBelief(*this, TEXT("a dynamic handler that is removed during the broadcast is called"), First->NumHeard + Second->NumHeard == 2);

	UVelmorantTestListener* Once = NewObject<UVelmorantTestListener>();
	Once->Signal.AddDynamic(Once, &UVelmorantTestListener::HearOnce);
	Once->Signal.Broadcast(1);
	Once->Signal.Broadcast(2);
	TestEqual(TEXT("a handler may remove itself"), Once->NumHeard, 1);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantWeakHandlersTest, "Velmorant.Engine.Delegates.WeakHandlersAfterCollection", VelmorantTests::Flags)

bool FVelmorantWeakHandlersTest::RunTest(const FString&)
{
	int32 NumWeak = 0;
	FSimpleMulticastDelegate Native;
	UVelmorantTestListener* Source = NewObject<UVelmorantTestListener>();
	Source->AddToRoot();
	UVelmorantTestListener* Gone = NewObject<UVelmorantTestListener>();
	const TWeakObjectPtr<UVelmorantTestListener> Weak(Gone);
	Native.AddUObject(Gone, &UVelmorantTestListener::HearPlainly);
	Native.AddWeakLambda(Gone, [&NumWeak] { ++NumWeak; });
	Source->Signal.AddDynamic(Gone, &UVelmorantTestListener::Hear);
	Gone->MarkAsGarbage();
	Gone = nullptr;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);

	TestFalse(TEXT("a delegate keeps nobody alive"), Weak.IsValid());
	Native.Broadcast();
	Source->Signal.Broadcast(1);
	TestEqual(TEXT("a lambda bound to an object that went is not called"), NumWeak, 0);
	TestFalse(TEXT("no handler is left"), Native.IsBound());
	Source->RemoveFromRoot();
	return true;
}

#endif
