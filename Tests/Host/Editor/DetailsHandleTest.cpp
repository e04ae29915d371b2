// Copyright Velmorant. All Rights Reserved.

#include "DetailsTestEditor.h"
#include "UObject/UnrealType.h"

class DetailsHandle : public FDetailsTestEditor
{
protected:
	/** "Name=text" of all children, a blank between. */
	static std::string Children(const TSharedPtr<IPropertyHandle>& Handle)
	{
		std::string Text;
		uint32 Index = 0;
		while (const TSharedPtr<IPropertyHandle> Child = Handle->GetChildHandle(Index++))
		{
			FString Value;
			Child->GetValueAsFormattedString(Value);
			Text += Utf8(Child->GetProperty()->GetName()) + "=" + Utf8(Value) + " ";
		}
		return Text;
	}
};

TEST_F(DetailsHandle, ReadsAndWritesEachTypeAsItself)
{
	const FHostDetailsView View(One());
	const auto Set = [&View](const TCHAR* Path, const auto& Value) { return View.FindHandle(Path)->SetValue(Value); };
	EXPECT_EQ(Set(TEXT("Count"), int32(41)), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Small"), uint8(200)), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Single"), 1.5f), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Double"), 2.25), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("bVisible"), false), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Text"), FString(TEXT("harbor"))), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Identifier"), FName(TEXT("Oak"))), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Caption"), FText::FromString(TEXT("Tower"))), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Finish"), uint8(1)), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Location"), FVector(1, 2, 3)), FPropertyAccess::Success);
	EXPECT_EQ(Set(TEXT("Sign.Icon.IconName"), FName(TEXT("anchor"))), FPropertyAccess::Success);

	EXPECT_EQ(First->Count, 41);
	EXPECT_EQ(First->Small, 200);
	EXPECT_EQ(First->Single, 1.5f);
	EXPECT_EQ(First->Double, 2.25);
	EXPECT_FALSE(First->bVisible);
	EXPECT_EQ(First->Text, TEXT("harbor"));
	EXPECT_EQ(First->Identifier, FName(TEXT("Oak")));
	EXPECT_EQ(Utf8(First->Caption), "Tower");
	EXPECT_EQ(First->Finish, ETestFinish::Glossy);
	EXPECT_EQ(First->Location, FVector(1, 2, 3));
	EXPECT_EQ(First->Sign.Icon.IconName, FName(TEXT("anchor")));

	uint8 Finish = 0;
	FName IconName;
	FVector Location(0.0);
	EXPECT_EQ(View.FindHandle(TEXT("Finish"))->GetValue(Finish), FPropertyAccess::Success);
	EXPECT_EQ(View.FindHandle(TEXT("Sign.Icon.IconName"))->GetValue(IconName), FPropertyAccess::Success);
	EXPECT_EQ(View.FindHandle(TEXT("Location"))->GetValue(Location), FPropertyAccess::Success);
	EXPECT_EQ(Finish, 1);
	EXPECT_EQ(IconName, FName(TEXT("anchor")));
	EXPECT_EQ(Location, FVector(1, 2, 3));
}

TEST_F(DetailsHandle, FailsForEveryOtherType)
{
	const FHostDetailsView View(One());
	int32 Integer = 99;
	uint8 Byte = 99;
	FString String = TEXT("old");
	FName Name = TEXT("old");
	double Double = 99;
	EXPECT_EQ(View.FindHandle(TEXT("Finish"))->GetValue(Integer), FPropertyAccess::Fail) << "an enum is read as what stores it";
	EXPECT_EQ(View.FindHandle(TEXT("Count"))->GetValue(Byte), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Single"))->GetValue(Double), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Identifier"))->GetValue(String), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Text"))->GetValue(Name), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Sign"))->GetValue(String), FPropertyAccess::Fail);
	EXPECT_EQ(Integer, 99);
	EXPECT_EQ(Byte, 99);
	EXPECT_EQ(Double, 99);
	EXPECT_EQ(String, TEXT("old"));
	EXPECT_EQ(Name, FName(TEXT("old")));

	EXPECT_EQ(View.FindHandle(TEXT("Count"))->SetValue(uint8(1)), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Identifier"))->SetValue(TEXT("text")), FPropertyAccess::Fail);
	EXPECT_EQ(View.FindHandle(TEXT("Finish"))->SetValue(int32(1)), FPropertyAccess::Fail);
	EXPECT_TRUE(First->Told.IsEmpty());
}

