// Copyright Velmorant. All Rights Reserved.

#include "Math/Transform.h"

#include "Math/UnrealMathUtility.h"
#include "TestPrinters.h"

TEST(Math, RotatorsTurnTheForwardAxisTheEnginesWay)
{
	struct FCase
	{
		const char* Behaviour;
		FRotator Rotator;
		FVector Forward;
		FVector Right;
	};
	const FCase Cases[] = {
		{"yaw turns to the right", FRotator(0, 90, 0), FVector(0, 1, 0), FVector(-1, 0, 0)},
		{"pitch turns up", FRotator(90, 0, 0), FVector(0, 0, 1), FVector(0, 1, 0)},
		{"roll turns the right side down", FRotator(0, 0, 90), FVector(1, 0, 0), FVector(0, 0, -1)},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		const FQuat Quat = Case.Rotator.Quaternion();
		EXPECT_TRUE(Quat.RotateVector(FVector::ForwardVector).Equals(Case.Forward)) << testing::PrintToString(Quat.RotateVector(FVector::ForwardVector));
		EXPECT_TRUE(Quat.RotateVector(FVector::RightVector).Equals(Case.Right)) << testing::PrintToString(Quat.RotateVector(FVector::RightVector));
	}
}

TEST(Math, RotatorsSurviveTheWayThroughAQuaternion)
{
	for (double Pitch = -80; Pitch <= 80; Pitch += 20)
	{
		for (double Yaw = -170; Yaw <= 180; Yaw += 35)
		{
			for (double Roll = -170; Roll <= 180; Roll += 35)
			{
				const FRotator Rotator(Pitch, Yaw, Roll);
				const FRotator Turned = Rotator.Quaternion().Rotator();
				const auto IsSame = [&](const FVector& Axis) { return Turned.Quaternion().RotateVector(Axis).Equals(Rotator.Quaternion().RotateVector(Axis)); };
				ASSERT_TRUE(IsSame(FVector::ForwardVector) && IsSame(FVector::RightVector)) << testing::PrintToString(Rotator) << " " << testing::PrintToString(Turned);
			}
		}
	}
}

TEST(Math, TextFormsCanBeReadBack)
{
	FVector Vector(0.0);
	EXPECT_EQ(FVector(0, -1.5, 500).ToString(), TEXT("X=0.000 Y=-1.500 Z=500.000"));
	EXPECT_TRUE(Vector.InitFromString(TEXT("(X=1,Y=2,Z=-3.5)")));
	EXPECT_EQ(Vector, FVector(1, 2, -3.5));
	EXPECT_FALSE(Vector.InitFromString(TEXT("(X=1,Y=2)")));
}

TEST(Math, RoundsHalvesUp)
{
	EXPECT_EQ(FMath::RoundToInt(0.5f), 1);
	EXPECT_EQ(FMath::RoundToInt(-0.5f), 0);
	EXPECT_EQ(FMath::RoundToInt(-1.6f), -2);
	EXPECT_EQ(FMath::Clamp(5, 0, 3), 3);
}
