// Copyright Velmorant. All Rights Reserved.

#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/ListView.h"
#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantComboBoxStringTest, "Velmorant.Engine.Umg.ComboBoxString", VelmorantTests::Flags)

bool FVelmorantComboBoxStringTest::RunTest(const FString&)
{
	TArray<FString> Diary;
	UVelmorantTestListener* Listener = NewObject<UVelmorantTestListener>();
	Listener->Diary = &Diary;
	UComboBoxString* Box = NewObject<UComboBoxString>();
	Box->AddOption(TEXT("Harbor"));
	Box->AddOption(TEXT("Quay"));
	Box->OnSelectionChanged.AddDynamic(Listener, &UVelmorantTestListener::HearOption);
	Box->SetSelectedOption(TEXT("Quay"));
	Box->SetSelectedOption(TEXT("Quay"));
	Box->SetSelectedIndex(1);
	Box->SetSelectedOption(TEXT("Nowhere"));
	Box->SetSelectedIndex(17);
	TestEqualSensitive(TEXT("the option that is there stays"), *Box->GetSelectedOption(), TEXT("Quay"));
	TestEqual(TEXT("at its index"), Box->GetSelectedIndex(), 1);
	TestEqualSensitive(TEXT("another option tells once, and directly"), *FString::Join(Diary, TEXT(", ")), TEXT("Quay directly"));
	TestEqual(TEXT("what is not there has no index"), Box->FindOptionIndex(TEXT("Nowhere")), -1);
	VelmorantTests::RecordBelief(*this, TEXT("index of a combo box's option in other case"), Box->FindOptionIndex(TEXT("QUAY")));
	Box->AddOption(TEXT("QUAY"));
	Box->SetSelectedIndex(2);
	VelmorantTests::RecordBelief(*this, TEXT("index of a combo box after an option that differs by letter case is selected"), Box->GetSelectedIndex());
	Diary.Empty();
	Box->ClearOptions();
	TestEqual(TEXT("no options are left"), Box->GetOptionCount(), 0);
	TestTrue(TEXT("nor a selected one"), Box->GetSelectedOption().IsEmpty());
	VelmorantTests::RecordBelief(*this, TEXT("what a combo box tells when its options go"), FString::Join(Diary, TEXT(", ")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantEditableTextTest, "Velmorant.Engine.Umg.EditableText", VelmorantTests::Flags)

bool FVelmorantEditableTextTest::RunTest(const FString&)
{
	UEditableText* Field = NewObject<UEditableText>();
	Field->SetText(INVTEXT("ada"));
	TestEqualSensitive(TEXT("a field keeps its text before it is shown"), *Field->GetText().ToString(), TEXT("ada"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantListViewTest, "Velmorant.Engine.Umg.ListView", VelmorantTests::Flags)

bool FVelmorantListViewTest::RunTest(const FString&)
{
	UListView* List = NewObject<UListView>();
	UObject* Item = NewObject<UVelmorantTestListener>();
	List->SetListItems(TArray<UObject*>{Item, NewObject<UVelmorantTestListener>()});
	TestEqual(TEXT("a list counts its items before it is shown"), List->GetNumItems(), 2);
	List->SetListItems(TArray<UObject*>{Item});
	TestEqual(TEXT("other items replace those that were there"), List->GetNumItems(), 1);
	UVelmorantTestListener* Listener = NewObject<UVelmorantTestListener>();
	List->OnItemClicked().AddUObject(Listener, &UVelmorantTestListener::HearClick);
	TestEqual(TEXT("who hears of clicks can be taken away"), List->OnItemClicked().RemoveAll(Listener), 1);
	TestFalse(TEXT("and hears no more"), List->OnItemClicked().IsBound());
	return true;
}

#endif
