// Copyright Velmorant. All Rights Reserved.

#include "HeaderToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
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

/** Headers that no person writes, out of parts that repeat. */
class OversizedHeaders : public testing::Test
{
protected:
	/** @param Behind follows the number of each repetition, where it is given */
	static std::string Repeat(const std::string& Part, int Number, const std::string& Behind = {})
	{
		std::string Text;
		for (int Index = 0; Index < Number; ++Index)
		{
			Text += Behind.empty() ? Part : Part + std::to_string(Index) + Behind;
		}
		return Text;
	}

	static std::string MakeStruct(const std::string& Members)
	{
		return "#pragma once\n#include \"Big.generated.h\"\nUSTRUCT()\nstruct FBig\n{\n\tGENERATED_BODY()\n" + Members + "};\n";
	}

	static FHeaderToolRun::FResult Run(const std::string& Source)
	{
		FHeaderToolRun Tool;
		Tool.AddHeader("Module", "Big.h", Source);
		return Tool.Generate("Module");
	}

	/** The least processor time of three runs. */
	static double Measure(const std::string& Source)
	{
		double Least = 1e9;
		for (int Attempt = 0; Attempt < 3; ++Attempt)
		{
			const std::clock_t Start = std::clock();
			EXPECT_EQ(Run(Source).Errors, "");
			Least = std::min(Least, static_cast<double>(std::clock() - Start));
		}
		return Least;
	}
};

TEST_F(OversizedHeaders, NestedTooDeepAreRefusedWithTheirLine)
{
	const auto MakeNested = [](int Depth) { return MakeStruct("\tUPROPERTY()\n\t" + Repeat("TArray<", Depth) + "int32" + Repeat(">", Depth) + " Value;\n"); };
	EXPECT_EQ(Run(MakeNested(60)).Errors.find("nested more than"), std::string::npos);
	for (const int Depth : {70, 100'000})
	{
		EXPECT_NE(Run(MakeNested(Depth)).Errors.find("Big.h(8,"), std::string::npos);
		EXPECT_NE(Run(MakeNested(Depth)).Errors.find("template arguments are nested more than 64 deep"), std::string::npos);
	}
	const int Many = 100'000;
	EXPECT_EQ(Run(MakeStruct("\tint32 Value = " + Repeat("(", Many) + "1" + Repeat(")", Many) + ";\n")).Errors, "") << "brackets need no calls";
	EXPECT_EQ(Run(MakeStruct(Repeat("struct A {", Many) + Repeat("};", Many))).Errors, "");
}

TEST_F(OversizedHeaders, TakeTwiceAsLongWhenTheyAreTwiceAsLarge)
{
	const auto MakeProperties = [](int Number) { return MakeStruct(Repeat("\tUPROPERTY()\n\tint32 Value", Number, ";\n")); };
	const auto MakeConditions = [](int Number) { return Repeat("#if WITH_EDITOR\n", Number) + MakeStruct(Repeat("\tUPROPERTY()\n\tint32 Value", Number, ";\n")) + Repeat("#endif\n", Number); };
	const auto MakeFunctions = [](int Number) {
		const std::string Members = Repeat("\tUPROPERTY()\n\tint32 Value", Number, ";\n") + Repeat("\tUFUNCTION()\n\tvoid Function", Number, "(int32 First, int32 Second);\n");
		return "#pragma once\n#include \"Big.generated.h\"\nUCLASS()\nclass UBig : public UObject\n{\n\tGENERATED_BODY()\n" + Members + "};\n";
	};
	constexpr double Quadratic = 4.0;
	EXPECT_LT(Measure(MakeProperties(8000)), Measure(MakeProperties(4000)) * (Quadratic - 1.0));
	EXPECT_LT(Measure(MakeFunctions(6000)), Measure(MakeFunctions(3000)) * (Quadratic - 1.0));
	EXPECT_LT(Measure(MakeConditions(4000)), Measure(MakeConditions(2000)) * (Quadratic - 1.0));
}
