// Copyright Velmorant. All Rights Reserved.

#include "Containers/Ticker.h"
#include "HostClock.h"
#include "HostDelayedRegistration.h"
#include "HostState.h"

#include <gtest/gtest.h>
#include <string>

namespace HostStateTest
{
	std::string Events;

	struct FInner
	{
		FInner() { Events += "+inner "; }
		~FInner() { Events += "-inner "; }
		int32 Value = 0;
	};

	THostState<FInner> Inner;

	struct FOuter
	{
		FOuter() { Inner->Value = 1; }
		~FOuter() { Events += Inner.IsSet() ? "-outer " : "-outer(too late) "; }
	};

	THostState<FOuter> Outer;

	struct FUsesInnerAtTheEnd
	{
		~FUsesInnerAtTheEnd() { Inner->Value = 5; }
	};

	THostState<FUsesInnerAtTheEnd> Early;

	FHostStateReset FirstReset([] { Events += Inner.IsSet() ? "reset1 " : "reset1(too late) "; });
	FHostStateReset SecondReset([] { Events += "reset2 "; });

	int32 NumRuns = 0;
	int32 PhaseOrder = 0;
	FDelayedAutoRegisterHelper LoadTimeHelper(EDelayedRegisterRunPhase::EndOfEngineInit, [] { ++NumRuns; });
	FDelayedAutoRegisterHelper EarlyHelper(EDelayedRegisterRunPhase::ObjectSystemReady, [] { PhaseOrder = NumRuns; });

}

/** Starts and ends without any state of an editor. */
class HostStateFixture : public testing::Test
{
protected:
	HostStateFixture()
	{
		HostState::DestroyAll();
		HostStateTest::Events.clear();
		HostStateTest::NumRuns = 0;
		HostStateTest::PhaseOrder = -1;
	}

	virtual ~HostStateFixture() override { HostState::DestroyAll(); }
};

using EditorState = HostStateFixture;
using DelayedRegistration = HostStateFixture;
using Ticker = HostStateFixture;
using namespace HostStateTest;

TEST_F(EditorState, IsDestroyedInReverseAfterTheResets)
{
	Outer.Get();
	HostState::DestroyAll();
	EXPECT_EQ(Events, "+inner reset2 reset1 -outer -inner ");
	EXPECT_FALSE(Outer.IsSet());
	EXPECT_FALSE(Inner.IsSet());
}

TEST_F(EditorState, IsFreshForTheNextEditor)
{
	Inner->Value = 3;
	HostState::DestroyAll();
	EXPECT_EQ(Inner->Value, 0);
}

TEST_F(EditorState, ThatIsUsedByALaterDestructorIsMadeAnewAndDestroyedToo)
{
	Early.Get();
	Inner.Get();
	HostState::DestroyAll();
	EXPECT_EQ(Events, "+inner reset2 reset1 -inner +inner -inner ");
	EXPECT_FALSE(Inner.IsSet());
}

TEST_F(DelayedRegistration, RunsOncePerEditorWhenItsPhaseComes)
{
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::DeviceProfileManagerReady);
	EXPECT_EQ(NumRuns, 0);
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	EXPECT_EQ(NumRuns, 1);
	EXPECT_EQ(PhaseOrder, 0) << "the earlier phase ran first";
	HostState::DestroyAll();
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	EXPECT_EQ(NumRuns, 2);
}

TEST_F(DelayedRegistration, RunsAtOnceWhenThePhaseHasPassed)
{
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::IniSystemReady);
	std::string Runs;
	const FDelayedAutoRegisterHelper Passed(EDelayedRegisterRunPhase::FileSystemReady, [&Runs] { Runs += "passed "; });
	const FDelayedAutoRegisterHelper ToCome(EDelayedRegisterRunPhase::EndOfEngineInit, [&Runs] { Runs += "to come "; });
	EXPECT_EQ(Runs, "passed ");
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	EXPECT_EQ(Runs, "passed to come ");
	HostState::DestroyAll();
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	EXPECT_EQ(Runs, "passed to come ") << "it belonged to the editor before";
}

TEST_F(Ticker, FiresWhenItsDelayHasPassedUntilItReturnsFalse)
{
	std::string Fired;
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&Fired](float DeltaTime) {
		Fired += std::to_string(static_cast<int32>(DeltaTime * 10.f)) + " ";
		return Fired.size() < 6;
	}));
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&Fired](float) {
		Fired += "delayed ";
		return false;
	}),
		0.8f);
	HostClock::Advance(0.5);
	EXPECT_EQ(Fired, "5 ");
	HostClock::Advance(0.5);
	EXPECT_EQ(Fired, "5 5 delayed ");
	HostClock::Advance(0.0);
	HostClock::Advance(5.0);
	EXPECT_EQ(Fired, "5 5 delayed 0 ");
	EXPECT_DOUBLE_EQ(HostClock::Now(), 6.0);
}

TEST_F(Ticker, WhatIsRemovedDuringATickIsNotCalledAndWhatIsAddedWaits)
{
	FTSTicker& Core = FTSTicker::GetCoreTicker();
	std::string Fired;
	FTSTicker::FDelegateHandle Victim;
	Core.AddTicker(FTickerDelegate::CreateLambda([&](float) {
		FTSTicker::RemoveTicker(Victim);
		Core.AddTicker(FTickerDelegate::CreateLambda([&Fired](float) {
			Fired += "added ";
			return false;
		}));
		return false;
	}));
	Victim = Core.AddTicker(FTickerDelegate::CreateLambda([&Fired](float) {
		Fired += "victim ";
		return true;
	}));
	HostClock::Advance(1.0);
	EXPECT_EQ(Fired, "");
	HostClock::Advance(1.0);
	EXPECT_EQ(Fired, "added ");
	FTSTicker::RemoveTicker(Victim);
	EXPECT_FALSE(Victim.IsValid());
}

TEST_F(Ticker, BelongsToOneEditor)
{
	int32 NumTicks = 0;
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([&NumTicks](float) {
		++NumTicks;
		return true;
	}));
	HostClock::Advance(1.0);
	HostState::DestroyAll();
	HostClock::Advance(1.0);
	EXPECT_EQ(NumTicks, 1);
	EXPECT_DOUBLE_EQ(HostClock::Now(), 1.0) << "the clock of the new editor";
}
