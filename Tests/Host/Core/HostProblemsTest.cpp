// Copyright Velmorant. All Rights Reserved.

#include "HostProblems.h"

#include "HostState.h"

#include <gtest/gtest.h>

TEST(HostProblems, AreToldOnceEachWithTheLetterCaseThatTheyHave)
{
	HostProblems::Clear();
	for (int32 Round = 0; Round < 2; ++Round)
	{
		HostProblems::Report(TEXT("/Content/A.json"), 1, TEXT("no asset a"), FString());
		HostProblems::Report(TEXT("/Content/A.json"), 2, TEXT("no asset a"), FString());
		HostProblems::Report(TEXT("/Content/A.json"), 1, TEXT("no asset A"), FString());
		HostProblems::Report(TEXT("/Content/a.json"), 1, TEXT("no asset a"), FString());
	}
	EXPECT_EQ(HostProblems::GetAll().Num(), 4);
	HostProblems::Clear();
	EXPECT_EQ(HostProblems::GetAll().Num(), 0);
	HostProblems::Report(TEXT("/Content/A.json"), 1, TEXT("no asset a"), FString());
	EXPECT_EQ(HostProblems::GetAll().Num(), 1) << "what was cleared may come again";
	HostState::DestroyAll();
}
