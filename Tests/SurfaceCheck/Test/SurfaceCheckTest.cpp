// Copyright Velmorant. All Rights Reserved.

#include "Exemptions.h"
#include "FunctionName.h"
#include "Surface.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace SurfaceCheckTest
{
	using namespace SurfaceCheck;
	using testing::HasSubstr;
	using testing::UnorderedElementsAre;

	FSource ReadFixture(const std::string& Name)
	{
		const std::string Path = std::string(VELMORANT_SURFACE_FIXTURE) + "/" + Name;
		std::ifstream File(Path, std::ios::binary);
		return ReadSource(Path, {std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>()});
	}

	FSurfaceInput MakeInput(const std::set<std::string>& DataWords)
	{
		FSurfaceInput Input;
		for (const char* Name : {"Lamp.h", "Lamp.cpp", "Unincluded.h"})
		{
			Input.LowerSources.push_back(ReadFixture(Name));
		}
		Input.OwnSources.push_back(ReadFixture("Main.cpp"));
		Input.LowerObjects.push_back(VELMORANT_SURFACE_LOWER_OBJECT);
		Input.OwnObjects.push_back(VELMORANT_SURFACE_OWN_OBJECT);
		Input.DataWords = DataWords;
		return Input;
	}

	std::vector<std::string> GetNames(const std::vector<FFinding>& Findings)
	{
		std::vector<std::string> Names;
		for (const FFinding& Finding : Findings)
		{
			Names.push_back(Finding.Name.substr(Finding.Name.rfind('/') + 1));
		}
		return Names;
	}

	TEST(SurfaceCheck, FindsWhatNobodyReachesAndNothingElse)
	{
		EXPECT_THAT(GetNames(FindUnneeded(MakeInput({"Reflected", "Open", "Unrelated"}))),
			UnorderedElementsAre("FLamp::UnneededFlicker(0)", "FLamp::UnneededRepeat(1)", "FLamp::UnneededRepaint(0)", "FLamp::GetPower(1)", "FLamp::UnneededAge(0)",
				"FLamp::UnneededScratch(0)", "FSocket::UnneededUnplug(0)", "Lamp::FWallSocket::UnneededUnplug(0)", "Lamp::UnneededCount(0)", "Lamp::UnneededClick(0)", "TBox::UnneededPut(1)",
				"TBox::operator>(1)", "UnneededAtCompileTime(1)", "UReflected::execUnneededClose(3)", "UReflected::UnneededClose(0)", "Unincluded.h"));
	}

	TEST(SurfaceCheck, CountsAReflectedFunctionOnlyWhenDataNameClassAndFunction)
	{
		for (const std::string Word : {"Reflected", "Open"})
		{
			const std::vector<std::string> Names = GetNames(FindUnneeded(MakeInput({Word})));
			EXPECT_THAT(Names, testing::IsSupersetOf({"UReflected::execOpen(3)", "UReflected::Open(0)"})) << "data name nothing but " << Word;
		}
	}

	TEST(SurfaceCheck, CountsClassesThatAreLookedForByWhatTheyDeriveFrom)
	{
		FSurfaceInput Input = MakeInput({"Open"});
		const auto IsOpenNeeded = [&Input] { return testing::Value(GetNames(FindUnneeded(Input)), testing::Not(testing::Contains("UReflected::Open(0)"))); };
		Input.OwnSources.push_back(ReadSource("Other.cpp", "void List() { GetDerivedClasses(UOther::StaticClass(), Classes); }"));
		EXPECT_FALSE(IsOpenNeeded()) << "another family";
		Input.OwnSources.push_back(ReadSource("List.cpp", "void List() { GetDerivedClasses(UReflectedBase::StaticClass(), Classes); }"));
		EXPECT_TRUE(IsOpenNeeded());
	}

	TEST(SurfaceCheck, SaysWhereTheDeclarationStands)
	{
		for (const FFinding& Finding : FindUnneeded(MakeInput({})))
		{
			if (Finding.Name == "FLamp::UnneededRepaint(0)")
			{
				EXPECT_THAT(Finding.GetText(), HasSubstr("Fixture/Lamp.h(18): nobody reaches FLamp::UnneededRepaint(0)"));
				EXPECT_EQ(Finding.CountLines(), 5) << "one of the declaration, four of the definition";
				return;
			}
		}
		FAIL() << "not found";
	}

	TEST(SurfaceCheck, ReadsNamesAsTheDemanglerWritesThem)
	{
		struct FCase
		{
			const char* Demangled;
			FFunctionName Expected;
		};
		const FCase Cases[] = {
			{"TArray<int, FDefault>::Add(int const&)", {"TArray", "Add", 1}},
			{"UClass* UE::Reflection::ClassOf<UObject>()", {"UE::Reflection", "ClassOf", 0}},
			{"Files::(anonymous namespace)::Open(TMap<int, int> const&, void (*)(int, int))", {"Files::anonymous", "Open", 2}},
			{"FName::operator<(FName const&) const", {"FName", "operator<", 1}},
			{"bool operator< <int>(TBox<int>, TBox<int>)", {"", "operator<", 2}},
			{"TSharedPtr<A>::operator->() const", {"TSharedPtr", "operator->", 0}},
			{"FCall::operator()(int) const", {"FCall", "operator()", 1}},
			{"FText::operator bool() const", {"FText", FFunctionName::ConversionName, 0}},
			{"non-virtual thunk to FWidget::Paint(int)", {"FWidget", "Paint", 1}},
			{"FWidget::~FWidget()", {"FWidget", "~FWidget", 0}},
			{"vtable for FWidget", {"", "", FFunctionName::AnyNumber}},
		};
		for (const FCase& Case : Cases)
		{
			const FFunctionName Name = ParseDemangled(Case.Demangled);
			EXPECT_EQ(Name.GetQualified(), Case.Expected.GetQualified()) << Case.Demangled;
			EXPECT_EQ(Name.Parameters, Case.Expected.Parameters) << Case.Demangled;
		}
	}

	TEST(SurfaceCheck, RefusesWhatIsNoObjectFile)
	{
		FSurfaceInput Input = MakeInput({});
		Input.OwnObjects.push_back(std::string(VELMORANT_SURFACE_FIXTURE) + "/Main.cpp");
		EXPECT_THAT([&Input] { FindUnneeded(Input); }, testing::ThrowsMessage<std::runtime_error>(HasSubstr("Main.cpp: is no ELF object file")));
		Input.OwnObjects.back() = "missing.o";
		EXPECT_THAT([&Input] { FindUnneeded(Input); }, testing::ThrowsMessage<std::runtime_error>("missing.o: cannot be read; build it first"));
	}

	TEST(SurfaceExemptions, HoldOnlyWithAReasonAndWhileTheyFit)
	{
		struct FCase
		{
			const char* Behaviour;
			const char* Text;
			std::vector<std::string> Problems;
		};
		const std::vector<FFinding> Findings = {{"FA::B(0)", {{"A.h", 3, 3}}}, {"C.h", {{"C.h", 1, 1}}}};
		const FCase Cases[] = {
			{"all findings are problems", "# nothing\n", {"A.h(3): nobody reaches FA::B(0)", "C.h: nobody includes this header"}},
			{"an exemption takes one away", "FA::B(0) : later\n", {"C.h: nobody includes this header"}},
			{"as does a header's path", "FA::B(0) : later\nC.h : later\n", {}},
			{"what nobody finds must not be exempt", "FA::B(0) : later\nC.h : later\nFD::E(1) : once\n", {"List: FD::E(1) is needed, or gone; remove its exemption"}},
			{"a number allows as many", "still to remove: 2\n", {}},
			{"but not fewer than there are", "still to remove: 1\n", {"A.h(3): nobody reaches FA::B(0)", "C.h: nobody includes this header"}},
			{"and has to go down with them", "still to remove: 3\n", {"List: only 2 are still to remove; say so, that the number never rises again"}},
		};
		for (const FCase& Case : Cases)
		{
			EXPECT_EQ(FExemptions("List", Case.Text).GetProblems(Findings), Case.Problems) << Case.Behaviour;
		}
	}

	TEST(SurfaceExemptions, RefuseDamagedLists)
	{
		std::string TooMany;
		for (size_t Index = 0; Index <= FExemptions::Most; ++Index)
		{
			TooMany += "F" + std::to_string(Index) + "(0) : reason\n";
		}
		const std::pair<std::string, std::string> Cases[] = {
			{"FA::B(0)\n", "List(1): expected 'name : reason'"},
			{"# one\nFA::B(0) : \n", "List(2): expected 'name : reason'"},
			{"A : a\nA : b\n", "List(2): is exempt already"},
			{"still to remove: many\n", "List(1): 'many' is no number"},
			{TooMany, "List: 21 exemptions; at most 20 are allowed"},
		};
		for (const auto& [Text, Message] : Cases)
		{
			EXPECT_THAT([&Text] { FExemptions("List", Text); }, testing::ThrowsMessage<std::runtime_error>(Message));
		}
	}
}
