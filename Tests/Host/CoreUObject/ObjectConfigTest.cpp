// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestSettings.h"

namespace ObjectConfigTest
{
	class ObjectConfig : public FObjectSystemTest
	{
	protected:
		static constexpr const char* DefaultFile = "Config/DefaultTestHouse.ini";
		static constexpr const char* UserFile = "Saved/Config/LinuxEditor/TestHouse.ini";

		static FTestFinish MakeFinish(const TCHAR* Name)
		{
			FTestFinish Finish;
			Finish.Name = Name;
			Finish.Gloss = ETestGloss::SemiGloss;
			return Finish;
		}
	};

	TEST_F(ObjectConfig, DefaultObjectsReadTheirSection)
	{
		Folder.Write(DefaultFile,
			"[/Script/TestObjects.TestSettings]\nOwner=\"  Ann \"\nFloors=12\nGloss=HighGloss\nDraft=5\n"
			"+Finishes=(Name=\"A\", Gloss=SemiGloss, Coats=((Pigment=\"P\",Kind=TC_Colour)))\n+Finishes=(Name=\"B\",HelpMessage=\"x, y\")\n");
		Restart();
		const UTestSettings* Settings = GetDefault<UTestSettings>();
		EXPECT_EQ(Settings->Owner, TEXT("  Ann "));
		EXPECT_EQ(Settings->Floors, 12);
		EXPECT_EQ(Settings->Gloss, ETestGloss::HighGloss);
		EXPECT_EQ(Settings->Draft, 0) << "not a config property";
		ASSERT_EQ(Settings->Finishes.Num(), 2);
		EXPECT_EQ(Settings->Finishes[0].Coats[0].Pigment, FName("P"));
		EXPECT_EQ(Settings->Finishes[1].HelpMessage, TEXT("x, y"));
		EXPECT_EQ(NewObject<UTestSettings>()->Floors, 12) << "objects start with what the file says";
	}

