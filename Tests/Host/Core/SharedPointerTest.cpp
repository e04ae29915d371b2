// Copyright Velmorant. All Rights Reserved.

#include "Containers/Map.h"
#include "HostAssertions.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

namespace SharedPointerTest
{
	class FThing : public TSharedFromThis<FThing>
	{
	public:
		static inline int32 NumAlive = 0;

		FThing() { ++NumAlive; }

		FThing(const FThing& Other)
			: TSharedFromThis<FThing>(Other)
		{
			++NumAlive;
		}

		virtual ~FThing() { --NumAlive; }

		TSharedRef<FThing> Me() { return AsShared(); }
	};

	struct FOtherBase
	{
		virtual ~FOtherBase() = default;
		int32 Padding = 1;
	};

	class FSpecialThing : public FOtherBase, public FThing
	{
	};

	class FThingThatAsksTooEarly : public TSharedFromThis<FThingThatAsksTooEarly>
	{
	public:
		FThingThatAsksTooEarly() { AsShared(); }
	};
}

using namespace SharedPointerTest;

TEST(SharedPointer, DeletesTheObjectWithItsLastOwner)
{
	TSharedPtr<FThing> First = MakeShared<FSpecialThing>();
	TSharedPtr<FThing> Second = First;
	const TWeakPtr<FThing> Weak = First;
	EXPECT_FALSE(First.IsUnique());
	First.Reset();
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(FThing::NumAlive, 1);
	Second = nullptr;
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
	EXPECT_EQ(FThing::NumAlive, 0);
}

TEST(SharedPointer, WeakPointersDoNotCountForIsUnique)
{
	const TSharedPtr<FThing> Thing = MakeShared<FThing>();
	const TWeakPtr<FThing> Weak = Thing;
	EXPECT_TRUE(Thing.IsUnique());
	{
		const TSharedPtr<FThing> Second = Weak.Pin();
		EXPECT_FALSE(Thing.IsUnique());
		EXPECT_FALSE(Second.IsUnique());
	}
	EXPECT_TRUE(Thing.IsUnique());
	EXPECT_FALSE(TSharedPtr<FThing>().IsUnique());
}

TEST(SharedPointer, HandsOutPointersToItselfWhicheverWayItWasMade)
{
	const TSharedRef<FSpecialThing> Made = MakeShared<FSpecialThing>();
	const TSharedPtr<FThing> Shareable = MakeShareable(new FSpecialThing());
	const TSharedPtr<FOtherBase> ByOtherBase = MakeShareable(new FSpecialThing());
	const TSharedPtr<FThing> Raw(new FThing());

	EXPECT_EQ(&Made->AsShared().Get(), static_cast<FThing*>(&Made.Get()));
	EXPECT_EQ(Shareable->Me(), Shareable);
}

TEST(SharedPointer, CannotHandOutPointersToAnObjectThatNobodyOwns)
{
	FThing OnTheStack;
	EXPECT_THROW(OnTheStack.AsShared(), FHostAssertionFailure);
	EXPECT_THROW((void)MakeShared<FThingThatAsksTooEarly>(), FHostAssertionFailure);
}

TEST(SharedPointer, ACopiedObjectHasOwnersOfItsOwn)
{
	const TSharedRef<FThing> Original = MakeShared<FThing>();
	const TSharedRef<FThing> Copy = MakeShared<FThing>(*Original);
	EXPECT_EQ(&Copy->AsShared().Get(), &Copy.Get());
}

TEST(SharedPointer, ANullPointerIsNotFollowed)
{
	const TSharedPtr<FThing> Null;
	EXPECT_THROW(Null->Me(), FHostAssertionFailure);
	EXPECT_THROW(*Null, FHostAssertionFailure);
	EXPECT_THROW(Null.ToSharedRef(), FHostAssertionFailure);
	EXPECT_THROW(TSharedRef<FThing>(static_cast<FThing*>(nullptr)), FHostAssertionFailure);
}

TEST(SharedPointer, IsAKeyByIdentity)
{
	const TSharedRef<FThing> A = MakeShared<FThing>();
	const TSharedRef<FThing> B = MakeShared<FThing>();
	TMap<TSharedPtr<FThing>, int32> Map;
	Map.Add(A, 1);
	Map.Add(B, 2);
	Map.Add(A->Me(), 3);
	EXPECT_EQ(Map.Num(), 2);
	EXPECT_EQ(Map.FindRef(A), 3);
}

