// Copyright Velmorant. All Rights Reserved.

#include "DetailsTestEditor.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "HostEditor.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

class DetailsChange : public FDetailsTestEditor
{
protected:
	/** A listener that writes down when it was called, among what the object was told. */
	FSimpleDelegate Note(const TCHAR* Name)
	{
		return FSimpleDelegate::CreateLambda([this, Name]() { First->Told.Add(Name); });
	}
};

TEST_F(DetailsChange, ObjectsAreToldBeforeAndAfterAndListenersAfterThat)
{
	const FHostDetailsView View(Both());
	View.FindHandle(TEXT("Sign.Icon.IconName"))->SetOnPropertyValueChanged(Note(TEXT("icon name changed")));
	View.FindHandle(TEXT("Sign.Icon"))->SetOnPropertyValueChanged(Note(TEXT("icon itself changed")));
	View.FindHandle(TEXT("Sign.Icon"))->SetOnChildPropertyValueChanged(Note(TEXT("below icon changed")));
	View.FindHandle(TEXT("Sign"))->SetOnChildPropertyValueChanged(Note(TEXT("below sign changed")));
	View.FindHandle(TEXT("Sign.Title"))->SetOnPropertyValueChanged(Note(TEXT("title changed")));

	View.FindHandle(TEXT("Sign.Icon.IconName"))->SetValue(FName(TEXT("anchor")));
	EXPECT_EQ(First->Told,
		(TArray<FString>{TEXT("before IconName"), TEXT("after IconName in Sign"), TEXT("icon name changed"), TEXT("below icon changed"), TEXT("below sign changed")}));
	EXPECT_EQ(Second->Told, (TArray<FString>{TEXT("before IconName"), TEXT("after IconName in Sign")}));
}

TEST_F(DetailsChange, AChangeOfTheWholeIsOneOfItsPartsToo)
{
	const FHostDetailsView View(One());
	View.FindHandle(TEXT("Sign.Icon.Font"))->SetOnPropertyValueChanged(Note(TEXT("font changed")));
	View.FindHandle(TEXT("Sign.Icon"))->SetValueFromFormattedString(TEXT("(Font=\"Hill\")"));
	EXPECT_EQ(First->Told, (TArray<FString>{TEXT("before Icon"), TEXT("after Icon in Sign"), TEXT("font changed")}));
	EXPECT_EQ(First->Sign.Icon.Font, FName(TEXT("Hill")));
}

TEST_F(DetailsChange, ListenersAddUpAndHearOfEveryHandle)
{
	const FHostDetailsView View(One());
	int32 NumHeard = 0;
	const TSharedPtr<IPropertyHandle> Count = View.FindHandle(TEXT("Count"));
	Count->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&NumHeard]() { NumHeard += 1; }));
	Count->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&NumHeard]() { NumHeard += 10; }));
	View.FindHandle(TEXT("Count"))->SetValue(int32(1));
	EXPECT_EQ(NumHeard, 11);
	First->Count = 5;
	Tick();
	EXPECT_EQ(NumHeard, 11) << "what code writes itself is not told";
}

TEST_F(DetailsChange, AnEqualValueIsWrittenAndToldLikeAnyOther)
{
	const FHostDetailsView View(Both());
	const TSharedPtr<IPropertyHandle> Count = View.FindHandle(TEXT("Count"));
	Count->SetOnPropertyValueChanged(Note(TEXT("changed")));
	EXPECT_EQ(Count->SetValue(int32(7)), FPropertyAccess::Success);
	EXPECT_EQ(First->Told, (TArray<FString>{TEXT("before Count"), TEXT("after Count in Count"), TEXT("changed")}));
	EXPECT_EQ(Second->Told.Num(), 2);
	EXPECT_TRUE(First->GetPackage()->IsDirty());
	EXPECT_TRUE(Second->GetPackage()->IsDirty());
}

TEST_F(DetailsChange, PickingTheEntryThatIsChosenAlreadyWritesNothing)
{
	FHostDetailsView View(One());
	EXPECT_EQ(Refusal(HostSnapshot::Choose(View.GetWidget(), TEXT("Finish"), TEXT("Matt"))), "");
	EXPECT_TRUE(First->Told.IsEmpty());
	EXPECT_FALSE(First->GetPackage()->IsDirty());
}

TEST_F(DetailsChange, OneOfManyChangesIsToldAsSuch)
{
	TArray<EPropertyChangeType::Type> Changes;
	const FDelegateHandle Listener = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&Changes](UObject*, FPropertyChangedEvent& Event) { Changes.Add(Event.ChangeType); });
	const FHostDetailsView View(One());
	View.FindHandle(TEXT("Single"))->SetValue(0.75f, EPropertyValueSetFlags::InteractiveChange);
	View.FindHandle(TEXT("Single"))->SetValue(1.0f);
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Listener);
	EXPECT_EQ(Changes, (TArray<EPropertyChangeType::Type>{EPropertyChangeType::Interactive, EPropertyChangeType::ValueSet}));
}

