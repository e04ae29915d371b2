// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "HostPackages.h"
#include "LevelTestEditor.h"
#include "LevelVariantSets.h"
#include "LevelVariantSetsActor.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Variant.h"
#include "VariantSet.h"

class VariantSets : public FLevelTestEditor
{
protected:
	VariantSets()
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Sets"));
		Asset = NewObject<ULevelVariantSets>(Package, TEXT("Sets"), RF_Public | RF_Standalone | RF_Transactional);
	}

	static UVariant* MakeVariant(const TCHAR* Text)
	{
		UVariant* Variant = NewObject<UVariant>(GetTransientPackage());
		Variant->SetDisplayText(FText::FromString(Text));
		return Variant;
	}

	static UVariantSet* MakeSet(const TCHAR* Text)
	{
		UVariantSet* Set = NewObject<UVariantSet>(GetTransientPackage());
		Set->SetDisplayText(FText::FromString(Text));
		return Set;
	}

	static std::string TextsOf(const UVariantSet& Set)
	{
		std::string Joined;
		for (const UVariant* Variant : Set.GetVariants())
		{
			Joined += Utf8(Variant->GetDisplayText().ToString()) + ";";
		}
		return Joined;
	}

	/** A set with variants A, B and C. */
	static UVariantSet* MakeAbc()
	{
		UVariantSet* Set = MakeSet(TEXT("Set"));
		Set->AddVariants({MakeVariant(TEXT("A")), MakeVariant(TEXT("B")), MakeVariant(TEXT("C"))});
		return Set;
	}

	/** The by-name look-up must always tell what a walk over the list would. */
	static void ExpectLookUpsAgree(UVariantSet& Set)
	{
		for (UVariant* Variant : Set.GetVariants())
		{
			const FString Text = Variant->GetDisplayText().ToString();
			UVariant* const* First = Set.GetVariants().FindByPredicate([&Text](UVariant* Other) { return Other->GetDisplayText().ToString() == Text; });
			ASSERT_NE(First, nullptr);
			EXPECT_EQ(Set.GetVariantByName(Text), *First) << Utf8(Text);
		}
	}

	ULevelVariantSets* Asset = nullptr;
};

TEST_F(VariantSets, LookUpsFollowEveryChangeOfText)
{
	UVariantSet* Set = MakeAbc();
	ASSERT_NE(Set->GetVariantByName(TEXT("B")), nullptr); // makes the index
	UVariant* B = Set->GetVariants()[1];
	B->SetDisplayText(FText::FromString(TEXT("Z")));
	EXPECT_EQ(Set->GetVariantByName(TEXT("B")), nullptr);
	EXPECT_EQ(Set->GetVariantByName(TEXT("z")), B);

	UVariant* C = Set->GetVariants()[2];
	UVariant* A = Set->GetVariants()[0];
	C->SetDisplayText(FText::FromString(TEXT("Same")));
	A->SetDisplayText(FText::FromString(TEXT("same")));
	EXPECT_EQ(Set->GetVariantByName(TEXT("SAME")), A) << "the first in the list, not the first that got the text";
	A->SetDisplayText(FText::FromString(TEXT("Other")));
	EXPECT_EQ(Set->GetVariantByName(TEXT("SAME")), C);
}

TEST_F(VariantSets, LookUpsFollowEveryChangeOfMembership)
{
	UVariantSet* Set = MakeAbc();
	ASSERT_NE(Set->GetVariantByName(TEXT("B")), nullptr);
	UVariant* A = Set->GetVariants()[0];
	Set->AddVariants({MakeVariant(TEXT("First")), MakeVariant(TEXT("Second"))}, 0);
	EXPECT_EQ(TextsOf(*Set), "First;Second;A;B;C;");
	ExpectLookUpsAgree(*Set);
	Set->RemoveVariants({A});
	EXPECT_EQ(TextsOf(*Set), "First;Second;B;C;");
	EXPECT_EQ(Set->GetVariantByName(TEXT("A")), nullptr);
	EXPECT_EQ(A->GetParent(), nullptr);
	ExpectLookUpsAgree(*Set);
}

