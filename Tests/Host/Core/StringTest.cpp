// Copyright Velmorant. All Rights Reserved.

#include "Containers/UnrealString.h"

#include "Containers/Map.h"
#include "HostAssertions.h"
#include "HostLocale.h"
#include "TestPrinters.h"

#include <cstring>
#include <cwctype>

namespace StringTest
{
	/** Equality of FString ignores case; most of what is tested here does not. */
	void ExpectExactly(const FString& Actual, const TCHAR* Expected)
	{
		EXPECT_TRUE(Actual.Equals(Expected)) << "is " << testing::PrintToString(Actual) << ", should be " << testing::PrintToString(FString(Expected));
	}
}

using namespace StringTest;

TEST(String, LowersEachCharacterByItself)
{
	for (const int32 Umlaut : {-1, 0, 63, 64, 100, 149})
	{
		FString Text;
		for (int32 Index = 0; Index < 150; ++Index)
		{
			Text.AppendChar(Index == Umlaut ? TEXT('Ä') : static_cast<TCHAR>('!' + Index % 94)); // all that can be seen of ASCII
		}
		const FString Lower = Text.ToLower();
		ASSERT_EQ(Lower.Len(), Text.Len());
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			EXPECT_EQ(Lower[Index], FChar::ToLower(Text[Index])) << Index << " beside an umlaut at " << Umlaut;
		}
	}
}

TEST(String, NeverGivesANullPointer)
{
	EXPECT_EQ((*FString())[0], 0);
	EXPECT_EQ((*FString(static_cast<const TCHAR*>(nullptr)))[0], 0);
	FString Emptied(TEXT("abc"));
	Emptied.Empty();
	EXPECT_EQ((*Emptied)[0], 0);
}

TEST(String, RefusesAnIndexAtItsTerminator)
{
	const FString Text(TEXT("ab"));
	EXPECT_EQ(Text[1], 'b');
	EXPECT_THROW(Text[2], FHostAssertionFailure);
	EXPECT_THROW(Text[-1], FHostAssertionFailure);
}

TEST(String, AppendsAPartOfItself)
{
	FString Text(TEXT("abc"));
	for (int32 Round = 0; Round < 5; ++Round)
	{
		Text.Append(*Text, Text.Len()); // grows, so that the old characters move
	}
	EXPECT_EQ(Text.Len(), 96);
	EXPECT_TRUE(Text.EndsWith(TEXT("cabc"), ESearchCase::CaseSensitive));
	Text = *Text + 93;
	ExpectExactly(Text, TEXT("abc"));
}

TEST(String, FindsFromBothEnds)
{
	struct FCase
	{
		const char* Behaviour;
		FString Text;
		FString Sub;
		ESearchCase::Type Case;
		ESearchDir::Type Dir;
		int32 Start;
		int32 Expected;
	};
	using namespace ESearchCase;
	using namespace ESearchDir;
	const FString Long = FString::ChrN(100, 'x') + TEXT("Needle") + FString::ChrN(100, 'y') + TEXT("NEEDLE");
	const FCase Cases[] = {
		{"case does not count", Long, TEXT("nEEDLE"), IgnoreCase, FromStart, INDEX_NONE, 100},
		{"case counts", Long, TEXT("NEEDLE"), CaseSensitive, FromStart, INDEX_NONE, 206},
		{"last one", Long, TEXT("needle"), IgnoreCase, FromEnd, INDEX_NONE, 206},
		{"start behind the first", Long, TEXT("needle"), IgnoreCase, FromStart, 101, 206},
		{"from the end, a match has ended at the start position", Long, TEXT("needle"), IgnoreCase, FromEnd, 211, 100},
		{"a half match before the real one", TEXT("aaab"), TEXT("aab"), IgnoreCase, FromStart, INDEX_NONE, 1},
		{"first letter beyond ASCII", TEXT("xxÖl"), TEXT("ÖL"), IgnoreCase, FromStart, INDEX_NONE, 2},
		{"longer than the text", TEXT("ab"), TEXT("abc"), IgnoreCase, FromStart, INDEX_NONE, INDEX_NONE},
		{"at the very end of a block of sixteen", TEXT("0123456789abcdeF"), TEXT("f"), IgnoreCase, FromStart, INDEX_NONE, 15},
		{"empty text is found at once", TEXT("ab"), TEXT(""), IgnoreCase, FromStart, INDEX_NONE, 0},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(Case.Text.Find(Case.Sub, Case.Case, Case.Dir, Case.Start), Case.Expected);
	}
}

