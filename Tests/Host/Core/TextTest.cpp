// Copyright Velmorant. All Rights Reserved.

#include "Internationalization/Text.h"

#include "Internationalization/Internationalization.h"
#include "TestPrinters.h"

#define LOCTEXT_NAMESPACE "TextTest"

TEST(Text, LocalizableTextsKeepNamespaceKeyAndSource)
{
	const FText Text = LOCTEXT("Greeting", "Grüß Gott");
	EXPECT_TRUE(Text.ToString().Equals(TEXT("Grüß Gott")));
	EXPECT_EQ(FTextInspector::GetNamespace(Text).Get(FString()), TEXT("TextTest"));
	EXPECT_EQ(FTextInspector::GetKey(Text).Get(FString()), TEXT("Greeting"));
	EXPECT_TRUE(FTextInspector::GetSourceString(Text)->Equals(TEXT("Grüß Gott")));
	EXPECT_FALSE(Text.IsCultureInvariant());

	const FText SameKey = NSLOCTEXT("TextTest", "Greeting", "Hello");
	EXPECT_EQ(SameKey.ToString(), TEXT("Hello")) << "a clash of keys: each text displays its own source";
	EXPECT_EQ(FTextInspector::GetKey(SameKey).Get(FString()), TEXT("Greeting"));
}

TEST(Text, OtherTextsHaveNoKey)
{
	const FText Texts[] = {FText::FromString(TEXT("a")), FText::Format(LOCTEXT("F", "{0}"), 1), FText::AsCultureInvariant(TEXT("a")), INVTEXT("a"), FText::FromName(TEXT("a")), FText()};
	for (const FText& Text : Texts)
	{
		EXPECT_FALSE(FTextInspector::GetNamespace(Text).IsSet()) << testing::PrintToString(Text);
		EXPECT_FALSE(FTextInspector::GetKey(Text).IsSet()) << testing::PrintToString(Text);
	}
}

TEST(Text, TellsCultureInvariantTextsApart)
{
	EXPECT_TRUE(FText::AsCultureInvariant(TEXT("a")).IsCultureInvariant());
	EXPECT_TRUE(FText::AsCultureInvariant(FString()).IsCultureInvariant());
	EXPECT_TRUE(FText::AsCultureInvariant(LOCTEXT("A", "a")).IsCultureInvariant());
	EXPECT_FALSE(FText::FromString(TEXT("a")).IsCultureInvariant());
	EXPECT_FALSE(FText().IsCultureInvariant());
}

TEST(Text, FormatsOrderedArguments)
{
	struct FCase
	{
		const char* Behaviour;
		FText Actual;
		const TCHAR* Expected;
	};
	const FText Tower = FText::FromString(TEXT("Tower {1}"));
	const FCase Cases[] = {
		{"in any order and repeatedly", FText::Format(INVTEXT("{1}-{0}-{1}"), INVTEXT("a"), INVTEXT("b")), TEXT("b-a-b")},
		{"arguments are not formatted again", FText::Format(INVTEXT("<{0}> {1}"), Tower, INVTEXT("x")), TEXT("<Tower {1}> x")},
		{"unknown placeholders stay", FText::Format(INVTEXT("{0} {1} {Name}"), INVTEXT("a")), TEXT("a {1} {Name}")},
		{"integers have digit groups", FText::Format(INVTEXT("{0} {1}"), 1234567, -999), TEXT("1,234,567 -999")},
		{"floats have up to three digits", FText::Format(INVTEXT("{0} {1}"), 1234.56789, 2.f), TEXT("1,234.568 2")},
		{"a backtick takes the meaning from a brace", FText::Format(INVTEXT("`{0} {0}"), INVTEXT("a")), TEXT("{0} a")},
		{"an open brace", FText::Format(INVTEXT("a {0"), INVTEXT("x")), TEXT("a {0")},
		{"a brace inside braces", FText::Format(INVTEXT("{a{0}}"), INVTEXT("x")), TEXT("{ax}")},
		{"nothing to fill in", FText::Format(INVTEXT("plain"), INVTEXT("x")), TEXT("plain")},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_TRUE(Case.Actual.ToString().Equals(Case.Expected)) << testing::PrintToString(Case.Actual);
	}
}

