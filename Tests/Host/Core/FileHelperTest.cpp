// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "Misc/FileHelper.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace FileHelperTest
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
			{"the first and last characters of every length", "\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", {"\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"}},
			{"behind eight and sixteen plain bytes", "12345678\xE2\x82\xAC 12345678901\xE2\x82\xAC", {"12345678\xE2\x82\xAC 12345678901\xE2\x82\xAC"}},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			Folder.Write("File.ini", Case.Bytes);
			EXPECT_EQ(Load(), Case.Expected);
			EXPECT_TRUE(bLoaded) << "LoadFileToStringArray";
			std::string Utf8;
			EXPECT_EQ(HostTextFiles::ReadUtf8(Folder.Get("File.ini"), Utf8), HostFiles::ERead::Done);
			EXPECT_EQ(Utf8.substr(0, Utf8.find_first_of("\r\n")), Case.Expected.empty() ? "" : Case.Expected.front());
			EXPECT_TRUE(HostTextFiles::CheckReadable(Folder.Get("File.ini")));
		}
	}

	TEST_F(FileHelper, WhereACharacterStandsDoesNotMatter)
	{
		for (size_t Before = 0; Before <= 9; ++Before)
		{
			for (const auto& [Character, bValid] : {std::pair("\xC3\xBC", true), std::pair("\xE2\x82\xAC", true), std::pair("\xF0\x9F\x8F\xA0", true), std::pair("\xFF", false), std::pair("\xC3", false), std::pair("\xE2\x82", false)})
			{
				const std::string Text = std::string(Before, 'a') + Character + std::string(9, 'b');
				Folder.Write("File.ini", Text);
				EXPECT_EQ(Load(), bValid ? std::vector<std::string>{Text} : std::vector<std::string>{}) << Before << Character;
				std::string Utf8;
				EXPECT_EQ(HostTextFiles::ReadUtf8(Folder.Get("File.ini"), Utf8), bValid ? HostFiles::ERead::Done : HostFiles::ERead::Failed);
			}
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
			{"anything else is UTF-16, little endian, with mark", EOptions::AutoDetect, {"a", "\xC3\xBC"}, "\xFF\xFE" + Utf16("a\n") + "\xFC\0"s + Utf16("\n")},
			{"the last ASCII character is one", EOptions::AutoDetect, {"\x7F"}, "\x7F\n"},
			{"the next one is not", EOptions::AutoDetect, {"\xC2\x80"}, "\xFF\xFE\x80\0"s + Utf16("\n")},
			{"ASCII that is forced", EOptions::ForceAnsi, {"a"}, "a\n"},
			{"forced UTF-8 has a mark", EOptions::ForceUTF8, {"\xC3\xBC"}, "\xEF\xBB\xBF\xC3\xBC\n"},
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
			{"as many of both line ends: the new line has LF", "a\r\nb\nc", "a\r\nnew\nb\nc"},
			{"characters of three and four bytes", "\xE2\x82\xAC \xF0\x9F\x8F\xA0\n\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\n", "\xE2\x82\xAC \xF0\x9F\x8F\xA0\nnew\n\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\n"},
			{"UTF-16 with both bytes in use", "\xFF\xFE\xAC\x20\n\0\x3C\xD8\xE0\xDF"s, "\xFF\xFE\xAC\x20\n\0"s + Utf16("new\n") + "\x3C\xD8\xE0\xDF"},
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

	TEST_F(FileHelper, TakingALineOutLeavesTheEndsOfTheOthers)
	{
		Folder.Write("File.ini", "a\r\na\nb\n");
		Load();
		EXPECT_TRUE(Save({"a", "b"}));
		EXPECT_EQ(Folder.Read("File.ini"), "a\r\nb\n");
		EXPECT_TRUE(Save({"a"})) << "what was written here is nobody else's change";
		EXPECT_EQ(Folder.Read("File.ini"), "a\r\n");
		EXPECT_TRUE(Save({"c"}, FFileHelper::EEncodingOptions::ForceUnicode)) << "another encoding, where it is asked for";
		EXPECT_EQ(Folder.Read("File.ini"), "\xFF\xFE" + Utf16("c\r\n"));
	}

	TEST_F(FileHelper, WhatIsReadOnlyIsWrittenOnlyWhenTheCallerSaysSo)
	{
		const uint8 Bytes[] = {'b', 0xFF, 0};
		const FString Path = Folder.Get("File.ini");
		const auto Write = [&](int32 How, uint32 Flags) {
			const TArray<FString> Lines{TEXT("line")};
			IFileManager* const Files = &IFileManager::Get();
			const auto Automatic = FFileHelper::EEncodingOptions::AutoDetect;
			switch (How)
			{
				case 0:
					return FFileHelper::SaveArrayToFile(Bytes, *Path, Files, Flags);
				case 1:
					return FFileHelper::SaveStringToFile(TEXT("text"), *Path, Automatic, Files, Flags);
				default:
					return FFileHelper::SaveStringArrayToFile(Lines, *Path, Automatic, Files, Flags);
			}
		};
		for (const auto& [How, Expected] : {std::pair(0, "b\xFF\0"s), std::pair(1, "text"s), std::pair(2, "line\n"s)})
		{
			SCOPED_TRACE(Expected);
			Restart();
			std::filesystem::remove(Folder.GetNative("File.ini"));
			Folder.Write("File.ini", "old\n");
			chmod(Folder.GetNative("File.ini").c_str(), 0444);
			EXPECT_FALSE(Write(How, FILEWRITE_None));
			EXPECT_EQ(Folder.Read("File.ini"), "old\n");
			EXPECT_TRUE(Write(How, FILEWRITE_EvenIfReadOnly));
			EXPECT_EQ(Folder.Read("File.ini").substr(0, 4), Expected.substr(0, 4));
			TArray<uint8> Read;
			EXPECT_TRUE(FFileHelper::LoadFileToArray(Read, *Path));
			EXPECT_EQ(std::string(reinterpret_cast<const char*>(Read.GetData()), static_cast<size_t>(Read.Num())), Folder.Read("File.ini"));
		}
	}

	TEST_F(FileHelper, LettersBeyondAsciiDoNotTurnAnExistingUtf8FileIntoUtf16)
	{
		Folder.Write("File.ini", "a\n");
		const std::string Letters = "T\xC3\xBCr \xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80"; // also those beside the surrogates
		EXPECT_TRUE(Save({"a", Letters}));
		EXPECT_EQ(Folder.Read("File.ini"), "a\n" + Letters + "\n");
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
			const char* Fault = "is neither UTF-8 nor UTF-16 with a byte-order mark";
		};
		const char* const NoText = "holds null characters and so is no text (UTF-16 needs a byte-order mark)";
		const FCase Cases[] = {
			{"Latin-1", "a\nT\xFCr\n", 2},
			{"UTF-16 with half a character at the end", "\xFF\xFE" + Utf16("a\n") + "b", 0, "begins as UTF-16 but has an odd number of bytes"},
			{"UTF-16 without mark", Utf16("a\nb\n"), 1, NoText},
			{"an overlong form", "a\xC0\xAF\n", 1},
			{"an overlong form of three bytes", "a\xE0\x80\xAF\n", 1},
			{"a surrogate in UTF-8", "\n\n\xED\xA0\x80", 3},
			{"a character that is cut off", "a\xE2\x82", 1},
			{"an overlong form of four bytes", "a\xF0\x8F\xBF\xBF\n", 1},
			{"beyond the last character", "a\n\xF4\x90\x80\x80\n", 2},
			{"a length that no character has", "\n\xF5\x80\x80\x80\n", 2},
			{"the last surrogate", "\xED\xBF\xBF", 1},
			{"a continuation without beginning", "1234567\x80", 1},
			{"a beginning without continuation", "a\xE2\x28\xAC\n", 1},
			{"null characters in UTF-8", "a\n1234567\0"s, 2, NoText},
			{"null characters in UTF-16", "\xFF\xFE" + Utf16("a\n") + std::string(2, '\0'), 2, NoText},
		};
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			HostProblems::Clear();
			Folder.Write("File.ini", Case.Bytes);
			EXPECT_EQ(Load(), std::vector<std::string>{});
			EXPECT_FALSE(bLoaded) << "LoadFileToStringArray";
			EXPECT_FALSE(Save({"replacement"}));
			EXPECT_EQ(Folder.Read("File.ini"), Case.Bytes);
			EXPECT_EQ(GetProblems(), std::string("the file ") + Case.Fault + ". Save it as UTF-8 or as UTF-16 with a byte-order mark; until then it is neither read nor overwritten.\nthe file was not written: what is in it cannot be read. Put the file right or move it away.\n");
			ASSERT_FALSE(HostProblems::GetAll().IsEmpty());
			EXPECT_EQ(HostProblems::GetAll()[0].Line, Case.Line);
			EXPECT_EQ(HostProblems::GetNotWritten().Num(), 1) << "the load is no write";
			EXPECT_EQ(ToUtf8(HostProblems::GetAll()[0].File), ToUtf8(Folder.Get("File.ini")));
			const std::string Told = GetProblems();
			std::string Utf8 = "left over";
			EXPECT_EQ(HostTextFiles::ReadUtf8(Folder.Get("File.ini"), Utf8), HostFiles::ERead::Failed);
			EXPECT_EQ(Utf8, "");
			EXPECT_FALSE(HostTextFiles::CheckReadable(Folder.Get("File.ini")));
			EXPECT_EQ(GetProblems(), Told) << "every reader finds the same fault in the same line";
		}
	}

	TEST_F(FileHelper, AFailedLoadForbidsSavingUntilALoadSucceeds)
	{
		Folder.Write("File.ini", "T\xFCr\n");
		Load();
		Folder.Write("File.ini", "fine\n");
		HostProblems::Clear();
		EXPECT_FALSE(Save({}));
		EXPECT_EQ(GetProblems(), "the file was not written: loading it had failed, so what was to be saved is not its content. Try again.\n");
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
			{"mine changes nothing, theirs the last line", "a\nb\n", "a\nother\n", {"a", "b"}, "a\nother\n", true},
			{"both change one line", "a\nb\nc\n", "a\nother\nc\n", {"a", "mine", "c"}, "a\nother\nc\n", false},
			{"I change what they removed", "a\nb\nc\n", "a\nc\n", {"a", "mine", "c"}, "a\nc\n", false},
			{"changes of neighbouring lines", "a\nb\nc\nd\n", "a\nother\nc\nd\n", {"a", "b", "mine", "d"}, "a\nother\nc\nd\n", false},
			{"the file turned up meanwhile", "", "other\n", {}, "other\n", true},
			{"the same line in two places", "a\nb\nc\nd\n", "a\nnew\nb\nc\nd\n", {"a", "b", "c", "new", "d"}, "a\nnew\nb\nc\nnew\nd\n", true},
			{"I put a line where they put it in front", "a\nb\nc\n", "a\nnew\nb\nc\n", {"a", "new", "c"}, "a\nnew\nb\nc\n", false},
			{"mine in front of what they changed", "a\nb\nc\n", "a\nother\nc\n", {"a", "mine", "b", "c"}, "a\nother\nc\n", false},
			{"mine behind what they changed", "a\nb\nc\n", "a\nother\nc\n", {"a", "b", "mine", "c"}, "a\nother\nc\n", false},
			{"theirs in front of what I changed", "a\nb\nc\n", "a\nother\nb\nc\n", {"a", "mine", "c"}, "a\nother\nb\nc\n", false},
			{"they changed line ends alone", "a\nb\n", "a\r\nb\r\n", {"a", "mine"}, "a\r\nmine\r\n", true},
			{"both take the same out", "a\nb\nc\n", "a\nc\n", {"a", "c"}, "a\nc\n", true},
			{"a line between what both take out", "a\nb\nc\n", "b\nc\n", {"a", "b"}, "b\n", true},
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
			EXPECT_EQ(GetProblems(), Case.bSaved ? "" : "the file was not written: somebody else changed the same lines meanwhile. Try again; the file is as the other one left it.\n");
		}
	}

	TEST_F(FileHelper, OnlyTheLastLoadCountsAsWhatWasSeen)
	{
		FString Text;
		Folder.Write("File.ini", "a\nb\n");
		Load();
		Folder.Write("File.ini", "other\nb\n");
		ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *Folder.Get("File.ini")));
		EXPECT_TRUE(Save({"mine", "b"})) << "whoever has the whole text knows what it writes over";
		EXPECT_EQ(Folder.Read("File.ini"), "mine\nb\n");
		Load();
		Folder.Write("File.ini", "other\nb\n");
		EXPECT_TRUE(FFileHelper::SaveStringToFile(TEXT("whole\nb\n"), *Folder.Get("File.ini"))) << "and says so";
		EXPECT_EQ(Folder.Read("File.ini"), "whole\nb\n");
		Load();
		std::filesystem::remove(Folder.GetNative("File.ini"));
		EXPECT_TRUE(Save({"mine", "more"}));
		EXPECT_EQ(Folder.Read("File.ini"), "mine\nmore\n") << "nothing is left of what was loaded";
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
		ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("a\nb\n"), *Folder.Get("File.ini")));
		EXPECT_EQ(Folder.Read("File.ini"), "a\r\nb\r\n");
		Folder.Write("File.ini", "");
		ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("a\r\nb\n"), *Folder.Get("File.ini")));
		EXPECT_EQ(Folder.Read("File.ini"), "a\r\nb\n") << "an empty file has no line ends to keep";
	}

	TEST_F(FileHelper, HalfOfASurrogatePairIsNotWrittenAsUtf8)
	{
		const TCHAR* const Halves[] = {TEXT("a\xD83C"), TEXT("\xD83Cz"), TEXT("\xDFE0\xD83C"), TEXT("\xD83C\xD83C"), TEXT("\xDC00\xDC00"), TEXT("\xD83C\xE000")};
		for (const TCHAR* Half : Halves)
		{
			Folder.Write("File.ini", "old\n");
			HostProblems::Clear();
			EXPECT_FALSE(FFileHelper::SaveStringToFile(Half, *Folder.Get("File.ini")));
			EXPECT_EQ(Folder.Read("File.ini"), "old\n");
			EXPECT_EQ(GetProblems(), "the file was not written: UTF-8 cannot express half of a surrogate pair. Correct the text.\n");
			EXPECT_EQ(HostProblems::GetNotWritten().Num(), 1);
			ASSERT_TRUE(FFileHelper::SaveStringToFile(Half, *Folder.Get("File.ini"), FFileHelper::EEncodingOptions::ForceUnicode));
			std::string Utf8;
			EXPECT_EQ(HostTextFiles::ReadUtf8(Folder.Get("File.ini"), Utf8), HostFiles::ERead::Failed) << "a configuration is read as UTF-8";
			EXPECT_EQ(Utf8, "");
		}
	}

	TEST_F(FileHelper, ASingleByteFileThatIsForcedRefusesOtherLetters)
	{
		EXPECT_FALSE(Save({"T\xC3\xBCr"}, FFileHelper::EEncodingOptions::ForceAnsi));
		EXPECT_FALSE(Folder.Exists("File.ini"));
		EXPECT_EQ(GetProblems(), "the file was not written: a single-byte encoding is asked for, and the text goes beyond ASCII. Save it in another encoding.\n");
	}
}