TEST(String, SearchAgreesWithComparingAtEveryPlace)
{
	// All texts and needles over a small alphabet in which letters differ in case or lie beyond ASCII.
	const TCHAR Letters[] = {'a', 'A', u'ä', u'Ä'};
	const auto Make = [&Letters](int32 Number, int32 Len) {
		FString Result;
		for (int32 Index = 0; Index < Len; ++Index, Number /= 4)
		{
			Result.AppendChar(Letters[Number % 4]);
		}
		return Result;
	};
	for (int32 TextNumber = 0; TextNumber < 256; ++TextNumber)
	{
		for (int32 SubNumber = 0; SubNumber < 16; ++SubNumber)
		{
			const FString Text = Make(TextNumber, 4);
			const FString Sub = Make(SubNumber, 2);
			int32 Expected = INDEX_NONE;
			for (int32 Index = 2; Index >= 0; --Index)
			{
				Expected = Text.Mid(Index, 2).ToLower().Equals(Sub.ToLower()) ? Index : Expected;
			}
			ASSERT_EQ(Text.Find(Sub), Expected) << testing::PrintToString(Text) << " " << testing::PrintToString(Sub);
		}
	}
}

TEST(String, ReplacesFromLeftToRightWithoutOverlap)
{
	struct FCase
	{
		const char* Behaviour;
		FString Text;
		const TCHAR* From;
		const TCHAR* To;
		ESearchCase::Type Case;
		const TCHAR* Expected;
	};
	const FCase Cases[] = {
		{"no overlap", TEXT("aaaaa"), TEXT("aa"), TEXT("b"), ESearchCase::IgnoreCase, TEXT("bba")},
		{"the replacement is not searched", TEXT("ab"), TEXT("a"), TEXT("aa"), ESearchCase::IgnoreCase, TEXT("aab")},
		{"case does not count", TEXT("Tower:A"), TEXT("TOWER"), TEXT("T"), ESearchCase::IgnoreCase, TEXT("T:A")},
		{"case counts", TEXT("Tower:A"), TEXT("TOWER"), TEXT("T"), ESearchCase::CaseSensitive, TEXT("Tower:A")},
		{"removes", TEXT("a-b-"), TEXT("-"), TEXT(""), ESearchCase::IgnoreCase, TEXT("ab")},
		{"an empty text is never found", TEXT("ab"), TEXT(""), TEXT("x"), ESearchCase::IgnoreCase, TEXT("ab")},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		ExpectExactly(Case.Text.Replace(Case.From, Case.To, Case.Case), Case.Expected);
	}
}

TEST(String, PartsAreClamped)
{
	const FString Text(TEXT("abcdef"));
	ExpectExactly(Text.Left(2), TEXT("ab"));
	ExpectExactly(Text.Left(9), TEXT("abcdef"));
	ExpectExactly(Text.Left(-1), TEXT(""));
	ExpectExactly(Text.LeftChop(2), TEXT("abcd"));
	ExpectExactly(Text.Right(2), TEXT("ef"));
	ExpectExactly(Text.RightChop(2), TEXT("cdef"));
	ExpectExactly(Text.RightChop(9), TEXT(""));
	ExpectExactly(Text.Mid(2, 2), TEXT("cd"));
	ExpectExactly(Text.Mid(4), TEXT("ef"));
	FString Inline = Text;
	Inline.RightChopInline(1);
	Inline.LeftInline(3);
	ExpectExactly(Inline, TEXT("bcd"));
	Inline.RemoveAt(1);
	ExpectExactly(Inline, TEXT("bd"));
}