TEST_F(VariantSets, PutsNewcomersWhereTheIndexSays)
{
	struct FCase
	{
		const char* Behaviour;
		int32 Index;
		const char* Expected;
	};
	const FCase Cases[] = {
		{"-1 appends", INDEX_NONE, "A;B;C;X;"},
		{"0 puts in front", 0, "X;A;B;C;"},
		{"in between", 2, "A;B;X;C;"},
		{"behind the last", 3, "A;B;C;X;"},
		{"too large appends", 99, "A;B;C;X;"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		UVariantSet* Set = MakeAbc();
		Set->AddVariants({MakeVariant(TEXT("X"))}, Case.Index);
		EXPECT_EQ(TextsOf(*Set), Case.Expected);
		ExpectLookUpsAgree(*Set);
	}
}

TEST_F(VariantSets, MovesWhatIsAlreadyAMember)
{
	UVariantSet* Set = MakeAbc();
	Set->AddVariants({Set->GetVariants()[0]});
	EXPECT_EQ(TextsOf(*Set), "B;C;A;");
	Set->AddVariants({Set->GetVariants()[2], Set->GetVariants()[2]}, 1);
	EXPECT_EQ(TextsOf(*Set), "B;A;C;") << "given twice, it still stands there once, under its own text";
	ExpectLookUpsAgree(*Set);
}

TEST_F(VariantSets, TakesAVariantOutOfTheSetItWasIn)
{
	UVariantSet* From = MakeAbc();
	UVariantSet* To = MakeSet(TEXT("To"));
	UVariant* B = From->GetVariantByName(TEXT("B"));
	To->AddVariants({B, nullptr});
	EXPECT_EQ(TextsOf(*From), "A;C;");
	EXPECT_EQ(TextsOf(*To), "B;");
	EXPECT_EQ(From->GetVariantByName(TEXT("B")), nullptr);
	EXPECT_EQ(B->GetParent(), To);
}

TEST_F(VariantSets, GivesANewcomerAUniqueTextWhenItsOwnIsTaken)
{
	UVariantSet* Set = MakeAbc();
	Set->AddVariants({MakeVariant(TEXT("a")), MakeVariant(TEXT("New")), MakeVariant(TEXT("new")), MakeVariant(TEXT("A"))});
	EXPECT_EQ(TextsOf(*Set), "A;B;C;a 1;New;new 1;A 2;");
	ExpectLookUpsAgree(*Set);
	Set->GetVariantByName(TEXT("A 2"))->SetDisplayText(FText::FromString(TEXT("Other")));
	Set->RemoveVariants({Set->GetVariantByName(TEXT("a 1"))});
	Set->AddVariants({MakeVariant(TEXT("A")), MakeVariant(TEXT("a"))});
	EXPECT_EQ(TextsOf(*Set), "A;B;C;New;new 1;Other;A 1;a 2;") << "numbers that a removal and a change of text made free";
}

TEST_F(VariantSets, ObjectNamesThatClashDoNotStandInTheWay)
{
	UVariantSet* Set = MakeSet(TEXT("Set"));
	UVariant* Mine = NewObject<UVariant>(Set, TEXT("Oak"));
	UVariant* Other = NewObject<UVariant>(GetTransientPackage(), TEXT("Oak"));
	Set->AddVariants({Mine, Other});
	EXPECT_EQ(Set->GetVariants().Num(), 2);
	EXPECT_EQ(Other->GetOuter(), Set);
	EXPECT_NE(Mine->GetFName(), Other->GetFName());
}

TEST_F(VariantSets, SaveAndLoadKeepOrderTextsAndLookUps)
{
	UVariantSet* Kitchen = MakeAbc();
	Kitchen->SetDisplayText(FText::FromString(TEXT("Küche - Front")));
	Asset->AddVariantSets({Kitchen, MakeSet(TEXT("Bath"))});
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded());
	Restart();
	ULevelVariantSets* Loaded = Cast<ULevelVariantSets>(HostPackages::LoadAsset(TEXT("/Game/Sets")));
	ASSERT_NE(Loaded, nullptr);
	ASSERT_EQ(Loaded->GetVariantSets().Num(), 2);
	UVariantSet* LoadedKitchen = Loaded->GetVariantSetByName(TEXT("küche - front"));
	ASSERT_NE(LoadedKitchen, nullptr);
	EXPECT_EQ(LoadedKitchen->GetParent(), Loaded);
	EXPECT_EQ(TextsOf(*LoadedKitchen), "A;B;C;");
	ExpectLookUpsAgree(*LoadedKitchen);
	EXPECT_EQ(Loaded->GetVariantSet(1), Loaded->GetVariantSetByName(TEXT("Bath")));
}

