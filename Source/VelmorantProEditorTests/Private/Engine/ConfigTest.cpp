// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Misc/ConfigCacheIni.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestFolder.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace ConfigTest
{
	/** A file that the configuration cache has read once stays in it: it is told to let go of it at the end. */
	class FFile
	{
	public:
		FFile(const FVelmorantTestFolder& Folder, const TCHAR* Name, const ANSICHAR* Text)
			: Path(Folder.Write(Name, Text))
		{
		}
		~FFile() { GConfig->UnloadFile(Path); }

		FString Read(const TCHAR* Section) const
		{
			TArray<FString> Lines;
			return GConfig->GetSection(Section, Lines, Path) ? FString::Join(Lines, TEXT("|")) : FString(TEXT("no section"));
		}

		const FString Path;
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantConfigSectionTest, "Velmorant.Engine.Config.SectionKeys", VelmorantTests::Flags)

bool FVelmorantConfigSectionTest::RunTest(const FString&)
{
	const FVelmorantTestFolder Folder;
	const ConfigTest::FFile File(Folder, TEXT("Keys.ini"),
		"; a comment\n"
		"[/Script/Engine.CollisionProfile]\n"
		"+Profiles=(Name=\"A\", Kind=(B,C))\n"
		"  Plain  =  value with  blanks  \n"
		"-Gone=1\n"
		"!Cleared=ClearArray\n"
		"; Profiles=no\n"
		"no key\n"
		"+Profiles=(Name=\"D\")\n"
		"[Other]\n"
		"Name=\"quoted\"\n"
		"[/script/engine.COLLISIONPROFILE]\n"
		"Late=1\n");
	TestEqualSensitive(TEXT("operators stay with their keys; blanks within values stay, those around go"), *File.Read(TEXT("/Script/Engine.CollisionProfile")),
		TEXT("+Profiles=(Name=\"A\", Kind=(B,C))|Plain=value with  blanks|-Gone=1|!Cleared=ClearArray|+Profiles=(Name=\"D\")|Late=1"));
	TestEqualSensitive(TEXT("the case of a section does not count"), *File.Read(TEXT("OTHER")), *File.Read(TEXT("Other")));
	TestEqualSensitive(TEXT("quotes around a whole value go"), *File.Read(TEXT("Other")), TEXT("Name=quoted"));
	TestEqualSensitive(TEXT("what is not there"), *File.Read(TEXT("Missing")), TEXT("no section"));
	TestTrue(TEXT("a section that is there exists"), GConfig->DoesSectionExist(TEXT("Other"), File.Path));
	const ConfigTest::FFile Joined(Folder, TEXT("Joined.ini"), "[A]\nKey=one\\\nOther=two\n");
	VelmorantTests::RecordBelief(*this, TEXT("a line that ends with a backslash, and the next"), Joined.Read(TEXT("A")));
	TestFalse(TEXT("a missing file has no section"), GConfig->DoesSectionExist(TEXT("Other"), Folder.GetFile(TEXT("Missing.ini"))));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantConfigCacheTest, "Velmorant.Engine.Config.CacheAfterWrite", VelmorantTests::Flags)

bool FVelmorantConfigCacheTest::RunTest(const FString&)
{
	const FVelmorantTestFolder Folder;
	const ConfigTest::FFile File(Folder, TEXT("Cached.ini"), "[A]\nKey=old\n");
	TestEqualSensitive(TEXT("as first read"), *File.Read(TEXT("A")), TEXT("Key=old"));
	Folder.Write(TEXT("Cached.ini"), "[A]\nKey=new\n");
	VelmorantTests::RecordBelief(*this, TEXT("a file read by path after this editor wrote it"), File.Read(TEXT("A")));
	GConfig->UnloadFile(File.Path);
	GConfig->LoadFile(File.Path);
	TestEqualSensitive(TEXT("loaded again, it is as it is on disk"), *File.Read(TEXT("A")), TEXT("Key=new"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantConfigBranchTest, "Velmorant.Engine.Config.MergedBranch", VelmorantTests::Flags)

bool FVelmorantConfigBranchTest::RunTest(const FString&)
{
	TArray<FString> Lines;
	if (TestTrue(TEXT("the engine's branch has collision profiles"), GConfig->GetSection(TEXT("/Script/Engine.CollisionProfile"), Lines, GEngineIni)))
	{
		TestFalse(TEXT("operators were carried out, and are not in its keys"), Lines.ContainsByPredicate([](const FString& Line) { return Line.StartsWith(TEXT("+")); }));
		TestTrue(TEXT("the stock profiles are there"), Lines.ContainsByPredicate([](const FString& Line) { return Line.Contains(TEXT("\"BlockAll\"")); }));
	}
	return true;
}

#endif
