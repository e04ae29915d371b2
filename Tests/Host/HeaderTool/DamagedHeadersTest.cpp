// Copyright Velmorant. All Rights Reserved.

#include "HeaderToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

/** Real headers with something missing: the tool must always come to an end, with output or with a message, never with both. */
class DamagedHeaders : public testing::Test
{
protected:
	static std::string ReadFixture(const std::string& Name)
	{
		std::ifstream Stream(std::string(VELMORANT_SOURCE_DIR) + "/Tests/Host/ReflectionFixtures/Public/" + Name + ".h");
		EXPECT_TRUE(Stream.is_open()) << Name;
		return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
	}

	/** @return whether the header was accepted */
	static bool Survives(const std::string& Name, const std::string& Source)
	{
		FHeaderToolRun Run;
		Run.AddHeader("Module", Name + ".h", Source);
		const FHeaderToolRun::FResult Result = Run.Generate("Module");
		EXPECT_EQ(Result.ExitStatus, Result.Errors.empty() ? 0 : 1);
		EXPECT_EQ(Run.HasOutput(Name + ".gen.cpp"), Result.Errors.empty());
		EXPECT_TRUE(Result.Errors.empty() || Result.Errors.find(Name + ".h(") == 0) << "a message names no place: " << Result.Errors;
		return Result.Errors.empty();
	}

	std::mt19937 Random{20240611};
};

TEST_F(DamagedHeaders, AreReportedWhereverTheyEnd)
{
	for (const char* Name : {"FixtureInterfaces", "FixtureEnums", "FixtureUnreflected"})
	{
		SCOPED_TRACE(Name);
		const std::string Whole = ReadFixture(Name);
		ASSERT_TRUE(Survives(Name, Whole));
		int NumRejected = 0;
		for (int Attempt = 0; Attempt < 60; ++Attempt)
		{
			const size_t Length = Random() % Whole.size();
			SCOPED_TRACE(Length);
			NumRejected += Survives(Name, Whole.substr(0, Length)) ? 0 : 1;
		}
		EXPECT_GT(NumRejected, 20) << "hardly any cut was noticed";
	}
}

TEST_F(DamagedHeaders, AreSurvivedWhateverIsMissing)
{
	for (const char* Name : {"FixtureInterfaces", "FixtureEnums", "FixtureUnreflected"})
	{
		SCOPED_TRACE(Name);
		const std::string Whole = ReadFixture(Name);
		for (int Attempt = 0; Attempt < 60; ++Attempt)
		{
			std::string Damaged = Whole;
			for (int Damage = 0; Damage < 3; ++Damage)
			{
				const size_t First = Random() % Damaged.size();
				const std::string Other = Damaged.substr(Random() % Damaged.size(), Random() % 12);
				Damaged.replace(First, Random() % 12, Other);
			}
			SCOPED_TRACE(Damaged);
			Survives(Name, Damaged);
		}
	}
}
