// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/FileHelper.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestFolder.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantFileLinesTest, "Velmorant.Engine.Files.LoadedLines", VelmorantTests::Flags)

bool FVelmorantFileLinesTest::RunTest(const FString&)
{
	const FVelmorantTestFolder Folder;
	const auto Load = [&Folder](const ANSICHAR* Bytes) {
		TArray<FString> Lines;
		FFileHelper::LoadFileToStringArray(Lines, *Folder.Write(TEXT("Lines.ini"), Bytes));
		return FString::Join(Lines, TEXT("|"));
	};
	TestEqualSensitive(TEXT("LF"), *Load("a\nb\n"), TEXT("a|b"));
	TestEqualSensitive(TEXT("CRLF"), *Load("a\r\nb\r\n"), TEXT("a|b"));
	TestEqualSensitive(TEXT("CR alone"), *Load("a\rb"), TEXT("a|b"));
	TestEqualSensitive(TEXT("all mixed"), *Load("a\r\nb\rc\nd"), TEXT("a|b|c|d"));
	TestEqualSensitive(TEXT("empty lines stay"), *Load("a\n\n\nb"), TEXT("a|||b"));
	TestEqualSensitive(TEXT("a lone line end is one empty line, without another"), *Load("\n"), TEXT(""));
	TestEqualSensitive(TEXT("UTF-8 needs no mark"), *Load("T\xC3\xBCr\n"), TEXT("T\u00FCr"));
	TestEqualSensitive(TEXT("nor does it show one"), *Load("\xEF\xBB\xBFT\xC3\xBCr\n"), TEXT("T\u00FCr"));

	TArray<FString> Lines = {TEXT("before")};
	TestTrue(TEXT("an empty file can be loaded"), FFileHelper::LoadFileToStringArray(Lines, *Folder.Write(TEXT("Empty.ini"), "")));
	TestEqual(TEXT("and has no lines"), Lines.Num(), 0);
	TestFalse(TEXT("a missing file cannot"), FFileHelper::LoadFileToStringArray(Lines, *Folder.GetFile(TEXT("Missing.ini"))));
	TestEqual(TEXT("nor does it leave what was there"), Lines.Num(), 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSavedTextTest, "Velmorant.Engine.Files.SavedText", VelmorantTests::Flags)

bool FVelmorantSavedTextTest::RunTest(const FString&)
{
	const FVelmorantTestFolder Folder;
	const FString LineEnd = FString(LINE_TERMINATOR).Len() == 2 ? TEXT("0D 0A") : TEXT("0A");
	const FString WideLineEnd = FString(LINE_TERMINATOR).Len() == 2 ? TEXT("0D 00 0A 00") : TEXT("0A 00");
	TestTrue(TEXT("lines are saved"), FFileHelper::SaveStringArrayToFile(TArray<FString>{TEXT("a"), TEXT("b")}, *Folder.GetFile(TEXT("Ascii.ini"))));
	TestEqualSensitive(TEXT("ASCII as it is, and the last line has an end"), *Folder.ReadBytes(TEXT("Ascii.ini")), *FString::Printf(TEXT("61 %s 62 %s"), *LineEnd, *LineEnd));
	FFileHelper::SaveStringArrayToFile(TArray<FString>{TEXT("\u00FC")}, *Folder.GetFile(TEXT("Wide.ini")));
	TestEqualSensitive(TEXT("one other letter makes it UTF-16 with a mark"), *Folder.ReadBytes(TEXT("Wide.ini")), *FString::Printf(TEXT("FF FE FC 00 %s"), *WideLineEnd));
	FFileHelper::SaveStringToFile(TEXT("\u00FC"), *Folder.GetFile(TEXT("Utf8.ini")), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM);
	TestEqualSensitive(TEXT("UTF-8 without mark when asked for"), *Folder.ReadBytes(TEXT("Utf8.ini")), TEXT("C3 BC"));
	TestTrue(TEXT("no lines make an empty file"), FFileHelper::SaveStringArrayToFile(TArray<FString>(), *Folder.GetFile(TEXT("None.ini"))));
	TestEqualSensitive(TEXT("which is there"), *Folder.ReadBytes(TEXT("None.ini")), TEXT(""));
	TestTrue(TEXT("missing folders are made"), FFileHelper::SaveStringToFile(TEXT("x"), *Folder.GetFile(TEXT("Deeper/And/Deeper.txt"))));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantExistingTextTest, "Velmorant.Engine.Files.ExistingText", VelmorantTests::Flags)

bool FVelmorantExistingTextTest::RunTest(const FString&)
{
	const FVelmorantTestFolder Folder;
	TArray<FString> Lines;
	const FString File = Folder.Write(TEXT("Existing.ini"), "T\xC3\xBCr\r\nTor");
	FFileHelper::LoadFileToStringArray(Lines, *File);
	Lines.Add(TEXT("new"));
	FFileHelper::SaveStringArrayToFile(Lines, *File);
	VelmorantTests::RecordBelief(*this, TEXT("encoding of an existing text file after SaveStringArrayToFile"), Folder.ReadBytes(TEXT("Existing.ini")));
	FFileHelper::SaveStringToFile(TEXT("T\u00FCr"), *File);
	VelmorantTests::RecordBelief(*this, TEXT("encoding of an existing text file after SaveStringToFile"), Folder.ReadBytes(TEXT("Existing.ini")));

	FString Text;
	TestTrue(TEXT("whatever the encoding, it can be loaded again"), FFileHelper::LoadFileToString(Text, *File));
	TestTrue(TEXT("with its letters"), Text.StartsWith(TEXT("T\u00FCr"), ESearchCase::CaseSensitive));
	return true;
}

#endif
