// Copyright Velmorant. All Rights Reserved.

#include "EditorUtilitySubsystem.h"

#include "Editor.h"
#include "EditorUtilityWidget.h"
#include "EditorUtilityWidgetBlueprint.h"
#include "Framework/Application/SlateApplication.h"
#include "HostTabs.h"
#include "HostUserWidgets.h"
#include "HostWidgetBlueprints.h"
#include "UObject/Package.h"
#include "Widgets/SWidget.h"

namespace EditorUtility
{
	FString CheckParent(const UClass& ParentClass)
	{
		return ParentClass.IsChildOf<UEditorUtilityWidget>()
			? FString()
			: FString::Printf(TEXT("the parent class of an editor utility widget has to be an EditorUtilityWidget, and %s is none"), *ParentClass.GetName());
	}

	/** Announces the format while the program is loaded. */
	struct FRegistration
	{
		FRegistration()
		{
			HostWidgetBlueprints::RegisterReader(TEXT("/Script/Blutility.EditorUtilityWidgetBlueprint"), &UEditorUtilityWidgetBlueprint::StaticClass, &CheckParent);
		}
	};
	static const FRegistration Registration;
}

void UEditorUtilityWidget::Run_Implementation()
{
}

UWorld* UEditorUtilityWidget::GetWorld() const
{
	return GEditor && !HasAnyFlags(RF_ClassDefaultObject) ? GEditor->GetEditorWorldContext().World() : nullptr;
}

UEditorUtilityWidget* UEditorUtilitySubsystem::SpawnAndRegisterTab(UEditorUtilityWidgetBlueprint* InBlueprint)
{
	FName TabID;
	return SpawnAndRegisterTabAndGetID(InBlueprint, TabID);
}

UEditorUtilityWidget* UEditorUtilitySubsystem::SpawnAndRegisterTabAndGetID(UEditorUtilityWidgetBlueprint* InBlueprint, FName& NewTabID)
{
	NewTabID = InBlueprint ? FName(*(InBlueprint->GetPathName() + TEXT("_ActiveTab"))) : FName();
	return SpawnAndRegisterTabWithId(InBlueprint, NewTabID);
}

UEditorUtilityWidget* UEditorUtilitySubsystem::SpawnAndRegisterTabWithId(UEditorUtilityWidgetBlueprint* InBlueprint, FName InTabID)
{
	if (!InBlueprint || !InBlueprint->GeneratedClass || !FSlateApplication::IsInitialized())
	{
		return nullptr;
	}
	const int32 Open = OpenTabs.IndexOfByPredicate([InBlueprint](const FOpenTab& Tab) { return Tab.Blueprint.Get() == InBlueprint; });
	if (Open != INDEX_NONE)
	{
		const FOpenTab Tab = OpenTabs[Open];
		OpenTabs.RemoveAt(Open);
		OpenTabs.Add(Tab);
		return InBlueprint->GetCreatedWidget();
	}
	UEditorUtilityWidget* Panel = Cast<UEditorUtilityWidget>(FHostUserWidgets::Create(GetTransientPackage(), InBlueprint->GeneratedClass));
	if (!Panel)
	{
		return nullptr;
	}
	InBlueprint->CreatedUMGWidget = Panel;
	const TSharedRef<SWidget> Content = Panel->TakeWidget();
	OpenTabs.Add({InTabID, InBlueprint, Content});
	return Panel;
}

bool UEditorUtilitySubsystem::DoesTabExist(FName NewTabID)
{
	return OpenTabs.ContainsByPredicate([NewTabID](const FOpenTab& Tab) { return Tab.Id == NewTabID; });
}

bool UEditorUtilitySubsystem::CloseTabByID(FName NewTabID)
{
	const int32 Index = OpenTabs.IndexOfByPredicate([NewTabID](const FOpenTab& Tab) { return Tab.Id == NewTabID; });
	if (Index == INDEX_NONE)
	{
		return false;
	}
	const FOpenTab Tab = OpenTabs[Index];
	OpenTabs.RemoveAt(Index);
	Close(Tab);
	return true;
}

/** Off the list first: while its panel is taken down, the tab is not open any more. */
void UEditorUtilitySubsystem::Close(FOpenTab Tab)
{
	if (UEditorUtilityWidgetBlueprint* Blueprint = Tab.Blueprint.Get())
	{
		Blueprint->CreatedUMGWidget = nullptr;
	}
	Tab.Content.Reset();
}

void UEditorUtilitySubsystem::Deinitialize()
{
	while (OpenTabs.Num() > 0)
	{
		Close(OpenTabs.Pop());
	}
	Super::Deinitialize();
}

class FHostTabsAccess
{
public:
	static TArray<FHostTab> GetOpen()
	{
		TArray<FHostTab> Result;
		UEditorUtilitySubsystem* Subsystem = GEditor ? GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>() : nullptr;
		if (!Subsystem)
		{
			return Result;
		}
		for (const UEditorUtilitySubsystem::FOpenTab& Tab : Subsystem->OpenTabs)
		{
			const UEditorUtilityWidgetBlueprint* Blueprint = Tab.Blueprint.Get();
			Result.Add({Tab.Id, Blueprint ? Blueprint->GetName() : FString(), Blueprint ? Blueprint->GetCreatedWidget() : nullptr, Tab.Content});
		}
		return Result;
	}
};

TArray<FHostTab> HostTabs::GetOpen()
{
	return FHostTabsAccess::GetOpen();
}

FHostTab HostTabs::Find(const FString& Name)
{
	const TArray<FHostTab> Open = GetOpen();
	for (int32 Index = Open.Num() - 1; Index >= 0; --Index)
	{
		if (Name.IsEmpty() || Open[Index].Label.Equals(Name, ESearchCase::IgnoreCase) || Open[Index].Id == FName(*Name))
		{
			return Open[Index];
		}
	}
	return FHostTab();
}