	TEST_F(ObjectConfig, DerivedClassesReadTheSectionsAboveThem)
	{
		Folder.Write(DefaultFile, "[/Script/TestObjects.TestSettings]\nFloors=12\nOwner=Ann\n[/Script/TestObjects.TestTowerSettings]\nFloors=40\nbLift=True\n");
		Restart();
		const UTestTowerSettings* Settings = GetDefault<UTestTowerSettings>();
		EXPECT_EQ(Settings->Floors, 40);
		EXPECT_EQ(Settings->Owner, TEXT("Ann"));
		EXPECT_TRUE(Settings->bLift);
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 12);
	}

	TEST_F(ObjectConfig, UnreadableValuesAreReportedAndLeaveTheDefault)
	{
		Folder.Write(DefaultFile, "[/Script/TestObjects.TestSettings]\nFloors=many\n+Finishes=(Name=\n+Finishes=(Name=\"B\")\nOwner=many\n");
		Restart();
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 1);
		EXPECT_EQ(GetDefault<UTestSettings>()->Finishes.Num(), 1);
		EXPECT_EQ(CountLogLines(TEXT("DefaultTestHouse.ini(2): [/Script/TestObjects.TestSettings] Floors: 'many' is no int32. Correct the value, or remove the line.")), 1);
	}

	TEST_F(ObjectConfig, TheDefaultFileGetsItsSectionAndKeepsEverythingElse)
	{
		Folder.Write(DefaultFile, "; mine\n[Other]\nA = 1\n\n[/Script/TestObjects.TestSettings]\n; of the house\nFloors=2\nForeign=x\n[Last]\nB=2\n");
		Restart();
		UTestSettings* Settings = GetMutableDefault<UTestSettings>();
		Settings->Owner = TEXT("Ann");
		Settings->Finishes = {MakeFinish(TEXT("A")), MakeFinish(TEXT("B"))};
		EXPECT_TRUE(Settings->TryUpdateDefaultConfigFile());
		const std::string Text = Folder.Read(DefaultFile);
		EXPECT_THAT(Text, testing::StartsWith("; mine\n[Other]\nA = 1\n\n[/Script/TestObjects.TestSettings]\n; of the house\nFloors=2\nForeign=x\n"));
		EXPECT_THAT(Text, testing::HasSubstr("\nOwner=Ann\n"));
		EXPECT_THAT(Text, testing::HasSubstr("\n+Finishes=(Name=\"A\",Gloss=SemiGloss,Surface=Wall,bWashable=False,Coats=,HelpMessage=\"\")\n+Finishes=(Name=\"B\","));
		EXPECT_THAT(Text, testing::EndsWith("[Last]\nB=2\n"));
		EXPECT_THAT(Text, testing::Not(testing::HasSubstr("Draft")));

		Restart();
		EXPECT_EQ(GetDefault<UTestSettings>()->Finishes.Num(), 2);
		EXPECT_TRUE(GetMutableDefault<UTestSettings>()->TryUpdateDefaultConfigFile());
		EXPECT_EQ(Folder.Read(DefaultFile), Text) << "writing the same again changes nothing";
	}

	TEST_F(ObjectConfig, RemovedElementsLeaveTheDefaultFile)
	{
		UTestSettings* Settings = GetMutableDefault<UTestSettings>();
		Settings->Finishes = {MakeFinish(TEXT("A")), MakeFinish(TEXT("B"))};
		Settings->TryUpdateDefaultConfigFile();
		Settings->Finishes.RemoveAt(0);
		Settings->TryUpdateDefaultConfigFile();
		Restart();
		ASSERT_EQ(GetDefault<UTestSettings>()->Finishes.Num(), 1);
		EXPECT_EQ(GetDefault<UTestSettings>()->Finishes[0].Name, FName("B"));
	}

	TEST_F(ObjectConfig, ASpecificFileIsWrittenInstead)
	{
		UTestSettings* Settings = GetMutableDefault<UTestSettings>();
		Settings->Floors = 3;
		EXPECT_TRUE(Settings->TryUpdateDefaultConfigFile(Folder.Get("Elsewhere.ini")));
		EXPECT_THAT(Folder.Read("Elsewhere.ini"), testing::HasSubstr("Floors=3\n"));
		EXPECT_FALSE(Folder.Exists(DefaultFile));
		EXPECT_EQ(Settings->GetDefaultConfigFilename(), Folder.Get(DefaultFile));
	}

	TEST_F(ObjectConfig, AFileThatCannotBeWrittenIsReported)
	{
		std::filesystem::create_directories(Folder.GetNative(DefaultFile));
		EXPECT_FALSE(GetMutableDefault<UTestSettings>()->TryUpdateDefaultConfigFile(FString(), false));
		EXPECT_EQ(CountLogLines(TEXT("Failed to write the settings")), 0);
		EXPECT_FALSE(GetMutableDefault<UTestSettings>()->TryUpdateDefaultConfigFile());
		EXPECT_EQ(CountLogLines(TEXT("Failed to write the settings")), 1);
	}

	TEST_F(ObjectConfig, TheUsersFileHoldsOnlyWhatDiffers)
	{
		Folder.Write(DefaultFile, "[/Script/TestObjects.TestSettings]\nOwner=Ann\nFloors=12\nGloss=Matt\n+Finishes=(Name=\"A\")\n");
		Restart();
		UTestSettings* Settings = NewObject<UTestSettings>();
		Settings->Floors = 13;
		Settings->Finishes = {MakeFinish(TEXT("B")), MakeFinish(TEXT("B"))};
		Settings->SaveConfig();
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 13) << "the default object follows";
		const std::string Text = Folder.Read(UserFile);
		EXPECT_THAT(Text, testing::HasSubstr("Floors=13\n"));
		EXPECT_THAT(Text, testing::Not(testing::HasSubstr("Owner")));
		EXPECT_THAT(Folder.Read(DefaultFile), testing::HasSubstr("Floors=12\n"));

		Restart();
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 13);
		EXPECT_EQ(GetDefault<UTestSettings>()->Owner, TEXT("Ann"));
		ASSERT_EQ(GetDefault<UTestSettings>()->Finishes.Num(), 2) << "the list replaces the one below, doubles included";
		EXPECT_EQ(GetDefault<UTestSettings>()->Finishes[1].Name, FName("B"));
	}

	TEST_F(ObjectConfig, ThePlatformsFileIsOneOfThoseThatTheUsersFileDiffersFrom)
	{
		Folder.Write(DefaultFile, "[/Script/TestObjects.TestSettings]\nFloors=12\nOwner=Ann\n+Finishes=(Name=\"A\")\n");
		Folder.Write("Config/Linux/LinuxTestHouse.ini", "[/Script/TestObjects.TestSettings]\nFloors=9\n!Finishes=ClearArray\n");
		Restart();
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 9);
		EXPECT_EQ(GetDefault<UTestSettings>()->Finishes.Num(), 0);
		UTestSettings* Settings = NewObject<UTestSettings>();
		Settings->Owner = TEXT("Bo");
		Settings->SaveConfig();
		const std::string Text = Folder.Read(UserFile);
		EXPECT_THAT(Text, testing::HasSubstr("Owner=Bo\n"));
		EXPECT_THAT(Text, testing::Not(testing::HasSubstr("Floors"))) << "as in the platform's file";

		Settings->Floors = 12;
		Settings->SaveConfig();
		Restart();
		EXPECT_EQ(GetDefault<UTestSettings>()->Floors, 12) << "the platform's file says something else";
	}
}