TEST_F(DetailsHandle, WhatIsNotReadStaysAsItWas)
{
	Second->Count = 8;
	const FHostDetailsView View(Both());
	int32 Count = 99;
	FString Text = TEXT("old");
	EXPECT_EQ(View.FindHandle(TEXT("Count"))->GetValue(Count), FPropertyAccess::MultipleValues);
	EXPECT_EQ(View.FindHandle(TEXT("Count"))->GetValueAsFormattedString(Text), FPropertyAccess::MultipleValues);
	EXPECT_EQ(Count, 99);
	EXPECT_EQ(Text, TEXT("old"));
	FString String;
	EXPECT_EQ(View.FindHandle(TEXT("Count"))->GetValue(String), FPropertyAccess::Fail) << "of another type, however many";
}

TEST_F(DetailsHandle, ValuesReadAndWriteAsText)
{
	const FHostDetailsView View(One());
	const TSharedPtr<IPropertyHandle> Tint = View.FindHandle(TEXT("Sign.Icon.Tint"));
	FString Text;
	EXPECT_EQ(Tint->GetValueAsFormattedString(Text), FPropertyAccess::Success);
	EXPECT_EQ(Text, TEXT("(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"));
	EXPECT_EQ(Tint->SetValueFromFormattedString(TEXT("(R=0.25,B=1)")), FPropertyAccess::Success);
	EXPECT_EQ(First->Sign.Icon.Tint, FLinearColor(0.25f, 0.5f, 1.f, 1.f)) << "what the text leaves out stays";

	struct FCase
	{
		const TCHAR* Path;
		const TCHAR* Text;
		FPropertyAccess::Result Result;
		const TCHAR* After;
	};
	const FCase Cases[] = {
		{TEXT("Count"), TEXT("-12"), FPropertyAccess::Success, TEXT("-12")},
		{TEXT("Count"), TEXT("twelve"), FPropertyAccess::Fail, TEXT("-12")},
		{TEXT("Count"), TEXT("12 apples"), FPropertyAccess::Fail, TEXT("-12")},
		{TEXT("Count"), TEXT("99999999999"), FPropertyAccess::Fail, TEXT("-12")},
		{TEXT("Small"), TEXT("300"), FPropertyAccess::Fail, TEXT("0")},
		{TEXT("Small"), TEXT("255"), FPropertyAccess::Success, TEXT("255")},
		{TEXT("Finish"), TEXT("Glossy"), FPropertyAccess::Success, TEXT("Glossy")},
		{TEXT("Finish"), TEXT("Rough"), FPropertyAccess::Fail, TEXT("Glossy")},
		{TEXT("Sign.Icon.Tint"), TEXT("(R=inf)"), FPropertyAccess::Fail, TEXT("(R=0.250000,G=0.500000,B=1.000000,A=1.000000)")},
		{TEXT("Sign.Icon.Tint.R"), TEXT("nan"), FPropertyAccess::Fail, TEXT("0.250000")},
		{TEXT("Sign.Icon.Tint.R"), TEXT("1e39"), FPropertyAccess::Fail, TEXT("0.250000")},
		{TEXT("bVisible"), TEXT("False"), FPropertyAccess::Success, TEXT("False")},
		{TEXT("Text"), TEXT("a, (b"), FPropertyAccess::Success, TEXT("a, (b")},
		{TEXT("Sign.Icon"), TEXT("(Font=\"Hill\",bUseContrast=True"), FPropertyAccess::Fail,
			TEXT("(Font=\"Harbor\",IconName=\"None\",Tint=(R=0.250000,G=0.500000,B=1.000000,A=1.000000),bUseContrast=False,Revision=0)")},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Utf8(FString(Case.Path)) + " = " + Utf8(FString(Case.Text)));
		const TSharedPtr<IPropertyHandle> Handle = View.FindHandle(Case.Path);
		EXPECT_EQ(Handle->SetValueFromFormattedString(Case.Text), Case.Result);
		FString After;
		Handle->GetValueAsFormattedString(After);
		EXPECT_EQ(After, Case.After);
	}
}

