// Copyright Velmorant. All Rights Reserved.

#include "EditorFixture.h"
#include "ReflectionSweep.h"

class RegistrySweep : public FEditorTest
{
};

TEST_F(RegistrySweep, FindsEveryTypeOfToolkitAndEngineAsItsRecordPromised)
{
	StartEditor();
	const ReflectionSweep::FCounts Counts = ReflectionSweep::CheckAll();
	EXPECT_GE(Counts.Classes, 80) << "whole modules are not linked in";
	EXPECT_GE(Counts.Structs, 20);
	EXPECT_GE(Counts.Enums, 10);
	EXPECT_GE(Counts.Functions, 80);
}