TEST_F(DetailsChange, ListenersMayChangeTheValueAgainOrCloseThePanel)
{
	TUniquePtr<FHostDetailsView> View = MakeUnique<FHostDetailsView>(One());
	const TSharedPtr<IPropertyHandle> Count = View->FindHandle(TEXT("Count"));
	Count->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Count]() {
		int32 Value = 0;
		if (Count->GetValue(Value) == FPropertyAccess::Success && Value != 100) // an equal value is told, too: without end
		{
			Count->SetValue(int32(100));
		}
	}));
	EXPECT_EQ(Count->SetValue(int32(1)), FPropertyAccess::Success);
	EXPECT_EQ(First->Count, 100);

	const TSharedPtr<IPropertyHandle> Text = View->FindHandle(TEXT("Text"));
	Text->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&View]() { View.Reset(); }));
	EXPECT_EQ(Text->SetValue(TEXT("last")), FPropertyAccess::Success);
	EXPECT_EQ(First->Text, TEXT("last"));
	EXPECT_FALSE(Text->IsValidHandle());
}

/** With an editor, which undoes. */
class DetailsUndo : public FDetailsTestEditor
{
protected:
	DetailsUndo() { HostEditor::Create(); }
	virtual ~DetailsUndo() override { HostEditor::Destroy(); }

	/** Titles of the steps, the oldest first. */
	static std::vector<std::string> Steps()
	{
		std::vector<std::string> Titles;
		for (int32 Index = 0; Index < GEditor->Trans->GetQueueLength(); ++Index)
		{
			Titles.push_back(Utf8(GEditor->Trans->GetTransaction(Index)->GetTitle()));
		}
		return Titles;
	}
};

TEST_F(DetailsUndo, AWriteIsOneStepForAllObjects)
{
	FHostDetailsView View(Both());
	EXPECT_EQ(Type(View, TEXT("Count"), TEXT("1")), "");
	View.FindHandle(TEXT("Finish"))->SetValueFromFormattedString(TEXT("Glossy"));
	EXPECT_EQ(Steps(), (std::vector<std::string>{"Edit Count", "Edit Surface"})) << "by the name that people see";
	GEditor->UndoTransaction();
	GEditor->UndoTransaction();
	EXPECT_EQ(First->Count, 7);
	EXPECT_EQ(Second->Count, 7);
	EXPECT_EQ(Read(View, TEXT("Count")), "7");
	GEditor->RedoTransaction();
	EXPECT_EQ(Second->Count, 1);
}

TEST_F(DetailsUndo, OnlyRealChangesThatAreToBeRecordedAreSteps)
{
	const FHostDetailsView View(Both());
	View.FindHandle(TEXT("Count"))->SetValue(int32(7));
	View.FindHandle(TEXT("Count"))->SetValue(int32(2), EPropertyValueSetFlags::NotTransactable);
	EXPECT_EQ(Steps(), std::vector<std::string>());
	EXPECT_TRUE(First->GetPackage()->IsDirty());
}

TEST_F(DetailsUndo, AWriteJoinsAnOpenStepAndTakesInWhatListenersWrite)
{
	const FHostDetailsView View(One());
	const TSharedPtr<IPropertyHandle> Count = View.FindHandle(TEXT("Count"));
	const TSharedPtr<IPropertyHandle> Text = View.FindHandle(TEXT("Text"));
	Count->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Text]() { Text->SetValue(TEXT("follows")); }));
	Count->SetValue(int32(1));
	EXPECT_EQ(Steps(), (std::vector<std::string>{"Edit Count"}));
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Whole")));
		Count->SetValue(int32(2));
		Text->SetValue(TEXT("last"));
	}
	EXPECT_EQ(Steps(), (std::vector<std::string>{"Edit Count", "Whole"}));
	GEditor->UndoTransaction();
	EXPECT_EQ(First->Count, 1);
	EXPECT_EQ(First->Text, TEXT("follows"));
	GEditor->UndoTransaction();
	EXPECT_EQ(First->Text, TEXT(""));
}

TEST_F(DetailsUndo, InteractiveChangesBelongToTheStepOfTheLastOne)
{
	const FHostDetailsView View(Both());
	const TSharedPtr<IPropertyHandle> Single = View.FindHandle(TEXT("Single"));
	for (const float LastValue : {0.9f, 1.0f}) // the value that is there already, and another one
	{
		Single->SetValue(0.75f, EPropertyValueSetFlags::InteractiveChange);
		Single->SetValue(0.9f, EPropertyValueSetFlags::InteractiveChange);
		EXPECT_EQ(GEditor->Trans->GetQueueLength(), 0);
		Single->SetValue(LastValue);
		EXPECT_EQ(Second->Single, LastValue);
		EXPECT_EQ(Steps(), (std::vector<std::string>{"Edit Single"}));
		GEditor->UndoTransaction(false);
		EXPECT_EQ(First->Single, 0.5f);
		EXPECT_EQ(Second->Single, 0.5f);
	}
}

TEST_F(DetailsUndo, ThePanelFollowsElementsThatComeAndGo)
{
	FHostDetailsView View(One());
	EXPECT_EQ(Refusal(HostSnapshot::Click(View.GetWidget(), TEXT("Icons/Add Element"))), "");
	Tick();
	EXPECT_NE(View.FindHandle(TEXT("Icons[0].IconName")), nullptr);
	GEditor->UndoTransaction();
	Tick();
	EXPECT_EQ(First->Icons.Num(), 0);
	EXPECT_EQ(View.FindHandle(TEXT("Icons[0].IconName")), nullptr);
	GEditor->RedoTransaction();
	Tick();
	EXPECT_NE(View.FindHandle(TEXT("Icons[0].IconName")), nullptr);
}
