// Copyright Velmorant. All Rights Reserved.

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "HostAssertions.h"
#include "Misc/Attribute.h"
#include "Templates/Function.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace DelegateTest
{
	DECLARE_DELEGATE_OneParam(FOnValue, int32);
	DECLARE_DELEGATE_RetVal_TwoParams(int32, FCombine, int32, int32);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnValues, int32);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnCanClose, bool&);
	DECLARE_MULTICAST_DELEGATE(FOnStep);

	class FListener : public TSharedFromThis<FListener>
	{
	public:
		void Receive(int32 Value) { Sum += Value; }
		void ReceiveScaled(int32 Value, int32 Factor) { Sum += Value * Factor; }
		void ReceiveAndTell(int32 Value, TFunction<void(FListener&)> Tell)
		{
			Sum += Value;
			Tell(*this);
		}
		int32 Combine(int32 A, int32 B) const { return A * 100 + B + Sum; }
		int32 GetSum() const { return Sum; }

		// The delegate's type picks the right one.
		void Overloaded(int32 Value) { Sum += Value; }
		void Overloaded(const FString&) {}

		int32 Sum = 0;
	};

	int32 Subtract(int32 A, int32 B)
	{
		return A - B;
	}

	/** An event: others may listen, only the owner fires. */
	class FOwner
	{
	public:
		DECLARE_EVENT_OneParam(FOwner, FValueEvent, int32);

		FValueEvent& OnValue() { return Event; }
		void Fire(int32 Value) { Event.Broadcast(Value); }

	private:
		FValueEvent Event;
	};

	template<typename EventType>
	concept CAnybodyCanFire = requires(EventType& Event)
	{
		Event.Broadcast(1);
	};

	static_assert(!CAnybodyCanFire<FOwner::FValueEvent>);
	static_assert(CAnybodyCanFire<FOnValues>);

	template<typename MethodType>
	concept CBindable = requires(FListener* Listener, MethodType Method)
	{
		FOnValue::CreateRaw(Listener, Method);
	};

	static_assert(CBindable<void (FListener::*)(int32)>);
	static_assert(!CBindable<void (FListener::*)(int64)>, "parameter types match exactly");
	static_assert(!CBindable<void (FListener::*)(const int32&)>, "parameter types match exactly");
}

using namespace DelegateTest;

TEST(Delegate, CallsWhatItIsBoundTo)
{
	const TSharedRef<FListener> Listener = MakeShared<FListener>();
	FOnValue Delegate = FOnValue::CreateRaw(&Listener.Get(), &FListener::Receive);
	Delegate.Execute(1);
	Delegate = FOnValue::CreateSP(Listener, &FListener::ReceiveScaled, 10);
	Delegate.Execute(2);
	Delegate = FOnValue::CreateSP(&Listener.Get(), &FListener::Overloaded);
	Delegate.Execute(100);
	Delegate = FOnValue::CreateLambda([Raw = &Listener.Get()](int32 Value, int32 Extra) { Raw->Sum += Value + Extra; }, 1000);
	Delegate.Execute(2000);
	EXPECT_EQ(Listener->Sum, 3121);

	FCombine Combine = FCombine::CreateSP(Listener, &FListener::Combine);
	EXPECT_EQ(Combine.Execute(1, 2), 102 + 3121);
	Combine = FCombine::CreateStatic(&Subtract);
	EXPECT_EQ(Combine.Execute(5, 3), 2);
}

TEST(Delegate, CountsAsUnboundWhenItsSharedObjectIsGone)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	const FOnValue Method = FOnValue::CreateSP(Listener.ToSharedRef(), &FListener::Receive);
	EXPECT_TRUE(Method.ExecuteIfBound(1));
	EXPECT_TRUE(Listener.IsUnique()) << "a binding does not own its object";
	Listener.Reset();
	EXPECT_FALSE(Method.IsBound());
	EXPECT_FALSE(Method.ExecuteIfBound(1));
	EXPECT_THROW(Method.Execute(1), FHostAssertionFailure);
}