TEST_F(VariantSets, ActorLoadsItsAssetOnlyWhenAsked)
{
	Asset->AddVariantSets({MakeAbc()});
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded());
	Restart();
	ALevelVariantSetsActor* Actor = GetWorld().SpawnActor<ALevelVariantSetsActor>();
	EXPECT_EQ(Actor->GetLevelVariantSets(true), nullptr) << "no path yet";
	Actor->LevelVariantSets = FSoftObjectPath(FString(TEXT("/Game/Sets.Sets")));
	EXPECT_EQ(Actor->GetLevelVariantSets(), nullptr);
	ULevelVariantSets* Loaded = Actor->GetLevelVariantSets(true);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Actor->GetLevelVariantSets(), Loaded);
	Actor->SetLevelVariantSets(nullptr);
	EXPECT_TRUE(Actor->LevelVariantSets.IsNull());
}

TEST_F(VariantSets, UndoTakesThemApartAgainAndLookUpsFollow)
{
	const auto Make = [](const TCHAR* SetText, const TCHAR* VariantText) {
		UVariantSet* Set = NewObject<UVariantSet>(GetTransientPackage(), NAME_None, RF_Transactional);
		UVariant* Variant = NewObject<UVariant>(GetTransientPackage(), NAME_None, RF_Transactional);
		Variant->SetDisplayText(FText::FromString(VariantText));
		Set->SetDisplayText(FText::FromString(SetText));
		Set->AddVariants({Variant});
		return Set;
	};
	Asset->AddVariantSets({Make(TEXT("First"), TEXT("Oak"))});
	UVariantSet* First = Asset->GetVariantSet(0);
	ASSERT_NE(First->GetVariantByName(TEXT("Oak")), nullptr); // makes the index
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Change")));
		First->GetVariants()[0]->SetDisplayText(FText::FromString(TEXT("Ash")));
		First->SetDisplayText(FText::FromString(TEXT("Renamed")));
		Asset->AddVariantSets({Make(TEXT("Second"), TEXT("Stone"))}, 0);
	}
	UVariantSet* Second = Asset->GetVariantSet(0);
	for (const bool bAgain : {false, true})
	{
		SCOPED_TRACE(bAgain);
		ASSERT_TRUE(GEditor->UndoTransaction());
		EXPECT_EQ(Asset->GetVariantSets().Num(), 1);
		EXPECT_EQ(Asset->GetVariantSetByName(TEXT("First")), First);
		EXPECT_EQ(Asset->GetVariantSetByName(TEXT("Renamed")), nullptr);
		EXPECT_EQ(Asset->GetVariantSetByName(TEXT("Second")), nullptr);
		EXPECT_EQ(Second->GetParent(), nullptr);
		EXPECT_EQ(First->GetVariantByName(TEXT("Oak")), First->GetVariants()[0]);
		ExpectLookUpsAgree(*First);

		ASSERT_TRUE(GEditor->RedoTransaction());
		EXPECT_EQ(Asset->GetVariantSetByName(TEXT("Second")), Second);
		EXPECT_EQ(Asset->GetVariantSetByName(TEXT("Renamed")), First);
		EXPECT_EQ(Second->GetParent(), Asset);
		EXPECT_EQ(TextsOf(*Second), "Stone;");
		EXPECT_EQ(First->GetVariantByName(TEXT("Ash")), First->GetVariants()[0]);
		EXPECT_EQ(First->GetVariantByName(TEXT("Oak")), nullptr);
	}
}

TEST_F(VariantSets, CanBeUndoneOnceTheyAreLoadedFromAFile)
{
	// As earlier versions made and saved them: without the flag, and without a word of it in the file.
	Asset->AddVariantSets({MakeAbc()});
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded());
	std::string File = Project.Read("Content/Sets.uasset.json");
	const std::string Flags = "\"Flags\": \"None\",";
	for (size_t At = File.find(Flags); At != std::string::npos; At = File.find(Flags))
	{
		File.erase(At, Flags.size());
	}
	Project.Write("Content/Sets.uasset.json", File);
	Restart();
	Asset = CastChecked<ULevelVariantSets>(HostPackages::LoadAsset(TEXT("/Game/Sets")));
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Change")));
		Asset->GetVariantSet(0)->SetDisplayText(FText::FromString(TEXT("Other")));
	}
	GEditor->UndoTransaction();
	EXPECT_EQ(Utf8(Asset->GetVariantSet(0)->GetDisplayText().ToString()), "Set");
}
