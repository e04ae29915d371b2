// Copyright Velmorant. All Rights Reserved.

#include "Components/Button.h"
#include "Components/CheckBox.h"
#include "Components/EditableText.h"
#include "Components/TextBlock.h"
#include "Editor.h"
#include "EditorUtilitySubsystem.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "TestLoginPanel.h"
#include "TestToolPanel.h"

UTestVisitorBook* UTestVisitorBook::GetBook(const FString& InWhere)
{
	UTestVisitorBook* Book = GetMutableDefault<UTestVisitorBook>();
	Book->Place = InWhere;
	return Book;
}

void UTestLoginPanel::OnMoodChanged_Implementation(ETestMood NewMood)
{
	Mood = NewMood;
	Happened.Add(TEXT("native OnMoodChanged"));
}

void UTestLoginPanel::SetRememberMe(bool InRememberMe)
{
	Happened.Add(InRememberMe ? TEXT("remember") : TEXT("forget"));
}

void UTestLoginPanel::Note(const FString& InText, int32 InNumber)
{
	Happened.Add(FString::Printf(TEXT("%s %d"), *InText, InNumber));
}

void UTestLoginPanel::TakeWidgets(const TArray<UWidget*>& InWidgets)
{
	for (const UWidget* Widget : InWidgets)
	{
		Happened.Add(Widget ? Widget->GetName() : FString(TEXT("null")));
	}
}

UWidget* UTestLoginPanel::MakeOptionWidget(FString Item)
{
	UTextBlock* Text = NewObject<UTextBlock>(this);
	Text->SetText(FText::FromString(TEXT("[") + Item + TEXT("]")));
	return Text;
}

void UTestLoginPanel::ReceivedSubmit()
{
	Happened.Add(TEXT("submit ") + UserName->GetText().ToString());
	OnLoginInProcess(true);
}

void UTestLoginPanel::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	Happened.Add(UserName && Submit ? TEXT("initialized, bound") : TEXT("initialized, unbound"));
}

void UTestLoginPanel::NativePreConstruct()
{
	Super::NativePreConstruct();
	Happened.Add(TEXT("pre-construct"));
}

void UTestLoginPanel::NativeConstruct()
{
	Super::NativeConstruct();
	Happened.Add(TEXT("construct"));
	Submit->OnClicked.AddUniqueDynamic(this, &UTestLoginPanel::ReceivedSubmit);
}

void UTestLoginPanel::NativeDestruct()
{
	Happened.Add(TEXT("destruct"));
	Super::NativeDestruct();
}

int32 UTestToolPanel::NumDestructed = 0;

void UTestToolPanel::CloseMyTab()
{
	UEditorUtilitySubsystem* Tabs = GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>();
	const UObject* Blueprint = GetClass()->ClassGeneratedBy;
	Tabs->CloseTabByID(FName(*(Blueprint->GetPathName() + TEXT("_ActiveTab"))));
}

void UTestToolPanel::NativeDestruct()
{
	++NumDestructed;
	Super::NativeDestruct();
}

void UTestComboListener::ReceivedSelection(FString SelectedItem, ESelectInfo::Type SelectionType)
{
	Heard.Add(FString::Printf(TEXT("%s %d"), *SelectedItem, static_cast<int32>(SelectionType)));
}

UWidget* UTestComboListener::MakeOption(FString Item)
{
	UTextBlock* Text = NewObject<UTextBlock>(this);
	Text->SetText(FText::FromString(TEXT("* ") + Item));
	return Text;
}