TEST(String, ParsesListsAndLines)
{
	TArray<FString> Parts;
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(",")), 2);
	EXPECT_EQ(Parts, (TArray<FString>{TEXT("a"), TEXT("b")}));
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(","), false), 5);
	EXPECT_EQ(Parts, (TArray<FString>{TEXT(""), TEXT("a"), TEXT(""), TEXT("b"), TEXT("")}));
	EXPECT_EQ(FString().ParseIntoArray(Parts, TEXT(","), false), 0);
	EXPECT_EQ(FString(TEXT("a\r\n\nb\rc\n")).ParseIntoArrayLines(Parts, false), 4);
	EXPECT_EQ(Parts, (TArray<FString>{TEXT("a"), TEXT(""), TEXT("b"), TEXT("c")}));
}

TEST(String, EscapesSurviveARoundTrip)
{
	const FString Text(TEXT("a \"b\" \\n\n\t'c'"));
	const FString Escaped = Text.ReplaceCharWithEscapedChar();
	ExpectExactly(Escaped, TEXT("a \\\"b\\\" \\\\n\\n\\t\\'c\\'"));
	ExpectExactly(Escaped.ReplaceEscapedCharWithChar(), *Text);
}

TEST(String, TrimsAllKindsOfBlanks)
{
	ExpectExactly(FString(TEXT(" \t\r\n a b \u3000\u00a0")).TrimStartAndEnd(), TEXT("a b"));
	ExpectExactly(FString(TEXT("   ")).TrimStartAndEnd(), TEXT(""));
}

TEST(String, ConvertsBetweenUtf8AndUtf16)
{
	struct FCase
	{
		const char* Behaviour;
		const char* Utf8;
		const TCHAR* Utf16;
		bool bRoundTrip;
	};
	const FCase Cases[] = {
		{"ASCII", "Tower", TEXT("Tower"), true},
		{"two and three bytes", "T\xC3\xBCr \xE2\x82\xAC", TEXT("Tür €"), true},
		{"a surrogate pair", "\xF0\x9F\x8F\xA0!", TEXT("🏠!"), true},
		{"a byte that cannot begin anything", "a\xFFz", TEXT("a\uFFFDz"), false},
		{"a sequence that breaks off", "a\xE2\x82", TEXT("a\uFFFD\uFFFD"), false},
		{"an overlong form", "\xC0\xAF", TEXT("\uFFFD\uFFFD"), false},
		{"an overlong form of three bytes", "\xE0\x80\xAF", TEXT("\uFFFD\uFFFD\uFFFD"), false},
		{"a surrogate on its own", "\xED\xA0\x80", TEXT("\uFFFD\uFFFD\uFFFD"), false},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		ExpectExactly(UTF8_TO_TCHAR(Case.Utf8), Case.Utf16);
		if (Case.bRoundTrip)
		{
			EXPECT_STREQ(TCHAR_TO_UTF8(Case.Utf16), Case.Utf8);
		}
	}
	const TCHAR Lone[] = {'a', 0xd83c, 'b', 0};
	EXPECT_STREQ(TCHAR_TO_UTF8(Lone), "a\xEF\xBF\xBD"
									  "b");
	EXPECT_EQ(std::strlen(TCHAR_TO_UTF8(*FString::ChrN(5000, u'ü'))), 10000u);
}

TEST(String, WideCharacterClassesKnowLettersBeyondAsciiOnceTheHostHasSetThem)
{
	ASSERT_TRUE(HostLocale::UseUnicodeCharacterClasses());
	EXPECT_TRUE(std::iswalnum(static_cast<wint_t>(u'ü')));
	EXPECT_FALSE(std::iswalnum(static_cast<wint_t>(u'–')));
	EXPECT_TRUE(FChar::IsAlnum(u'Ñ'));
	EXPECT_EQ(FString::Printf(TEXT("%.1f"), 0.5), TEXT("0.5")) << "numbers keep their point";
}

TEST(String, ReadsNumbers)
{
	EXPECT_EQ(FCString::Atoi(TEXT(" -12px")), -12);
	EXPECT_EQ(FCString::Atoi(TEXT("px")), 0);
	EXPECT_DOUBLE_EQ(FCString::Atod(TEXT("0.25)")), 0.25);
	EXPECT_TRUE(FString(TEXT("-1.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.5.2")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("-")).IsNumeric());
}
