// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostFiles.h"
#include "Misc/FileHelper.h"

#include <algorithm>
#include <utility>

namespace
{
	using namespace std::string_literals;

	/** The text with a zero byte behind each ASCII character: UTF-16, little endian. */
	std::string Utf16(const std::string& Ascii)
	{
		std::string Result;
		for (const char Character : Ascii)
		{
			Result += Character;
			Result += '\0';
		}
		return Result;
	}

	std::string SwapBytes(std::string Bytes)
	{
		for (size_t Index = 0; Index + 1 < Bytes.size(); Index += 2)
		{
			std::swap(Bytes[Index], Bytes[Index + 1]);
		}
		return Bytes;
	}

	class FileHelper : public FEditorFilesTest
	{
	protected:
		std::vector<std::string> Load()
		{
			TArray<FString> Lines;
			bLoaded = FFileHelper::LoadFileToStringArray(Lines, *Folder.Get("File.ini"));
			return ToUtf8(Lines);
		}

		bool Save(const std::vector<std::string>& Lines, FFileHelper::EEncodingOptions Options = FFileHelper::EEncodingOptions::AutoDetect)
		{
			TArray<FString> Converted;
			for (const std::string& Line : Lines)
			{
				Converted.Add(FString(UTF8_TO_TCHAR(Line.c_str())));
			}
			return FFileHelper::SaveStringArrayToFile(Converted, *Folder.Get("File.ini"), Options);
		}

		bool bLoaded = false;
	};

