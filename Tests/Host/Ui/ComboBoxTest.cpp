// Copyright Velmorant. All Rights Reserved.

#include "Components/ComboBoxString.h"
#include "HostSnapshot.h"
#include "TestToolPanel.h"
#include "UObject/StrongObjectPtr.h"
#include "UiTestEditor.h"
#include "Widgets/SWidget.h"

class ComboBox : public FUiTestEditor
{
protected:
	ComboBox()
		: Listener(NewObject<UTestComboListener>())
	{
		Listener->Combo = NewObject<UComboBoxString>();
		Combo()->bIsVariable = true;
		for (const TCHAR* Option : {TEXT("No Selection"), TEXT("Harbor"), TEXT("Hill"), TEXT("Harbor")})
		{
			Combo()->AddOption(Option);
		}
		Combo()->OnSelectionChanged.AddDynamic(Listener.Get(), &UTestComboListener::ReceivedSelection);
	}

	UComboBoxString* Combo() const { return Listener->Combo; }

	TArray<FString> Heard() const
	{
		TArray<FString> Result = Listener->Heard;
		Listener->Heard.Empty();
		return Result;
	}

	TStrongObjectPtr<UTestComboListener> Listener;
};

TEST_F(ComboBox, SelectsTheFirstOfEqualOptions)
{
	Combo()->SetSelectedOption(TEXT("Harbor"));
	EXPECT_EQ(Combo()->GetSelectedIndex(), 1);
	EXPECT_EQ(Combo()->FindOptionIndex(TEXT("Nowhere")), INDEX_NONE);
}

TEST_F(ComboBox, TellsOfAPersonsChoiceAsAMouseClick)
{
	const TSharedRef<SWidget> Widget = Combo()->TakeWidget();
	const FString Name = Combo()->GetName();
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Widget, Name, TEXT("Hill"))), "");
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Widget, Name, TEXT("Hill"))), "");
	EXPECT_EQ(Heard(), TArray<FString>{TEXT("Hill 2")});
	EXPECT_EQ(Combo()->GetSelectedOption(), TEXT("Hill"));
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "combo " + Utf8(Name) + " \"Hill\" (4 options)\n");
	EXPECT_EQ(Refusal(HostSnapshot::Choose(Widget, Name, TEXT("Valley"))), "The combo \"" + Utf8(Name) + "\" has no option \"Valley\".");
}

TEST_F(ComboBox, AnOpenBoxShowsNewOptionsOnlyWhenRefreshed)
{
	const TSharedRef<SWidget> Widget = Combo()->TakeWidget();
	const auto Shown = [&Widget]() { return Utf8(HostSnapshot::Take(Widget)); };
	const std::string Box = "combo " + Utf8(Combo()->GetName()) + " \"\" ";
	Combo()->AddOption(TEXT("Valley"));
	EXPECT_EQ(Shown(), Box + "(5 options)\n") << "it is closed";
	HostSnapshot::Click(Widget, Combo()->GetName());
	EXPECT_EQ(Shown(), Box + "(5 options)\n");
	Combo()->AddOption(TEXT("Quay"));
	Combo()->RemoveOption(TEXT("Hill"));
	Combo()->AddOption(TEXT("Bay"));
	EXPECT_EQ(Shown(), Box + "(5 options)\n");
	EXPECT_FALSE(HostSnapshot::Choose(Widget, Combo()->GetName(), TEXT("Quay")).bDone);
	EXPECT_TRUE(HostSnapshot::Choose(Widget, Combo()->GetName(), TEXT("Quay")).bDone) << "refusing has closed it";

	HostSnapshot::Click(Widget, Combo()->GetName());
	Combo()->ClearOptions();
	Combo()->RefreshOptions();
	Combo()->AddOption(TEXT("Mole"));
	EXPECT_EQ(Shown(), Box + "(1 option)\n") << "with what came between the request and the drawing";
}

TEST_F(ComboBox, ShowsTheWidgetsThatAGeneratorMakes)
{
	Combo()->OnGenerateWidgetEvent.BindUFunction(Listener.Get(), TEXT("MakeOption"));
	const TSharedRef<SWidget> Widget = Combo()->TakeWidget();
	FString Reason;
	EXPECT_EQ(HostSnapshot::GetOptions(Widget, Combo()->GetName(), Reason), (TArray<FString>{TEXT("* No Selection"), TEXT("* Harbor"), TEXT("* Hill"), TEXT("* Harbor")}));
	EXPECT_TRUE(HostSnapshot::Choose(Widget, Combo()->GetName(), TEXT("* Harbor")).bDone);
	EXPECT_EQ(Heard(), TArray<FString>{TEXT("Harbor 2")});
	Wait();
	EXPECT_EQ(Utf8(HostSnapshot::Take(Widget)), "combo " + Utf8(Combo()->GetName()) + " \"* Harbor\" (4 options)\n");
}
