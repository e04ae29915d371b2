// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Editor.h"
#include "IDetailTreeNode.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "Support/Beliefs.h"
#include "Support/DetailRows.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace DetailsTest
{
	/** Of a property that has a row; null without one. */
	TSharedPtr<IPropertyHandle> FindRowHandle(const FVelmorantDetailRows& Rows, const char* Property)
	{
		const TSharedPtr<IDetailTreeNode> Row = Rows.Find(Property);
		return Row.IsValid() ? Row->CreatePropertyHandle() : nullptr;
	}

	TSharedPtr<IPropertyHandle> FindHandle(const FVelmorantDetailRows& Rows, const TCHAR* Member)
	{
		const TSharedPtr<IPropertyHandle> Choice = FindRowHandle(Rows, "Choice");
		return Choice.IsValid() ? Choice->GetChildHandle(Member) : nullptr;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSeveralObjectsTest, "Velmorant.Engine.Details.SeveralObjects", VelmorantTests::Flags)

bool FVelmorantSeveralObjectsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* First = UVelmorantTestListener::Make(TEXT("Oak"));
	UVelmorantTestListener* Second = UVelmorantTestListener::Make(TEXT("Ash"));
	const FVelmorantDetailRows Rows({First, Second});
	const TSharedPtr<IPropertyHandle> Name = DetailsTest::FindHandle(Rows, TEXT("Name"));
	if (!TestValid(TEXT("members have handles"), Name))
	{
		return false;
	}
	FName Value;
	TestTrue(TEXT("objects that differ have several values, which is no failure"), Name->GetValue(Value) == FPropertyAccess::MultipleValues);
	TestTrue(TEXT("a value can be written to all"), Name->SetValue(FName(TEXT("Birch"))) == FPropertyAccess::Success);
	TestTrue(TEXT("and all have it"), First->Choice.Name == FName(TEXT("Birch")) && Second->Choice.Name == FName(TEXT("Birch")));
	TestTrue(TEXT("then it can be read"), Name->GetValue(Value) == FPropertyAccess::Success && Value == FName(TEXT("Birch")));
	TestTrue(TEXT("each object is told"), First->NumChanges > 0 && Second->NumChanges > 0);
	TestEqual(TEXT("both changes are one step"), State.CountNewSteps(), 1);
	GEditor->UndoTransaction();
	TestTrue(TEXT("undone, each has its own again"), First->Choice.Name == FName(TEXT("Oak")) && Second->Choice.Name == FName(TEXT("Ash")));

	First->Choice.Name = Second->Choice.Name;
	First->NumChanges = 0;
	const int32 NumSteps = State.CountNewSteps();
	Name->SetValue(Second->Choice.Name);
	VelmorantTests::RecordBelief(*this, TEXT("writing a value that all objects have tells them"), First->NumChanges > 0);
	VelmorantTests::RecordBelief(*this, TEXT("steps of writing a value that all objects have"), State.CountNewSteps() - NumSteps);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantDeletedObjectTest, "Velmorant.Engine.Details.DeletedObject", VelmorantTests::Flags)

bool FVelmorantDeletedObjectTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Kept = UVelmorantTestListener::Make(TEXT("Oak"));
	UVelmorantTestListener* Deleted = UVelmorantTestListener::Make(TEXT("Ash"));
	const FVelmorantDetailRows Rows({Kept, Deleted});
	const TSharedPtr<IPropertyHandle> Name = DetailsTest::FindHandle(Rows, TEXT("Name"));
	if (!TestValid(TEXT("members have handles"), Name))
	{
		return false;
	}
	Deleted->MarkAsGarbage();
	FName Value;
	const FPropertyAccess::Result Read = Name->GetValue(Value);
	VelmorantTests::RecordBelief(*this, TEXT("reading a value of two objects of which one is garbage"), Read == FPropertyAccess::Success ? Value.ToString() : FString(Read == FPropertyAccess::Fail ? TEXT("fails") : TEXT("several values")));
	Name->SetValue(FName(TEXT("Birch")));
	VelmorantTests::RecordBelief(*this, TEXT("writing to two objects of which one is garbage leaves the other"), Kept->Choice.Name.ToString());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantContainerRowsTest, "Velmorant.Engine.Details.Containers", VelmorantTests::Flags)

