// Copyright Velmorant. All Rights Reserved.

#include "FixtureEvents.h"
#include "FixtureFunctions.h"
#include "FixtureUnreflected.h"
#include "ObjectSystemTest.h"
#include "ReflectionSweep.h"

class RegistrySweep : public FObjectSystemTest
{
};

TEST_F(RegistrySweep, FindsEveryTypeAsItsRecordPromised)
{
	const ReflectionSweep::FCounts Counts = ReflectionSweep::CheckAll();
	EXPECT_GE(Counts.Classes, 20) << "the fixtures are not linked in";
	EXPECT_GE(Counts.Structs, 2);
	EXPECT_GE(Counts.Enums, 5);
	EXPECT_GE(Counts.Functions, 20);
}

TEST_F(RegistrySweep, CanCallEveryFunctionOfTheFixtures)
{
	EXPECT_EQ(ReflectionSweep::CallAll(NewObject<UFixtureDerivedFunctions>()), 15);
	EXPECT_EQ(ReflectionSweep::CallAll(NewObject<UFixtureDerivedEvents>()), 6);
	EXPECT_EQ(ReflectionSweep::CallAll(NewObject<UFixtureUnreflected>()), 1);
}
