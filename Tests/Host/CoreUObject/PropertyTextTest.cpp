// Copyright Velmorant. All Rights Reserved.

#include "ObjectSystemTest.h"
#include "TestWall.h"
#include "UObject/UnrealType.h"

namespace PropertyTextTest
{
	class PropertyText : public FObjectSystemTest
	{
	protected:
		std::string Export(const TCHAR* Name) const
		{
			FString Text;
			const FProperty* Property = Wall->GetClass()->FindPropertyByName(Name);
			const void* Value = Property->ContainerPtrToValuePtr(Wall);
			Property->ExportTextItem_Direct(Text, Value, Value, Wall, PPF_None);
			return Utf8(Text);
		}

		/** What follows the value in Text; "refused" when it is none. */
		std::string Import(const TCHAR* Name, const FString& Text) const
		{
			const TCHAR* Rest = Wall->GetClass()->FindPropertyByName(Name)->ImportText_InContainer(*Text, Wall, Wall, PPF_None);
			return Rest ? Utf8(FString(Rest)) : "refused";
		}

		UTestWall* Wall = NewObject<UTestWall>();
	};

	TEST_F(PropertyText, ValuesAreWrittenAsConfigFilesHaveThem)
	{
		Wall->bLoadBearing = true;
		Wall->Thickness = 0.125f;
		Wall->Large = -5000000000;
		Wall->Label = TEXT("North");
		Wall->Note = TEXT("Say \"hi\"");
		Wall->Title = FText::AsLocalizable_Advanced(TEXT("Ns"), TEXT("Key"), TEXT("Wall"));
		Wall->Position = FVector(1, -2, 3.5);
		Wall->Marks = {1, 2, 3};
		Wall->Tags = {TEXT("A"), TEXT("B")};
		Wall->CoatsByRoom.Add(TEXT("Hall"), FTestCoat{TEXT("Ochre"), TC_Varnish});
		Wall->Kind = UTestOuterWall::StaticClass();
		Wall->Other = GetTransientPackage();

		EXPECT_EQ(Export(TEXT("bLoadBearing")), "True");
		EXPECT_EQ(Export(TEXT("Thickness")), "0.125000");
		EXPECT_EQ(Export(TEXT("Large")), "-5000000000");
		EXPECT_EQ(Export(TEXT("Label")), "North");
		EXPECT_EQ(Export(TEXT("Note")), "Say \"hi\"") << "plain at the top";
		EXPECT_EQ(Export(TEXT("Title")), "NSLOCTEXT(\"Ns\", \"Key\", \"Wall\")");
		EXPECT_EQ(Export(TEXT("Position")), "(X=1.000000,Y=-2.000000,Z=3.500000)");
		EXPECT_EQ(Export(TEXT("Tint")), "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)");
		EXPECT_EQ(Export(TEXT("Marks")), "(1,2,3)");
		EXPECT_EQ(Export(TEXT("Tags")), "(\"A\",\"B\")");
		EXPECT_EQ(Export(TEXT("CoatsByRoom")), "((\"Hall\", (Pigment=\"Ochre\",Kind=TC_Varnish)))");
		EXPECT_EQ(Export(TEXT("Kind")), "/Script/CoreUObject.Class'/Script/TestObjects.TestOuterWall'");
		EXPECT_EQ(Export(TEXT("Other")), "/Script/CoreUObject.Package'/Engine/Transient'");
		EXPECT_EQ(Export(TEXT("Door")), "None");
	}

	TEST_F(PropertyText, StructsNameTheirFieldsInOrderOfDeclaration)
	{
		Wall->Finish.Name = TEXT("Gloss \"1\"");
		Wall->Finish.Gloss = ETestGloss::HighGloss;
		Wall->Finish.Surface = ETestSurface::Ceiling;
		Wall->Finish.HelpMessage = TEXT("Two\nlines\\");
		EXPECT_EQ(Export(TEXT("Finish")), R"((Name="Gloss \"1\"",Gloss=HighGloss,Surface=Ceiling,bWashable=False,Coats=,HelpMessage="Two\nlines\\"))");