bool FVelmorantContainerRowsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* First = UVelmorantTestListener::Make(TEXT("Oak"));
	UVelmorantTestListener* Second = UVelmorantTestListener::Make(TEXT("Ash"));
	First->Numbers = {1, 2, 3};
	Second->Numbers = {1, 5};
	First->Counts = {{TEXT("Hall"), 1}};
	Second->Counts = {{TEXT("Attic"), 1}};
	First->Tags = {TEXT("New")};
	Second->Tags = First->Tags;
	const FVelmorantDetailRows Rows({First, Second});
	const auto CountElements = [&Rows](const char* Property) {
		uint32 Number = 0;
		const TSharedPtr<IPropertyHandle> Handle = DetailsTest::FindRowHandle(Rows, Property);
		return Handle.IsValid() && Handle->GetNumChildren(Number) == FPropertyAccess::Success ? FString::FromInt(static_cast<int32>(Number)) : FString(TEXT("fails"));
	};
	VelmorantTests::RecordBelief(*this, TEXT("elements of arrays of three and two elements"), CountElements("Numbers"));
	VelmorantTests::RecordBelief(*this, TEXT("elements of two maps with other keys"), CountElements("Counts"));
	Second->Counts = First->Counts;
	const FVelmorantDetailRows Again({First, Second});
	const TSharedPtr<IPropertyHandle> Counts = DetailsTest::FindRowHandle(Again, "Counts");
	uint32 Number = 0;
	VelmorantTests::RecordBelief(*this, TEXT("two maps with the same key show it"), Counts.IsValid() && Counts->GetNumChildren(Number) == FPropertyAccess::Success && Number == 1);
	const TSharedPtr<IPropertyHandle> Tags = DetailsTest::FindRowHandle(Again, "Tags");
	const TSharedPtr<IPropertyHandle> Tag = Tags.IsValid() ? Tags->GetChildHandle(0) : nullptr;
	VelmorantTests::RecordBelief(*this, TEXT("an element of a set can be written in place"), Tag.IsValid() && Tag->SetValue(FName(TEXT("Old"))) == FPropertyAccess::Success);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantHandleTypesTest, "Velmorant.Engine.Details.ValueTypes", VelmorantTests::Flags)

bool FVelmorantHandleTypesTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UVelmorantTestListener::Make(TEXT("Oak"));
	Object->Choice.Kind = EVelmorantTestKind::Special;
	Object->Choice.Tint = FLinearColor(0.25f, 0.5f, 0.75f, 1.0f);
	const FVelmorantDetailRows Rows({Object});
	const TSharedPtr<IPropertyHandle> Kind = DetailsTest::FindHandle(Rows, TEXT("Kind"));
	const TSharedPtr<IPropertyHandle> Tint = DetailsTest::FindHandle(Rows, TEXT("Tint"));
	if (!TestValid(TEXT("an enum has a handle"), Kind) || !TestValid(TEXT("a colour, too"), Tint))
	{
		return false;
	}
	uint8 Byte = 0;
	int32 Number = 0;
	TestTrue(TEXT("an enum is read as a byte"), Kind->GetValue(Byte) == FPropertyAccess::Success && Byte == 1);
	TestTrue(TEXT("and as no other number"), Kind->GetValue(Number) == FPropertyAccess::Fail);
	FString Text;
	FLinearColor Color;
	TestTrue(TEXT("a struct is read as text"), Tint->GetValueAsFormattedString(Text) == FPropertyAccess::Success);
	TestTrue(TEXT("which a colour understands"), Color.InitFromString(Text) && Color.Equals(Object->Choice.Tint));
	VelmorantTests::RecordBelief(*this, TEXT("a colour as formatted text"), Text);
	TestInvalid(TEXT("there is no member of another name"), DetailsTest::FindHandle(Rows, TEXT("Nowhere")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantHandleEventsTest, "Velmorant.Engine.Details.ValueEvents", VelmorantTests::Flags)

bool FVelmorantHandleEventsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UVelmorantTestListener::Make(TEXT("Oak"));
	const FVelmorantDetailRows Rows({Object});
	const TSharedPtr<IPropertyHandle> Struct = DetailsTest::FindRowHandle(Rows, "Choice");
	const TSharedPtr<IPropertyHandle> Name = DetailsTest::FindHandle(Rows, TEXT("Name"));
	if (!TestValid(TEXT("the struct has a handle"), Struct) || !TestValid(TEXT("its member, too"), Name))
	{
		return false;
	}
	int32 NumOfName = 0;
	int32 NumOfStruct = 0;
	Name->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&NumOfName] { ++NumOfName; }));
	Struct->SetOnChildPropertyValueChanged(FSimpleDelegate::CreateLambda([&NumOfStruct] { ++NumOfStruct; }));
	Name->SetValue(FName(TEXT("Ash")));
	TestEqual(TEXT("a member's listener hears before the write returns"), NumOfName, 1);
	TestEqual(TEXT("so does who listens to all members of the struct"), NumOfStruct, 1);
	Object->Choice.Name = TEXT("Raw");
	TestEqual(TEXT("a raw write is not heard"), NumOfName, 1);
	FName Value;
	TestTrue(TEXT("but read"), Name->GetValue(Value) == FPropertyAccess::Success && Value == FName(TEXT("Raw")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantHandleWritesTest, "Velmorant.Engine.Details.Writes", VelmorantTests::Flags)

bool FVelmorantHandleWritesTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UVelmorantTestListener::Make(TEXT("Oak"));
	const FVelmorantDetailRows Rows({Object});
	const TSharedPtr<IPropertyHandle> Amount = DetailsTest::FindRowHandle(Rows, "Amount");
	if (!TestValid(TEXT("a number has a handle"), Amount))
	{
		return false;
	}
	TestTrue(TEXT("text that is a number is taken"), Amount->SetValueFromFormattedString(TEXT("7")) == FPropertyAccess::Success && Object->Amount == 7);
	Amount->SetValueFromFormattedString(TEXT("tower"));
	VelmorantTests::RecordBelief(*this, TEXT("a number after text that is none"), Object->Amount);
	Object->Amount = 7;
	Amount->SetValueFromFormattedString(TEXT("99999999999"));
	VelmorantTests::RecordBelief(*this, TEXT("a number after one too large for its type"), Object->Amount == 7 ? TEXT("unchanged") : TEXT("changed"));

	const int32 NumSteps = State.CountNewSteps();
	for (int32 Value = 10; Value < 13; ++Value)
	{
		Amount->SetValue(Value, EPropertyValueSetFlags::InteractiveChange);
	}
	VelmorantTests::RecordBelief(*this, TEXT("steps of three interactive changes"), State.CountNewSteps() - NumSteps);
	Amount->SetValue(13);
	VelmorantTests::RecordBelief(*this, TEXT("steps of three interactive changes and the one that ends them"), State.CountNewSteps() - NumSteps);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantWholeStructTest, "Velmorant.Engine.Details.WholeStructs", VelmorantTests::Flags)

bool FVelmorantWholeStructTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UVelmorantTestListener::Make(TEXT("Oak"));
	const FVelmorantDetailRows Rows({Object});
	const TSharedPtr<IPropertyHandle> Struct = DetailsTest::FindRowHandle(Rows, "Choice");
	const TSharedPtr<IPropertyHandle> Name = DetailsTest::FindHandle(Rows, TEXT("Name"));
	if (!TestValid(TEXT("the struct has a handle"), Struct) || !TestValid(TEXT("its member, too"), Name))
	{
		return false;
	}
	int32 NumHeard = 0;
	Name->SetOnPropertyValueChanged(FSimpleDelegate::CreateLambda([&NumHeard] { ++NumHeard; }));
	TestTrue(TEXT("a struct takes text with some of its members"), Struct->SetValueFromFormattedString(TEXT("(Name=\"Ash\")")) == FPropertyAccess::Success);
	TestTrue(TEXT("those change"), Object->Choice.Name == FName(TEXT("Ash")));
	VelmorantTests::RecordBelief(*this, TEXT("a member's listener hears of a write to the whole struct"), NumHeard > 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSectionsTest, "Velmorant.Engine.Details.Sections", VelmorantTests::Flags)

bool FVelmorantSectionsTest::RunTest(const FString&)
{
	FPropertyEditorModule& Module = FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor");
	const TSharedRef<FPropertySection> Section = Module.FindOrCreateSection("VelmorantTestListener", "VelmorantTests", INVTEXT("Tests"));
	Section->AddCategory("Test");
	TestTrue(TEXT("a category that was added is there"), Section->HasAddedCategory("Test"));
	TestTrue(TEXT("a section is made once"), Module.FindOrCreateSection("VelmorantTestListener", "VelmorantTests", INVTEXT("Other")) == Section);
	TestEqualSensitive(TEXT("and keeps its first name"), *Section->GetDisplayName().ToString(), TEXT("Tests"));
	return true;
}

#endif