TEST(SharedPointer, ReleasesTheOldObjectAfterTakingTheNew)
{
	struct FNode
	{
		TSharedPtr<FNode> Next;
	};
	TSharedPtr<FNode> Head = MakeShared<FNode>();
	Head->Next = MakeShared<FNode>();
	const TWeakPtr<FNode> Second = Head->Next;
	Head = Head->Next; // the source lives in the object that is released
	EXPECT_EQ(Head, Second);
	Head = MoveTemp(Head->Next);
	EXPECT_FALSE(Second.IsValid());
}

TEST(WeakPointer, StaysTheSameKeyWhenItsObjectIsGone)
{
	TMap<TWeakPtr<FThing>, int32> Map;
	TSharedPtr<FThing> Thing = MakeShared<FThing>();
	const TWeakPtr<FThing> Weak = Thing;
	Map.Add(Weak, 1);
	EXPECT_TRUE(Weak.HasSameObject(Thing.Get()));
	Thing.Reset();
	EXPECT_EQ(Map.Remove(Weak), 1);
	EXPECT_TRUE(Weak == nullptr);
}

TEST(UniquePointer, DeletesItsObjectOnceWhereverItWent)
{
	{
		TUniquePtr<FThing> First = MakeUnique<FSpecialThing>();
		TUniquePtr<FThing> Second = MoveTemp(First);
		EXPECT_FALSE(First.IsValid());
		Second = MakeUnique<FThing>();
		EXPECT_EQ(FThing::NumAlive, 1);
		const TUniquePtr<FThing> Owner(Second.Release());
		EXPECT_TRUE(Second == nullptr);
		EXPECT_EQ(FThing::NumAlive, 1);
	}
	EXPECT_EQ(FThing::NumAlive, 0);
}

TEST(Scope, PutsThingsBackWhicheverWayItIsLeft)
{
	int32 Value = 1;
	const auto Fail = [&Value] {
		const TGuardValue<int32> Guard(Value, 2);
		EXPECT_EQ(Value, 2);
		check(Value == 1);
	};
	EXPECT_THROW(Fail(), FHostAssertionFailure);
	EXPECT_EQ(Value, 1);
}

TEST(Function, CopiesSmallAndLargeFunctors)
{
	struct FLarge
	{
		int32 Values[40] = {};
	};
	FLarge Large;
	Large.Values[39] = 5;
	const TSharedPtr<int32> Counter = MakeShared<int32>(0);
	TFunction<int32(int32)> Small = [Counter](int32 X) { return X + ++*Counter; };
	TFunction<int32(int32)> Big = [Large, Counter](int32 X) { return X + Large.Values[39]; };
	TFunction<int32(int32)> Copy = Small;
	EXPECT_EQ(Copy(10), 11);
	EXPECT_EQ(Small(10), 12);
	Copy = Big;
	Small = MoveTemp(Big);
	EXPECT_EQ(Copy(1) + Small(1), 12);
	EXPECT_FALSE(Big) << "what was moved away is left";
	Copy = nullptr;
	Small.Reset();
	EXPECT_TRUE(Counter.IsUnique());
}

TEST(Function, AnUnsetOneIsNotCalled)
{
	const TFunction<void()> Unset;
	const TFunction<void()> FromNullPointer = static_cast<void (*)()>(nullptr);
	const TFunction<void()> FromUnset = TFunction<void()>(Unset);
	EXPECT_FALSE(Unset) << "nothing was given";
	EXPECT_FALSE(FromNullPointer) << "a null pointer is no function";
	EXPECT_FALSE(FromUnset) << "nor is a function object that is unset";
	EXPECT_THROW(Unset(), FHostAssertionFailure);
}

TEST(Function, AUniqueFunctionTakesWhatCannotBeCopied)
{
	TUniqueFunction<int32()> Function = [Value = MakeUnique<int32>(7)] { return *Value; };
	TUniqueFunction<int32()> Moved = MoveTemp(Function);
	EXPECT_EQ(Moved(), 7);
	EXPECT_THROW(Function(), FHostAssertionFailure);
}

TEST(Optional, HoldsAValueOrNone)
{
	TOptional<TSharedPtr<int32>> Optional;
	EXPECT_THROW(Optional.GetValue(), FHostAssertionFailure);
	const TSharedPtr<int32> Value = MakeShared<int32>(3);
	Optional = Value;
	TOptional<TSharedPtr<int32>> Copy = Optional;
	EXPECT_TRUE(Copy == Optional);
	Copy = NullOpt;
	Optional.Reset();
	EXPECT_FALSE(Optional.IsSet());
	EXPECT_TRUE(Value.IsUnique());
	EXPECT_EQ(Optional.Get(Value), Value);
}