TEST_F(DetailsHandle, FindsChildrenByNameAndByPlace)
{
	const FHostDetailsView View(One());
	const TSharedPtr<IPropertyHandle> Sign = View.FindHandle(TEXT("Sign"));
	EXPECT_TRUE(Sign->GetChildHandle(FName(TEXT("Icon"))).IsValid());
	EXPECT_TRUE(Sign->GetChildHandle(FName(TEXT("IconName"))).IsValid()) << "one level down";
	EXPECT_FALSE(Sign->GetChildHandle(FName(TEXT("IconName")), false).IsValid());
	EXPECT_FALSE(Sign->GetChildHandle(FName(TEXT("Lamp"))).IsValid());
	EXPECT_FALSE(Sign->GetChildHandle(FName(TEXT("Revision"))).IsValid()) << "not for people to edit";
	EXPECT_FALSE(Sign->GetChildHandle(uint32(2)).IsValid());
	EXPECT_EQ(Children(Sign->GetChildHandle(uint32(1))),
		"Font=Harbor IconName=None Tint=(R=1.000000,G=0.500000,B=0.000000,A=1.000000) bUseContrast=False ");
	EXPECT_FALSE(View.FindHandle(TEXT("NotShown")).IsValid());
	EXPECT_FALSE(View.FindHandle(TEXT("")).IsValid());
}

TEST_F(DetailsHandle, ReachesElementsOfContainers)
{
	First->Icons.SetNum(2);
	First->IconsByName.Add(TEXT("Oak"), FTestIcon());
	First->Tags = {TEXT("red"), TEXT("green")};
	FHostDetailsView View(One());
	EXPECT_EQ(View.FindHandle(TEXT("Icons[1].IconName"))->SetValue(FName(TEXT("anchor"))), FPropertyAccess::Success);
	EXPECT_EQ(First->Icons[1].IconName, FName(TEXT("anchor")));
	EXPECT_EQ(View.FindHandle(TEXT("IconsByName[Oak].Font"))->SetValue(FName(TEXT("Hill"))), FPropertyAccess::Success);
	EXPECT_EQ(First->IconsByName.FindRef(TEXT("Oak")).Font, FName(TEXT("Hill")));
	EXPECT_EQ(Children(View.FindHandle(TEXT("Tags"))), "Tags=red Tags=green ");
	EXPECT_EQ(View.FindHandle(TEXT("Tags[red]"))->SetValue(FString(TEXT("blue"))), FPropertyAccess::Fail) << "a set finds its elements by value";
	EXPECT_FALSE(View.FindHandle(TEXT("Icons[2]")).IsValid());

	const TSharedPtr<IPropertyHandle> Last = View.FindHandle(TEXT("Icons[1]"));
	First->Icons.SetNum(1);
	EXPECT_FALSE(Last->IsValidHandle());
	EXPECT_EQ(Last->GetProperty(), nullptr);
	FString Text;
	EXPECT_EQ(Last->GetValueAsFormattedString(Text), FPropertyAccess::Fail);
	First->Icons.SetNum(2);
	EXPECT_TRUE(Last->IsValidHandle()) << "a handle means the place, not the value";
}

TEST_F(DetailsHandle, ObjectsWithUnlikeContainersHaveTheCommonElements)
{
	First->Icons.SetNum(3);
	Second->Icons.SetNum(2);
	First->IconsByName.Add(TEXT("Oak"), FTestIcon());
	Second->IconsByName.Add(TEXT("Elm"), FTestIcon());
	const FHostDetailsView View(Both());
	const auto CountChildren = [&View](const TCHAR* Path) {
		uint32 Num = 0;
		while (View.FindHandle(Path)->GetChildHandle(Num).IsValid())
		{
			++Num;
		}
		return Num;
	};
	EXPECT_EQ(CountChildren(TEXT("Icons")), 2u);
	EXPECT_EQ(CountChildren(TEXT("IconsByName")), 0u);
	Second->IconsByName.Add(TEXT("Oak"), FTestIcon());
	First->IconsByName.Add(TEXT("Elm"), FTestIcon());
	First->IconsByName[TEXT("Elm")].Font = TEXT("Hill");
	EXPECT_EQ(CountChildren(TEXT("IconsByName")), 2u);
	FName Font;
	EXPECT_EQ(View.FindHandle(TEXT("IconsByName[Elm].Font"))->GetValue(Font), FPropertyAccess::MultipleValues);
	EXPECT_EQ(View.FindHandle(TEXT("IconsByName[Oak].Font"))->GetValue(Font), FPropertyAccess::Success) << "keys count, not places";
}

