// Copyright Velmorant. All Rights Reserved.

#include "SourceDialect.h"

#include "SourceText.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

TEST(SourceDialect, SeesEachBreachAndNothingElse)
{
	struct FCase
	{
		const char* Source;
		std::vector<const char*> Breaches; // the beginning of each
	};
	const FCase Cases[] = {
		{"namespace Gate\n{\n\tint Count() { return 1; }\n}", {}},
		{"namespace\n{\n}\n", {"2: a namespace without"}},
		{"namespace Gate\n{\n\tnamespace\n\t{\n\t}\n}", {"4: a namespace without"}},

		{"static int Count()\n{\n}", {"1: a static function"}},
		{"namespace Gate\n{\n\tstatic TArray<int> List(int A = 1) noexcept { }\n}", {"3: a static function"}},
		{"static auto Count() -> int { return 1; }", {"1: a static function"}},
		{"static int Count = Make(1);\nstatic FReset GReset([] { Clear(); });\nstatic int Table[] = {Make(1)};", {}},
		{"class FGate\n{\n\tstatic FGate& Get() { return G; }\n};\nvoid F()\n{\n\tstatic FGate Gate(1);\n}", {}},

		{"A = B ? C : D;\nE = F ? G : H;\nCall(B ? C : D, E ? F : G);", {}},
		{"A = B ? C : D ? E : F;", {"1: a chained"}},
		{"A = B ? C ? D : E : F;", {"1: a chained"}},
		{"A = B ? (C ? D : E) : F;", {"1: a chained"}},
		{"A = B ? C : (D\n\t? E : F);", {"2: a chained"}},
		{"A = B ? FOak{1} : C ? D : E;", {"1: a chained"}},
		{"A = B ? Call(C ? D : E) : F;\nA = B ? [](int C) { return C ? D : E; } : nullptr;", {}},
		{"for (auto A : B ? C : D)\n{\n\tcase 1: E = F ? G : H;\n}", {}},
		{"Text = \"A ? B : C ? D : E\"; // A ? B : C ? D : E", {}},

		{"TEST(Gate, Opens)\nTEST_F(UISubsystem, Starts)\nTEST_F(Attributes, Bind)\nTEST(Fence, Stands)", {}},
		{"TEST(FGate, Opens)\nTEST_F(UGate, Opens)", {"1: the suite FGate", "2: the suite UGate"}},
		{"TYPED_TEST(GateTest, Opens)", {"1: the suite GateTest"}},

		{"EXPECT_TRUE(Gate.IsOpen());\nEXPECT_FALSE(Gate.bOpen);\nEXPECT_TRUE(Find([](int A) { return A && B; }));", {}},
		{"EXPECT_TRUE(bOpen);\nASSERT_FALSE(!bOpen);", {"1: a check", "2: a check"}},
		{"EXPECT_TRUE(Gate.IsOpen() && Door.IsOpen());\nEXPECT_FALSE(A == 1 || B);", {"1: a check", "2: a check"}},
		{"EXPECT_TRUE(bOpen) << \"the gate\";\nEXPECT_TRUE(A || B)\n\t<< \"one of them\";", {}},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Source);
		std::vector<testing::Matcher<std::string>> Expected;
		for (const char* Breach : Case.Breaches)
		{
			Expected.push_back(testing::StartsWith(Breach));
		}
		EXPECT_THAT(SourceDialect::FindBreaches("Gate.cpp", Case.Source), ElementsAreArray(Expected));
	}
	EXPECT_THAT(SourceDialect::FindBreaches("Gate.h", "static int Count()\n{\n}"), IsEmpty()) << "headers have no helpers of one file";
}

TEST(SourceDialect, IsSpokenEverywhere)
{
	std::vector<std::string> Visited;
	for (const char* Folder : {"Source", "Companions", "Host", "Tests", "Benchmarks"})
	{
		for (const std::filesystem::path& File : SourceText::FindSources(SourceText::Root / Folder))
		{
			const std::string Path = File.lexically_relative(SourceText::Root).generic_string();
			Visited.push_back(Path);
			for (const std::string& Breach : SourceDialect::FindBreaches(Path, SourceText::Read(File)))
			{
				ADD_FAILURE() << Path << ":" << Breach;
			}
		}
	}
	EXPECT_THAT(Visited, Contains("Tests/Sources/SourceDialectTest.cpp"));
}