TEST(Text, FormatsNamedArgumentsIgnoringCaseAndNested)
{
	FFormatNamedArguments Arguments;
	Arguments.Add(TEXT("ClassName"), FText::FromString(TEXT("Door")));
	Arguments.Add(TEXT("Count"), 3);
	const FText Inner = FText::Format(LOCTEXT("Inner", "{Count} x {classname}"), Arguments);
	EXPECT_EQ(Inner.ToString(), TEXT("3 x Door"));
	EXPECT_EQ(FText::Format(LOCTEXT("Outer", "[{0}] {1} `{2}"), Inner, 4).ToString(), TEXT("[3 x Door] 4 {2}"));
}

TEST(Text, ComparesWhatIsDisplayed)
{
	const FText Lower = FText::FromString(TEXT("apple"));
	const FText Upper = LOCTEXT("Apple", "APPLE");
	EXPECT_FALSE(Lower.EqualTo(Upper));
	EXPECT_TRUE(Upper.EqualTo(INVTEXT("APPLE")));
	EXPECT_LT(Upper.CompareTo(FText::FromString(TEXT("banana"))), 0);
	EXPECT_TRUE(FText::GetEmpty().EqualTo(FText()));
}

TEST(Text, CopiesShareTheirContent)
{
	const FText Text = LOCTEXT("Shared", "shared");
	const FText Copy = Text;
	EXPECT_EQ(&Copy.ToString(), &Text.ToString());
}

TEST(Text, NumbersAtTheEndsOfTheirRange)
{
	EXPECT_EQ(FText::AsNumber(MIN_int64).ToString(), TEXT("-9,223,372,036,854,775,808"));
	EXPECT_EQ(FText::AsNumber(MAX_uint64).ToString(), TEXT("18,446,744,073,709,551,615"));
	EXPECT_EQ(FText::AsNumber(100).ToString(), TEXT("100"));
	EXPECT_EQ(FText::AsNumber(-0.5f).ToString(), TEXT("-0.5"));
	EXPECT_EQ(FText::AsNumber(1000000.0).ToString(), TEXT("1,000,000"));
}

TEST(Text, SurvivesBeingWrittenAndRead)
{
	const FText Texts[] = {
		LOCTEXT("Quoted", "He said \"no\"\n\\ and left, (twice)"),
		FText::AsCultureInvariant(TEXT("invariant \"x\"")),
		FText::FromString(TEXT("plain, with \"quotes\"")),
		FText(),
	};
	for (const FText& Text : Texts)
	{
		FString Written = TEXT("");
		FTextStringHelper::WriteToBuffer(Written, Text, true);
		SCOPED_TRACE(TCHAR_TO_UTF8(*Written));
		Written += TEXT(",Next=1");
		FText Read;
		const TCHAR* const End = FTextStringHelper::ReadFromBuffer(*Written, Read, nullptr, nullptr, true);
		ASSERT_NE(End, nullptr);
		EXPECT_TRUE(FString(End).Equals(TEXT(",Next=1")));
		EXPECT_TRUE(Read.EqualTo(Text));
		EXPECT_EQ(Read.IsCultureInvariant(), Text.IsCultureInvariant());
		EXPECT_EQ(FTextInspector::GetNamespace(Read).Get(FString()), FTextInspector::GetNamespace(Text).Get(FString()));
		EXPECT_EQ(FTextInspector::GetKey(Read).Get(FString()), FTextInspector::GetKey(Text).Get(FString()));
	}
	FText Untouched = INVTEXT("old");
	EXPECT_EQ(FTextStringHelper::ReadFromBuffer(TEXT("NSLOCTEXT(\"a\", \"b\""), Untouched, nullptr, nullptr, true), nullptr);
	EXPECT_EQ(Untouched.ToString(), TEXT("old"));
}

#undef LOCTEXT_NAMESPACE
