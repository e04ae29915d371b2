// Copyright Velmorant. All Rights Reserved.

#include "FileBytes.h"
#include "HeaderToolRun.h"
#include "SpecifierTable.h"

#include <gtest/gtest.h>

namespace SpecifierTableTest
{
	using namespace HeaderTool;

	/** Each macro with a declaration that everything honoured fits to: `@` is where the specifier goes, in line 3. */
	const std::map<EMacro, std::pair<const char*, std::string>> Places = {
		{InClass, {"UCLASS", "UCLASS(@)\nclass UX : public UObject { GENERATED_BODY() };"}},
		{InInterface, {"UINTERFACE", "UINTERFACE(@)\nclass UX : public UInterface { GENERATED_BODY() };\nclass IX { GENERATED_BODY() };"}},
		{InStruct, {"USTRUCT", "USTRUCT(@)\nstruct FX { GENERATED_BODY() };"}},
		{InEnum, {"UENUM", "UENUM(@)\nenum class EX : uint8 { A };"}},
		{InEnumerator, {"UMETA", "UENUM() enum class EX : uint8 { A UMETA(@) };"}},
		{InFunction, {"UFUNCTION", "UCLASS() class UX : public UObject { GENERATED_BODY() public: UFUNCTION(@)\nint32 A(UObject* Value); };"}},
		{InProperty, {"UPROPERTY", "DECLARE_DYNAMIC_MULTICAST_DELEGATE(FMany); UCLASS() class UX : public UObject { GENERATED_BODY() public: UPROPERTY(@)\nFMany A; };"}},
		{InParameter, {"UPARAM", "UCLASS() class UX : public UObject { GENERATED_BODY() public: UFUNCTION() void A(UPARAM(@)\nint32& B); };"}},
	};

	/** The row as a person writes it, in one place where it may stand. */
	struct FUse
	{
		const FSpecifierRow& Row;
		EMacro Macro;
		bool bKey;

		std::string Write() const
		{
			const std::string Text = std::string(Row.Name) + (Row.Value == EValue::Needed ? " = \"Value\"" : "");
			const std::string Words = bKey ? "meta = (" + Text + ")" : Text;
			std::string Source = FileWith(Places.at(Macro).second);
			return Source.replace(Source.find('@'), 1, Words);
		}
	};

	template<typename TVisitor>
	void ForEachUse(const TVisitor& Visit)
	{
		for (const FSpecifierRow& Row : GetSpecifierTable())
		{
			for (const auto& [Macro, Place] : Places)
			{
				for (const bool bKey : {false, true})
				{
					if ((Row.Macros & Macro) && Row.Role != (bKey ? ERole::Specifier : ERole::Key))
					{
						SCOPED_TRACE(std::string(Row.Name) + (bKey ? " in meta of " : " in ") + Place.first);
						Visit(FUse{Row, Macro, bKey});
					}
				}
			}
		}
	}

	/** All sources of the host by file name. */
	std::map<std::string, std::string> ReadHost()
	{
		std::map<std::string, std::string> Sources;
		for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(VELMORANT_SOURCE_DIR "/Host"))
		{
			const std::string Name = Entry.path().filename().string();
			if (Entry.is_regular_file() && Name != "SpecifierTable.cpp")
			{
				Sources[Name] += ReadBytes(Entry.path());
			}
		}
		return Sources;
	}

	bool Mentions(const std::string& Source, const FSpecifierRow& Row)
	{
		const bool bFlag = std::any_of(Row.Flags.begin(), Row.Flags.end(), [&Source](const char* Flag) { return Source.find(Flag) != std::string::npos; });
		return bFlag || (Row.Key && Source.find("\"" + std::string(Row.Key) + "\"") != std::string::npos);
	}
}

using namespace SpecifierTableTest;

TEST(SpecifierTable, HonoursOrRefusesEachWordWhereverItMayStand)
{
	ForEachUse([](const FUse& Use) {
		EXPECT_EQ(FindSpecifier(Use.Row.Name, Use.Macro, Use.bKey), &Use.Row) << "another row comes first";
		FHeaderToolRun Run;
		Run.AddHeader("Module", "X.h", Use.Write());
		const FHeaderToolRun::FResult Result = Run.Generate("Module");
		if (!Use.Row.Consumer)
		{
			const size_t Line = Use.Write().find('\n', Use.Write().find('\n') + 1) + 1;
			const size_t Column = Use.Write().find(Use.Row.Name, Line) - Line + 1;
			EXPECT_EQ(Result.Errors, "X.h(3," + std::to_string(Column) + "): error: '" + Use.Row.Name + "' in " + Places.at(Use.Macro).first + "() is known to the engine, not supported here; remove it.\n");
			EXPECT_EQ(Result.ExitStatus, 1);
			return;
		}
		ASSERT_EQ(Result.ExitStatus, 0) << Result.Errors;
		const std::string Generated = Run.ReadOutput("X.gen.cpp");
		for (const char* Flag : Use.Row.Flags)
		{
			const bool bSet = Generated.find(Flag + std::string(" |")) != std::string::npos || Generated.find(Flag + std::string(",")) != std::string::npos;
			EXPECT_TRUE(bSet) << Flag << " is not set";
		}
		if (Use.Row.Key)
		{
			EXPECT_NE(Generated.find("{\"" + std::string(Use.Row.Key) + "\", "), std::string::npos) << Use.Row.Key << " is not kept";
		}
		EXPECT_TRUE(Use.Row.Key || (!Use.Row.Flags.empty() && Use.Row.Consumer != ByReflection)) << "nothing comes of it";
	});
}

TEST(SpecifierTable, NamesAConsumerThatReadsWhatTheWordSets)
{
	const std::map<std::string, std::string> Host = ReadHost();
	for (const FSpecifierRow& Row : GetSpecifierTable())
	{
		if (Row.Consumer && Row.Consumer != ByReflection)
		{
			const auto Consumer = Host.find(Row.Consumer);
			ASSERT_NE(Consumer, Host.end()) << "there is no " << Row.Consumer;
			EXPECT_TRUE(Mentions(Consumer->second, Row)) << Row.Consumer << " acts on nothing that " << Row.Name << " sets";
		}
	}
}