	TEST_F(FileHelper, DecodesByByteOrderMarkAndTakesFilesWithoutOneForUtf8)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Bytes;
			std::vector<std::string> Expected;
		};
		const FCase Cases[] = {
			{"no mark is UTF-8", "T\xC3\xBCr\n", {"T\xC3\xBCr"}},
			{"UTF-8 with mark loses the mark", "\xEF\xBB\xBFT\xC3\xBCr\n", {"T\xC3\xBCr"}},
			{"UTF-16 little endian", "\xFF\xFE" + Utf16("ab\r\nc\n"), {"ab", "c"}},
			{"UTF-16 big endian", "\xFE\xFF" + SwapBytes(Utf16("ab\r\nc\n")), {"ab", "c"}},
			{"characters beyond the first plane", "\xF0\x9F\x8F\xA0\n", {"\xF0\x9F\x8F\xA0"}},
			{"surrogate pairs", "\xFF\xFE\x3C\xD8\xE0\xDF"s, {"\xF0\x9F\x8F\xA0"}},
			{"only a mark", "\xEF\xBB\xBF", {}},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("File.ini", Case.Bytes);
			EXPECT_EQ(Load(), Case.Expected);
			EXPECT_TRUE(bLoaded);
		}
	}

	TEST_F(FileHelper, SplitsLinesAtEveryKindOfLineEnd)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Text;
			std::vector<std::string> Expected;
		};
		const FCase Cases[] = {
			{"an empty file has no lines", "", {}},
			{"a line end at the very end starts no line", "a\n", {"a"}},
			{"a last line without end counts", "a\nb", {"a", "b"}},
			{"empty lines inside are kept", "a\n\n\nb\n", {"a", "", "", "b"}},
			{"a lone line end is one empty line", "\n", {""}},
			{"CRLF, CR and LF mixed", "a\r\nb\rc\nd", {"a", "b", "c", "d"}},
			{"CR CR LF are two ends", "a\r\r\nb", {"a", "", "b"}},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("File.ini", Case.Text);
			EXPECT_EQ(Load(), Case.Expected);
		}
	}

	TEST_F(FileHelper, MissingFilesLoadAsNothingWithoutAProblem)
	{
		TArray<FString> Lines{TEXT("old")};
		FString Text = TEXT("old");
		EXPECT_FALSE(FFileHelper::LoadFileToStringArray(Lines, *Folder.Get("Missing.ini")));
		EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *Folder.Get("Missing.ini")));
		EXPECT_TRUE(Lines.IsEmpty());
		EXPECT_TRUE(Text.IsEmpty());
		EXPECT_EQ(GetProblems(), "");
	}

	TEST_F(FileHelper, NewFilesFollowTheEnginesEncodingRule)
	{
		struct FCase
		{
			const char* Behaviour;
			FFileHelper::EEncodingOptions Options;
			std::vector<std::string> Lines;
			std::string Expected;
		};
		using EOptions = FFileHelper::EEncodingOptions;
		const FCase Cases[] = {
			{"ASCII is single-byte, every line with an end", EOptions::AutoDetect, {"a", "b"}, "a\nb\n"},
			{"anything else is UTF-16, little endian, with mark", EOptions::AutoDetect, {"a", "\xC3\xBC"}, "\xFF\xFE" + Utf16("a\n") + "\xFC\0"s + Utf16("\n")},
			{"no lines make an empty file", EOptions::AutoDetect, {}, ""},
			{"forced UTF-8 has a mark", EOptions::ForceUTF8, {"\xC3\xBC"}, "\xEF\xBB\xBF\xC3\xBC\n"},
			{"forced UTF-8 without mark has none", EOptions::ForceUTF8WithoutBOM, {"\xC3\xBC"}, "\xC3\xBC\n"},
			{"forced Unicode is UTF-16", EOptions::ForceUnicode, {"a"}, "\xFF\xFE" + Utf16("a\n")},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			std::filesystem::remove(Folder.GetNative("File.ini"));
			EXPECT_TRUE(Save(Case.Lines, Case.Options));
			EXPECT_TRUE(Folder.Exists("File.ini"));
			EXPECT_EQ(Folder.Read("File.ini"), Case.Expected);
		}
	}

	TEST_F(FileHelper, InsertingALineChangesNothingElseInAnExistingFile)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Before;
			std::string After;
		};
		// The act: load, insert "new" behind the first line, save.
		const FCase Cases[] = {
			{"LF stays LF", "a\nb\n", "a\nnew\nb\n"},
			{"CRLF stays CRLF", "a\r\nb\r\n", "a\r\nnew\r\nb\r\n"},
			{"CR stays CR", "a\rb\r", "a\rnew\rb\r"},
			{"a missing last line end stays missing", "a\nb", "a\nnew\nb"},
			{"behind a last line without end", "a", "a\nnew"},
			{"mixed line ends stay mixed, the new line has the usual one", "a\r\nb\nc\r\n", "a\r\nnew\r\nb\nc\r\n"},
			{"UTF-8 stays UTF-8", "\xC3\xBC\nb\n", "\xC3\xBC\nnew\nb\n"},
			{"UTF-8 with mark keeps its mark", "\xEF\xBB\xBF"
											   "a\r\nb\r\n",
				"\xEF\xBB\xBF"
				"a\r\nnew\r\nb\r\n"},
			{"UTF-16 little endian", "\xFF\xFE" + Utf16("a\r\nb"), "\xFF\xFE" + Utf16("a\r\nnew\r\nb")},
			{"UTF-16 big endian", "\xFE\xFF" + SwapBytes(Utf16("a\nb\n")), "\xFE\xFF" + SwapBytes(Utf16("a\nnew\nb\n"))},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("File.ini", Case.Before);
			std::vector<std::string> Lines = Load();
			Lines.insert(Lines.begin() + 1, "new");
			EXPECT_TRUE(Save(Lines));
			EXPECT_EQ(Folder.Read("File.ini"), Case.After);
		}
	}

	TEST_F(FileHelper, LettersBeyondAsciiDoNotTurnAnExistingUtf8FileIntoUtf16)
	{
		Folder.Write("File.ini", "a\n");
		EXPECT_TRUE(Save({"a", "T\xC3\xBCr"}));
		EXPECT_EQ(Folder.Read("File.ini"), "a\nT\xC3\xBCr\n");
	}

	TEST_F(FileHelper, SavingWhatWasLoadedLeavesFileAndTimeStampAlone)
	{
		for (const std::string& Bytes : {"a\r\nb"s, "\xFF\xFE" + Utf16("a\n"), ""s, "a\r\nb\nc\r"s})
		{
			Folder.Write("File.ini", Bytes);
			const auto Before = Age("File.ini");
			EXPECT_TRUE(Save(Load()));
			EXPECT_EQ(Folder.Read("File.ini"), Bytes);
			EXPECT_EQ(std::filesystem::last_write_time(Folder.GetNative("File.ini")), Before);
		}
		EXPECT_TRUE(HostFiles::GetWrittenFiles().IsEmpty());
	}

	TEST_F(FileHelper, NeverOverwritesBytesThatItCannotExplain)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Bytes;
			int32 Line;
		};
		const FCase Cases[] = {
			{"Latin-1", "a\nT\xFCr\n", 2},
			{"UTF-16 with half a character at the end", "\xFF\xFE" + Utf16("a\n") + "b", 0},
			{"UTF-16 without mark", Utf16("a\nb\n"), 1},
			{"an overlong form", "a\xC0\xAF\n", 1},
			{"an overlong form of three bytes", "a\xE0\x80\xAF\n", 1},
			{"a surrogate in UTF-8", "\n\n\xED\xA0\x80", 3},
			{"a character that is cut off", "a\xE2\x82", 1},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			Folder.Write("File.ini", Case.Bytes);
			EXPECT_EQ(Load(), std::vector<std::string>{});
			EXPECT_FALSE(bLoaded);
			EXPECT_FALSE(Save({"replacement"}));
			EXPECT_EQ(Folder.Read("File.ini"), Case.Bytes);
			ASSERT_FALSE(HostProblems::GetAll().IsEmpty());
			EXPECT_EQ(HostProblems::GetAll()[0].Line, Case.Line);
			EXPECT_EQ(ToUtf8(HostProblems::GetAll()[0].File), ToUtf8(Folder.Get("File.ini")));
		}
	}

	TEST_F(FileHelper, AFailedLoadForbidsSavingUntilALoadSucceeds)
	{
		Folder.Write("File.ini", "T\xFCr\n");
		Load();
		Folder.Write("File.ini", "fine\n");
		EXPECT_FALSE(Save({}));
		EXPECT_EQ(Folder.Read("File.ini"), "fine\n");
		Load();
		EXPECT_TRUE(Save({"fine", "too"}));
		EXPECT_EQ(Folder.Read("File.ini"), "fine\ntoo\n");
	}

	TEST_F(FileHelper, KeepsWhatOthersWroteBetweenLoadAndSave)
	{
		struct FCase
		{
			const char* Behaviour;
			std::string Loaded;
			std::string WrittenByOthers;
			std::vector<std::string> Saved;
			std::string Expected; // on disk
			bool bSaved;
		};
		const FCase Cases[] = {
			{"changes in different places", "a\nb\nc\nd\n", "a\nb\nc\nd\nother\n", {"a", "mine", "b", "c", "d"}, "a\nmine\nb\nc\nd\nother\n", true},
			{"theirs in front of mine", "a\nb\nc\nd\n", "other\na\nb\nc\nd\n", {"a", "b", "c", "mine", "d"}, "other\na\nb\nc\nmine\nd\n", true},
			{"both add in one place", "a\nb\n", "a\nother\nb\n", {"a", "mine", "b"}, "a\nother\nmine\nb\n", true},
			{"both add the same", "a\nb\n", "a\nnew\nb\n", {"a", "new", "b"}, "a\nnew\nb\n", true},
			{"mine changes nothing", "a\nb\n", "a\nother\nb\n", {"a", "b"}, "a\nother\nb\n", true},
			{"both change one line", "a\nb\nc\n", "a\nother\nc\n", {"a", "mine", "c"}, "a\nother\nc\n", false},
			{"I change what they removed", "a\nb\nc\n", "a\nc\n", {"a", "mine", "c"}, "a\nc\n", false},
			{"changes of neighbouring lines", "a\nb\nc\nd\n", "a\nother\nc\nd\n", {"a", "b", "mine", "d"}, "a\nother\nc\nd\n", false},
			{"the file turned up meanwhile", "", "other\n", {}, "other\n", true},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			Folder.Write("File.ini", Case.Loaded);
			Load();
			Folder.Write("File.ini", Case.WrittenByOthers);
			EXPECT_EQ(Save(Case.Saved), Case.bSaved);
			EXPECT_EQ(Folder.Read("File.ini"), Case.Expected);
			EXPECT_EQ(HostProblems::GetAll().IsEmpty(), Case.bSaved) << GetProblems();
		}
	}

	TEST_F(FileHelper, TwoProcessesThatRepairAtOnceLoseNoLines)
	{
		constexpr int Rounds = 40;
		Folder.Write("File.ini", "[Section]\n+Profiles=last\n[Other]\n");
		const auto AddLines = [this](const std::string& Name) {
			Restart(); // what the parent process knows of the file is not this one's knowledge
			for (int Round = 0; Round < Rounds; ++Round)
			{
				bool bSaved = false;
				while (!bSaved) // a conflict is refused, and tried again as its message says
				{
					std::vector<std::string> Lines = Load();
					Lines.insert(Lines.begin() + 2, Name + std::to_string(Round));
					bSaved = Save(Lines);
				}
			}
		};
		const pid_t First = Fork([&] { AddLines("first"); });
		const pid_t Second = Fork([&] { AddLines("second"); });
		ASSERT_EQ(Wait(First), 0);
		ASSERT_EQ(Wait(Second), 0);
		const std::vector<std::string> Lines = Load();
		EXPECT_EQ(Lines.size(), 3u + 2u * Rounds);
		for (int Round = 0; Round < Rounds; ++Round)
		{
			for (const std::string Name : {"first", "second"})
			{
				EXPECT_EQ(std::count(Lines.begin(), Lines.end(), Name + std::to_string(Round)), 1) << Name << Round;
			}
		}
	}

	TEST_F(FileHelper, StringsAreWrittenAsTheyAreAndReadBackEqual)
	{
		const FString Text = TEXT("{\r\n\t\"Name\": \"T\u00FCrmchen \u00D1\"\r\n}");
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *Folder.Get("Deep/er/Text.json"), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
		EXPECT_EQ(Folder.Read("Deep/er/Text.json"), "{\r\n\t\"Name\": \"T\xC3\xBCrmchen \xC3\x91\"\r\n}");
		FString Back;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Back, *Folder.Get("Deep/er/Text.json")));
		EXPECT_TRUE(Back.Equals(Text));
	}

	TEST_F(FileHelper, AStringOverAnExistingFileTakesOnItsLineEndsButHasItsOwnEnd)
	{
		Folder.Write("File.ini", "a\r\nb\r\n");
		ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("a\nx\nb"), *Folder.Get("File.ini")));
		EXPECT_EQ(Folder.Read("File.ini"), "a\r\nx\r\nb");
	}

	TEST_F(FileHelper, ASingleByteFileThatIsForcedRefusesOtherLetters)
	{
		EXPECT_FALSE(Save({"T\xC3\xBCr"}, FFileHelper::EEncodingOptions::ForceAnsi));
		EXPECT_FALSE(Folder.Exists("File.ini"));
		EXPECT_NE(GetProblems(), "");
	}
}
