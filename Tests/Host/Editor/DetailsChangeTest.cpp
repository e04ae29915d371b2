// Copyright Velmorant. All Rights Reserved.

#include "DetailsTestEditor.h"
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

TEST_F(DetailsChange, AnEqualValueChangesNothingAndTellsNobody)
{
	Second->Count = 8;
	const FHostDetailsView View(Both());
	const TSharedPtr<IPropertyHandle> Count = View.FindHandle(TEXT("Count"));
	Count->SetOnPropertyValueChanged(Note(TEXT("changed")));
	EXPECT_EQ(View.FindHandle(TEXT("Single"))->SetValue(0.5f), FPropertyAccess::Success);
	EXPECT_TRUE(First->Told.IsEmpty());
	EXPECT_FALSE(First->GetPackage()->IsDirty());

	EXPECT_EQ(Count->SetValue(int32(7)), FPropertyAccess::Success) << "equal to one of two is a change";
	EXPECT_EQ(Second->Count, 7);
	EXPECT_EQ(First->Told.Last(), TEXT("changed"));
	EXPECT_TRUE(Second->GetPackage()->IsDirty());
}

TEST_F(DetailsChange, EachObjectIsRecordedForUndoUnlessNotAsked)
{
	TArray<UObject*> Recorded;
	HostObjects::SetModifyRecorder([&Recorded](UObject* Object) {
		Recorded.Add(Object);
		return true;
	});
	const FHostDetailsView View(Both());
	View.FindHandle(TEXT("Count"))->SetValue(int32(1));
	EXPECT_EQ(Recorded, Both());
	Recorded.Empty();
	View.FindHandle(TEXT("Count"))->SetValue(int32(2), EPropertyValueSetFlags::NotTransactable);
	EXPECT_TRUE(Recorded.IsEmpty());
	EXPECT_TRUE(First->GetPackage()->IsDirty());
	HostObjects::SetModifyRecorder(nullptr);
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
	Count->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&Count]() { Count->SetValue(int32(100)); }));
	EXPECT_EQ(Count->SetValue(int32(1)), FPropertyAccess::Success);
	EXPECT_EQ(First->Count, 100);

	const TSharedPtr<IPropertyHandle> Text = View->FindHandle(TEXT("Text"));
	Text->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&View]() { View.Reset(); }));
	EXPECT_EQ(Text->SetValue(TEXT("last")), FPropertyAccess::Success);
	EXPECT_EQ(First->Text, TEXT("last"));
	EXPECT_FALSE(Text->IsValidHandle());
}