TEST(Delegate, KeepsItsSharedObjectAliveDuringTheCall)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	int32 SumAfterReset = 0;
	const TFunction<void(FListener&)> DropAndLook = [&](FListener& Self) {
		Listener.Reset();
		SumAfterReset = Self.Sum;
	};
	const FOnValue Delegate = FOnValue::CreateSP(Listener.ToSharedRef(), &FListener::ReceiveAndTell, DropAndLook);
	Delegate.Execute(4);
	EXPECT_EQ(SumAfterReset, 4);
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(Delegate, AnUnboundOneIsNotExecuted)
{
	FOnValue Delegate;
	EXPECT_THROW(Delegate.Execute(1), FHostAssertionFailure);
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
	Delegate = FOnValue::CreateLambda([](int32) {});
	EXPECT_TRUE(Delegate.IsBound());
	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(Delegate, ACopyHasItsOwnStateAndPayload)
{
	int32 Last = 0;
	FOnValue Delegate = FOnValue::CreateLambda([Count = 0, &Last](int32) mutable { Last = ++Count; });
	Delegate.Execute(0);
	const FOnValue Copy = Delegate;
	Delegate.Execute(0);
	EXPECT_EQ(Last, 2);
	Copy.Execute(0);
	EXPECT_EQ(Last, 2) << "the copy counted on from one";
}

TEST(MulticastDelegate, CallsTheNewestFirstAndTheSameMethodAsOftenAsItWasAdded)
{
	FOnStep Step;
	std::string Calls;
	Step.AddLambda([&Calls] { Calls += 'a'; });
	Step.AddLambda([&Calls] { Calls += 'b'; });
	Step.Add(FOnStep::FDelegate::CreateLambda([&Calls] { Calls += 'c'; }));
	Step.Broadcast();
	EXPECT_EQ(Calls, "cba");

	FListener Listener;
	FOnValues Values;
	const FDelegateHandle First = Values.AddRaw(&Listener, &FListener::Receive);
	const FDelegateHandle Second = Values.AddRaw(&Listener, &FListener::Receive);
	EXPECT_NE(First, Second);
	Values.Broadcast(5);
	EXPECT_EQ(Listener.Sum, 10);
	EXPECT_TRUE(Values.Remove(First));
	EXPECT_FALSE(Values.Remove(First));
	Values.Broadcast(5);
	EXPECT_EQ(Listener.Sum, 15);
}

TEST(MulticastDelegate, GivesEachBindingAHandleOfItsOwn)
{
	FOnStep Step;
	int32 NumCalls = 0;
	const FOnStep::FDelegate Delegate = FOnStep::FDelegate::CreateLambda([&NumCalls] { ++NumCalls; });
	const FDelegateHandle First = Step.Add(Delegate);
	const FDelegateHandle Second = Step.Add(Delegate);
	EXPECT_NE(First, Second);
	Step.Remove(Second);
	Step.Broadcast();
	EXPECT_EQ(NumCalls, 1);
	EXPECT_EQ(Step.Add(FOnStep::FDelegate()), FDelegateHandle()) << "nothing is bound";
}

TEST(MulticastDelegate, CanBeClearedByABindingThatRuns)
{
	FOnStep Step;
	int32 NumCalls = 0;
	Step.AddLambda([&NumCalls] { ++NumCalls; });
	Step.AddLambda([&Step] { Step.Clear(); });
	Step.Broadcast();
	EXPECT_EQ(NumCalls, 0);
	EXPECT_FALSE(Step.IsBound());
}

TEST(MulticastDelegate, BroadcastsFromInsideABroadcast)
{
	FOnValues Values;
	std::string Calls;
	FDelegateHandle Victim = Values.AddLambda([&Calls](int32 Depth) { Calls += std::to_string(Depth); });
	Values.AddLambda([&](int32 Depth) {
		if (Depth < 2)
		{
			Values.Broadcast(Depth + 1);
			return;
		}
		Values.Remove(Victim); // the outer broadcasts have not come to it yet
		Values.AddLambda([&Calls](int32) { Calls += '+'; });
	});
	Values.Broadcast(0);
	EXPECT_EQ(Calls, "");
	Values.Broadcast(5);
	EXPECT_EQ(Calls, "+");
}

TEST(MulticastDelegate, RemoveAllTakesTheBindingsOfOneObjectButNoLambdas)
{
	const TSharedRef<FListener> A = MakeShared<FListener>();
	FListener B;
	int32 NumLambdaCalls = 0;
	FOnValues Values;
	Values.AddSP(&A.Get(), &FListener::Receive);
	Values.AddRaw(&A.Get(), &FListener::ReceiveScaled, 2);
	Values.AddLambda([&NumLambdaCalls, Raw = &A.Get()](int32) { ++NumLambdaCalls; });
	Values.AddRaw(&B, &FListener::Receive);
	EXPECT_EQ(Values.RemoveAll(&A.Get()), 2);
	EXPECT_EQ(Values.RemoveAll(&A.Get()), 0);
	Values.Broadcast(1);
	EXPECT_EQ(A->Sum, 0);
	EXPECT_EQ(B.Sum, 1);
	EXPECT_EQ(NumLambdaCalls, 1);
}

TEST(MulticastDelegate, DropsBindingsOfDeadObjects)
{
	FOnValues Values;
	const TSharedPtr<int32> Payload = MakeShared<int32>(0);
	{
		const TSharedRef<FListener> Listener = MakeShared<FListener>();
		Values.AddSP(&Listener.Get(), &FListener::ReceiveAndTell, TFunction<void(FListener&)>([Payload](FListener&) { ++*Payload; }));
		Values.Broadcast(1);
	}
	EXPECT_FALSE(Values.IsBound());
	Values.Broadcast(1);
	EXPECT_EQ(*Payload, 1);
	EXPECT_TRUE(Payload.IsUnique());
}

TEST(MulticastDelegate, SharesReferenceParametersAmongAllBindings)
{
	FOnCanClose CanClose;
	CanClose.AddLambda([](bool& bCanClose) { bCanClose = bCanClose && true; });
	CanClose.AddLambda([](bool& bCanClose) { bCanClose = false; });
	bool bCanClose = true;
	CanClose.Broadcast(bCanClose);
	EXPECT_FALSE(bCanClose) << "the second listener forbids it";
}

TEST(MulticastDelegate, StaysUsableWhenABindingFailsACheck)
{
	FOnStep Step;
	int32 NumCalls = 0;
	Step.AddLambda([&NumCalls] { ++NumCalls; });
	const FDelegateHandle Failing = Step.AddLambda([] { check(false); });
	EXPECT_THROW(Step.Broadcast(), FHostAssertionFailure);
	Step.Remove(Failing);
	Step.Broadcast();
	EXPECT_EQ(NumCalls, 1);
}

TEST(Event, IsFiredByItsOwner)
{
	FOwner Owner;
	int32 Received = 0;
	Owner.OnValue().AddLambda([&Received](int32 Value) { Received = Value; });
	Owner.Fire(6);
	EXPECT_EQ(Received, 6);
}

TEST(Attribute, AsksItsGetterEachTime)
{
	const TSharedRef<FListener> Listener = MakeShared<FListener>();
	const TAttribute<int32> Attribute = TAttribute<int32>::CreateSP(&Listener.Get(), &FListener::GetSum);
	Listener->Sum = 4;
	EXPECT_EQ(Attribute.Get(), 4);
	Listener->Sum = 5;
	EXPECT_EQ(Attribute.Get(), 5);
	EXPECT_TRUE(Attribute.IsBound());
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_EQ(TAttribute<int32>(Listener, &FListener::GetSum).Get(), 5);
	EXPECT_EQ(TAttribute<int32>::CreateSP(Listener, &FListener::Combine, 1, 2).Get(), 107);
}

TEST(Attribute, KeepsItsLastValueWhenTheGetterObjectIsGone)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	Listener->Sum = 4;
	const TAttribute<int32> Attribute(Listener.ToSharedRef(), &FListener::GetSum);
	EXPECT_EQ(Attribute.Get(), 4);
	Listener.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(Attribute.Get(), 4);
}

TEST(Attribute, IsMadeFromWhateverConvertsToItsValue)
{
	static_assert(std::is_convertible_v<int32, TAttribute<float>>);
	static_assert(std::is_convertible_v<const TCHAR*, TAttribute<FString>>);
	static_assert(!std::is_convertible_v<FString, TAttribute<int32>>);
	const TAttribute<FString> FromLiteral = TEXT("x");
	EXPECT_EQ(FromLiteral.Get(), FString(TEXT("x")));
	TAttribute<int32> Unset;
	EXPECT_FALSE(Unset.IsSet());
	EXPECT_EQ(Unset.Get(7), 7);
	Unset = TAttribute<int32>::Create([] { return 3; });
	EXPECT_EQ(Unset.Get(7), 3);
}