		Wall->Finish.Coats = {FTestCoat{TEXT("A"), TC_Colour}, FTestCoat{TEXT("B"), TC_Primer}};
		EXPECT_THAT(Export(TEXT("Finish")), testing::HasSubstr("Coats=((Pigment=\"A\",Kind=TC_Colour),(Pigment=\"B\",Kind=TC_Primer)),HelpMessage"));
	}

	TEST_F(PropertyText, WhatIsWrittenIsReadBackEqual)
	{
		Wall->Finish = FTestFinish{TEXT("It's"), ETestGloss::SemiGloss, ETestSurface::Ceiling, true, {FTestCoat{TEXT("A, (b)"), TC_Colour}}, TEXT("a\"b\\n\tc")};
		Wall->CoatsByRoom.Add(TEXT("Hall"), FTestCoat{TEXT("Ochre"), TC_Varnish});
		Wall->CoatsByRoom.Add(TEXT("Bath"), FTestCoat());
		Wall->Tags = {TEXT("x"), TEXT("y z")};
		Wall->Others = {Wall->Skirting.Get(), nullptr};
		Wall->Soft = Wall;
		UTestWall* Reader = NewObject<UTestWall>();
		for (TFieldIterator<FProperty> It(UTestWall::StaticClass()); It; ++It)
		{
			SCOPED_TRACE(Utf8(It->GetName()));
			FString Text;
			It->ExportTextItem_InContainer(Text, Wall, nullptr, nullptr, PPF_None);
			if (It->GetFName() == FName("Skirting"))
			{
				continue; // each has its own
			}
			const TCHAR* Rest = It->ImportText_InContainer(*Text, Reader, Reader, PPF_None);
			ASSERT_NE(Rest, nullptr) << Utf8(Text);
			EXPECT_EQ(*Rest, 0) << Utf8(FString(Rest));
			EXPECT_TRUE(It->Identical_InContainer(Wall, Reader)) << Utf8(Text);
		}
	}

	TEST_F(PropertyText, ReadingTakesWhatPeopleWrite)
	{
		EXPECT_EQ(Import(TEXT("Finish"), TEXT("( Name=\"A\", Gloss=ETestGloss::SemiGloss , Unknown=(x=(1),y=\")\"), Coats=((Pigment=\"P\")), bWashable=true ) rest")), " rest");
		EXPECT_EQ(Wall->Finish.Name, FName("A"));
		EXPECT_EQ(Wall->Finish.Gloss, ETestGloss::SemiGloss);
		EXPECT_TRUE(Wall->Finish.bWashable);
		ASSERT_EQ(Wall->Finish.Coats.Num(), 1);
		EXPECT_EQ(Import(TEXT("Finish"), TEXT("(Coats=,Name=Bare)")), "");
		EXPECT_EQ(Wall->Finish.Coats.Num(), 0) << "an empty text is an empty array";
		EXPECT_EQ(Wall->Finish.Name, FName("Bare"));
		EXPECT_EQ(Import(TEXT("Number"), TEXT("0x10")), "");
		EXPECT_EQ(Wall->Number, 16);
		EXPECT_EQ(Import(TEXT("Thickness"), TEXT("1e-1")), "");
		EXPECT_FLOAT_EQ(Wall->Thickness, 0.1f);
		EXPECT_EQ(Import(TEXT("Kind"), TEXT("/Script/TestObjects.TestOuterWall")), "");
		EXPECT_EQ(Wall->Kind.Get(), UTestOuterWall::StaticClass());
	}

	TEST_F(PropertyText, WhatDoesNotFitIsRefused)
	{
		const TPair<const TCHAR*, const TCHAR*> Cases[] = {
			{TEXT("bLoadBearing"), TEXT("perhaps")},
			{TEXT("Number"), TEXT("many")},
			{TEXT("Marks"), TEXT("(1,2")},
			{TEXT("Marks"), TEXT("1,2")},
			{TEXT("Finish"), TEXT("(Name=\"A)")},
			{TEXT("Finish"), TEXT("(Name=\"A\" Gloss=Matt)")},
			{TEXT("Finish"), TEXT("(Gloss=Wet)")},
			{TEXT("Finish"), TEXT("Name=A")},
			{TEXT("Kind"), TEXT("/Script/TestObjects.TestSkirting")},
			{TEXT("CoatsByRoom"), TEXT("((\"A\"))")},
		};
		for (const TPair<const TCHAR*, const TCHAR*>& Case : Cases)
		{
			EXPECT_EQ(Import(Case.Key, Case.Value), "refused") << Utf8(FString(Case.Value));
		}
	}

	TEST_F(PropertyText, FieldsEqualToTheDefaultCanBeLeftOut)
	{
		const FTestCoat Default;
		FTestCoat Coat;
		Coat.Kind = TC_Colour;
		FString Text;
		FTestCoat::StaticStruct()->ExportText(Text, &Coat, &Default, nullptr, PPF_None, nullptr);
		EXPECT_EQ(Utf8(Text), "(Kind=TC_Colour)");
	}
}
