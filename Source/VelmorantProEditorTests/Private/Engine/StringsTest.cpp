// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"

#include <cwctype>

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantStringComparisonTest, "Velmorant.Engine.Strings.Comparison", VelmorantTests::Flags)

bool FVelmorantStringComparisonTest::RunTest(const FString&)
{
	const FString Text = TEXT("Living Room");
	TestTrue(TEXT("== ignores case"), Text == TEXT("living room"));
	TestTrue(TEXT("beyond ASCII as well"), FString(TEXT("K\u00DCCHE")) == FString(TEXT("k\u00FCche")));
	TestFalse(TEXT("Equals does not"), Text.Equals(TEXT("living room")));
	TestTrue(TEXT("unless told to"), Text.Equals(TEXT("living room"), ESearchCase::IgnoreCase));
	TestTrue(TEXT("Contains ignores case"), Text.Contains(TEXT("ROOM")));
	TestTrue(TEXT("StartsWith and EndsWith ignore case"), Text.StartsWith(TEXT("LIVING")) && Text.EndsWith(TEXT("ROOM")));
	TestFalse(TEXT("unless told not to"), Text.StartsWith(TEXT("LIVING"), ESearchCase::CaseSensitive) || Text.EndsWith(TEXT("ROOM"), ESearchCase::CaseSensitive));
	TestFalse(TEXT("no text begins with a longer one"), Text.StartsWith(TEXT("Living Rooms")));
	TestTrue(TEXT("every text contains no text"), Text.Contains(TEXT("")));
	TSet<FString> Names;
	Names.Add(TEXT("Oak"));
	TestTrue(TEXT("sets of strings ignore case, and have whole ones"), Names.Contains(TEXT("OAK")) && !Names.Contains(TEXT("Oa")));
	TestEqualSensitive(TEXT("Replace ignores case"), *Text.Replace(TEXT("ROOM"), TEXT("Hall")), TEXT("Living Hall"));
	TestEqualSensitive(TEXT("and takes every occurrence"), *FString(TEXT("a b c")).Replace(TEXT(" "), TEXT("_")), TEXT("a_b_c"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantStringSplitTest, "Velmorant.Engine.Strings.Split", VelmorantTests::Flags)

bool FVelmorantStringSplitTest::RunTest(const FString&)
{
	FString Left = TEXT("left");
	FString Right = TEXT("right");
	TestTrue(TEXT("an object path splits at its first dot"), FString(TEXT("/Game/A/X.X")).Split(TEXT("."), &Left, &Right));
	TestEqualSensitive(TEXT("the package"), *Left, TEXT("/Game/A/X"));
	TestEqualSensitive(TEXT("the object"), *Right, TEXT("X"));
	TestTrue(TEXT("from the end it splits at the last"), FString(TEXT("Sets_Tower_Oak")).Split(TEXT("_"), nullptr, &Right, ESearchCase::CaseSensitive, ESearchDir::FromEnd));
	TestEqualSensitive(TEXT("what is behind the last"), *Right, TEXT("Oak"));
	TestFalse(TEXT("nothing to split at"), FString(TEXT("Tower")).Split(TEXT("_"), &Left, &Right));
	TestEqualSensitive(TEXT("leaves both sides alone"), *(Left + TEXT("|") + Right), TEXT("/Game/A/X|Oak"));
	TestTrue(TEXT("a separator at the end has nothing behind it"), FString(TEXT("Sets_")).Split(TEXT("_"), &Left, &Right) && Right.IsEmpty());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantPathSplitTest, "Velmorant.Engine.Paths.Split", VelmorantTests::Flags)

bool FVelmorantPathSplitTest::RunTest(const FString&)
{
	FString Folder;
	FString Name;
	FString Extension;
	FPaths::Split(TEXT("/Game/Velmorant/Data.Data"), Folder, Name, Extension);
	TestEqualSensitive(TEXT("the folder of an object path has no slash at its end"), *Folder, TEXT("/Game/Velmorant"));
	TestEqualSensitive(TEXT("its name"), *Name, TEXT("Data"));
	TestEqualSensitive(TEXT("its object stands as the extension, without the dot"), *Extension, TEXT("Data"));
	FPaths::Split(TEXT("/Game/Data"), Folder, Name, Extension);
	TestEqualSensitive(TEXT("a package path has no extension"), *(Folder + TEXT("|") + Name + TEXT("|") + Extension), TEXT("/Game|Data|"));
	TestEqualSensitive(TEXT("GetPath leaves the folder"), *FPaths::GetPath(TEXT("/Game/Velmorant/Data.Data")), TEXT("/Game/Velmorant"));
	TestEqualSensitive(TEXT("GetBaseFilename leaves the name"), *FPaths::GetBaseFilename(TEXT("/Game/Velmorant/Data.Data")), TEXT("Data"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantPathJoinTest, "Velmorant.Engine.Paths.Join", VelmorantTests::Flags)

bool FVelmorantPathJoinTest::RunTest(const FString&)
{
	// The class icons of the style set are given with a slash in front.
	const FString Root = TEXT("C:/Plugin/Resources");
	TestEqualSensitive(TEXT("a slash is put between"), *(Root / TEXT("Logo.png")), TEXT("C:/Plugin/Resources/Logo.png"));
	TestEqualSensitive(TEXT("no second one where the right side brings it"), *(Root / TEXT("/ClassIcons/Icon.png")), TEXT("C:/Plugin/Resources/ClassIcons/Icon.png"));
	TestEqualSensitive(TEXT("nothing before nothing"), *(FString() / TEXT("Logo.png")), TEXT("Logo.png"));
	TestTrue(TEXT("the folder of the configuration ends with a slash"), FPaths::SourceConfigDir().EndsWith(TEXT("/")) && FPaths::ProjectConfigDir().EndsWith(TEXT("/")));
	TestTrue(TEXT("it is one folder by both names"), FPaths::ConvertRelativePathToFull(FPaths::SourceConfigDir()) == FPaths::ConvertRelativePathToFull(FPaths::ProjectConfigDir()));
	VelmorantTests::RecordBelief(*this, TEXT("a folder with slash joined with a path with slash"), FString(TEXT("a/")) / TEXT("/b"));
	VelmorantTests::RecordBelief(*this, TEXT("a folder joined with nothing"), FString(TEXT("a")) / TEXT(""));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCharactersTest, "Velmorant.Engine.Strings.Characters", VelmorantTests::Flags)

bool FVelmorantCharactersTest::RunTest(const FString&)
{
	TestTrue(TEXT("letters and digits are"), iswalnum(static_cast<wint_t>(TEXT('a'))) && iswalnum(static_cast<wint_t>(TEXT('7'))));
	TestFalse(TEXT("the underscore is not"), iswalnum(static_cast<wint_t>(TEXT('_'))) != 0);
	// Depends on platform and locale: names of assets that the service's identifiers give differ with it.
	VelmorantTests::RecordBelief(*this, TEXT("iswalnum of u with diaeresis"), iswalnum(static_cast<wint_t>(0xFC)) != 0);
	return true;
}

#endif
