// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "LevelVariantSets.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "Variant.h"
#include "VariantSet.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VariantsTest
{
	template<typename VariantType>
	VariantType* Make(const TCHAR* Text)
	{
		VariantType* Variant = NewObject<VariantType>(GetTransientPackage(), NAME_None, RF_Transactional);
		Variant->SetDisplayText(FText::FromString(Text));
		return Variant;
	}

	/** Level variant sets with one set "Hall" in it. */
	UVariantSet* MakeSet(const FVelmorantTestContent& Content)
	{
		ULevelVariantSets* Sets = Content.Make<ULevelVariantSets>(TEXT("Sets"));
		UVariantSet* Set = Make<UVariantSet>(TEXT("Hall"));
		Sets->AddVariantSets({Set});
		return Set;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantVariantNamesTest, "Velmorant.Engine.Variants.FoundByName", VelmorantTests::Flags)

bool FVelmorantVariantNamesTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UVariantSet* Set = VariantsTest::MakeSet(Content);
	UVariant* Oak = VariantsTest::Make<UVariant>(TEXT("Oak"));
	Set->AddVariants({Oak, VariantsTest::Make<UVariant>(TEXT("Ash"))});
	ULevelVariantSets* Sets = Set->GetParent();
	if (!TestNotNull(TEXT("a set that was added has a parent"), Sets))
	{
		return false;
	}
	TestSamePtr(TEXT("sets are found by their text, whatever the case"), Sets->GetVariantSetByName(TEXT("hALL")), Set);
	TestSamePtr(TEXT("variants likewise"), Set->GetVariantByName(TEXT("OAK")), Oak);
	TestNull(TEXT("a part of a text is no name"), Set->GetVariantByName(TEXT("Oa")));
	Oak->SetDisplayText(INVTEXT("Birch"));
	TestNull(TEXT("the old text is forgotten"), Set->GetVariantByName(TEXT("Oak")));
	TestSamePtr(TEXT("the new one is known at once"), Set->GetVariantByName(TEXT("Birch")), Oak);
	VelmorantTests::RecordBelief(*this, TEXT("display text of a new variant"), NewObject<UVariant>()->GetDisplayText().ToString());
	VelmorantTests::RecordBelief(*this, TEXT("display text of a new variant set"), NewObject<UVariantSet>()->GetDisplayText().ToString());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantVariantsAppendedTest, "Velmorant.Engine.Variants.Appended", VelmorantTests::Flags)

bool FVelmorantVariantsAppendedTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UVariantSet* Set = VariantsTest::MakeSet(Content);
	UVariant* Oak = VariantsTest::Make<UVariant>(TEXT("Oak"));
	UVariant* Ash = VariantsTest::Make<UVariant>(TEXT("Ash"));
	Set->AddVariants({Oak, Ash});
	TestEqual(TEXT("all are there"), Set->GetNumVariants(), 2);
	TestEqual(TEXT("in the order given"), Set->GetVariantIndex(Ash), 1);
	TestSamePtr(TEXT("the objects themselves, taken over from the transient package"), Set->GetVariantByName(TEXT("Oak")), Oak);
	TestSamePtr<UObject>(TEXT("the set is their outer"), Oak->GetOuter(), Set);
	TestTrue(TEXT("they lie in the asset's package"), Oak->GetPackage() == Set->GetPackage());
	TestTrue(TEXT("and can be undone"), Oak->HasAnyFlags(RF_Transactional));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantVariantCollisionsTest, "Velmorant.Engine.Variants.TextsThatCollide", VelmorantTests::Flags)

bool FVelmorantVariantCollisionsTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UVariantSet* Set = VariantsTest::MakeSet(Content);
	UVariant* First = VariantsTest::Make<UVariant>(TEXT("Oak"));
	UVariant* Second = VariantsTest::Make<UVariant>(TEXT("Oak"));
	Set->AddVariants({First});
	Set->AddVariants({Second});
	TestEqual(TEXT("none is dropped"), Set->GetNumVariants(), 2);
	TestSamePtr(TEXT("the text still finds the first"), Set->GetVariantByName(TEXT("Oak")), First);
	VelmorantTests::RecordBelief(*this, TEXT("display text of a second variant Oak after adding"), Second->GetDisplayText().ToString());
	UVariant* Third = VariantsTest::Make<UVariant>(TEXT("Third"));
	Set->AddVariants({Third});
	Third->SetDisplayText(INVTEXT("Oak"));
	VelmorantTests::RecordBelief(*this, TEXT("display text of a variant that is renamed to one that is there"), Third->GetDisplayText().ToString());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantVariantsDirtyTest, "Velmorant.Engine.Variants.DirtyPackages", VelmorantTests::Flags)

bool FVelmorantVariantsDirtyTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UVariantSet* Set = VariantsTest::MakeSet(Content);
	UPackage* Package = Set->GetPackage();
	TestTrue(TEXT("adding a set dirties"), Package->IsDirty());
	Package->SetDirtyFlag(false);
	UVariant* Oak = VariantsTest::Make<UVariant>(TEXT("Oak"));
	Set->AddVariants({Oak});
	TestTrue(TEXT("adding a variant dirties"), Package->IsDirty());
	Package->SetDirtyFlag(false);
	Oak->SetDisplayText(INVTEXT("Ash"));
	TestTrue(TEXT("another text dirties"), Package->IsDirty());
	Package->SetDirtyFlag(false);
	Oak->SetDisplayText(INVTEXT("Ash"));
	VelmorantTests::RecordBelief(*this, TEXT("the same display text again dirties"), Package->IsDirty());
	Package->SetDirtyFlag(false);
	Set->AddVariants({});
	VelmorantTests::RecordBelief(*this, TEXT("adding no variants dirties"), Package->IsDirty());
	return true;
}

#endif