TEST_F(DetailsHandle, ObjectPropertiesTakeOnlyTheirClass)
{
	const FHostDetailsView View(One());
	const TSharedPtr<IPropertyHandle> Part = View.FindHandle(TEXT("Part"));
	UObject* const Right = NewObject<UTestPart>(First.Get());
	UObject* const Wrong = NewObject<UTestAsset>(First.Get());
	EXPECT_EQ(Part->SetValue(Wrong), FPropertyAccess::Fail);
	EXPECT_EQ(Part->SetValue(Right), FPropertyAccess::Success);
	EXPECT_EQ(First->Part.Get(), Right);
	const UObject* Read = nullptr;
	EXPECT_EQ(Part->GetValue(Read), FPropertyAccess::Success);
	EXPECT_EQ(Read, Right);
	EXPECT_EQ(Part->SetValue(static_cast<UObject*>(nullptr)), FPropertyAccess::Success);
	EXPECT_EQ(First->Part.Get(), nullptr);
}

TEST_F(DetailsHandle, SoftReferencesReadAsTheLoadedObject)
{
	WriteContent("Lamp.uasset.json", MakeTestAssetFile("Lamp", "\"Count\": 3"));
	HostPackages::Mount(TEXT("/Game/"), Project.Get("Content"));
	First->Soft = TSoftObjectPtr<UTestAsset>(FSoftObjectPath(FString(TEXT("/Game/Lamp.Lamp"))));
	const FHostDetailsView View(One());
	UObject* Lamp = nullptr;
	EXPECT_EQ(View.FindHandle(TEXT("Soft"))->GetValue(Lamp), FPropertyAccess::Success);
	UTestAsset* const Loaded = LoadTestAsset(TEXT("/Game/Lamp"));
	EXPECT_EQ(Lamp, Loaded);
	FAssetData Data;
	EXPECT_EQ(View.FindHandle(TEXT("Soft"))->GetValue(Data), FPropertyAccess::Success);
	EXPECT_EQ(Data.PackageName, Loaded != nullptr ? FName(TEXT("/Game/Lamp")) : FName());
}

TEST_F(DetailsHandle, HasMembersOfBaseStructs)
{
	const FHostDetailsView View({NewObject<UTestSpecialDetails>()});
	EXPECT_EQ(View.FindHandle(TEXT("BigIcon.Scale"))->GetProperty()->GetFName(), FName(TEXT("Scale")));
	EXPECT_TRUE(View.FindHandle(TEXT("BigIcon.IconName")).IsValid());
}

TEST_F(DetailsHandle, ObjectsOfDifferentClassesShareTheCommonProperties)
{
	const TStrongObjectPtr<UTestSpecialDetails> Special(NewObject<UTestSpecialDetails>());
	const FHostDetailsView View({Special.Get(), First.Get(), nullptr, First.Get()});
	EXPECT_EQ(View.GetObjects().Num(), 2);
	EXPECT_FALSE(View.FindHandle(TEXT("BigIcon")).IsValid());
	EXPECT_EQ(View.FindHandle(TEXT("Count"))->SetValue(int32(4)), FPropertyAccess::Success);
	EXPECT_EQ(Special->Count, 4);
	EXPECT_EQ(First->Count, 4);
}

TEST_F(DetailsHandle, LosesItsValueWithItsObjectOrItsPanel)
{
	TSharedPtr<IPropertyHandle> Count;
	{
		const FHostDetailsView View(Both());
		Count = View.FindHandle(TEXT("Count"));
		TWeakObjectPtr<UTestDetails> Weak(Second.Get());
		Second->ClearFlags(RF_Standalone);
		Second.Reset();
		HostObjects::CollectGarbage();
		EXPECT_FALSE(Weak.IsValid()) << "the panel keeps nothing alive";
		int32 Value = 99;
		EXPECT_FALSE(Count->IsValidHandle());
		EXPECT_EQ(Count->GetValue(Value), FPropertyAccess::Fail);
		EXPECT_EQ(Count->SetValue(int32(1)), FPropertyAccess::Fail);
		EXPECT_EQ(First->Count, 7);
		Tick();
		ASSERT_TRUE(View.FindHandle(TEXT("Count")).IsValid()) << "the other object is still shown";
		Count = View.FindHandle(TEXT("Count"));
		EXPECT_TRUE(Count->IsValidHandle());
	}
	EXPECT_FALSE(Count->IsValidHandle());
	EXPECT_EQ(Count->GetProperty(), nullptr);
}
