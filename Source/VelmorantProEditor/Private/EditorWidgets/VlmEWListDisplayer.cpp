// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWListDisplayer.h"

#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/ListView.h"
#include "ProjectWrapper.h"
#include "Search/VelmorantTextSearch.h"
#include "ServiceData/ProjectRows.h"
#include "ServiceData/VelmorantSelectedProject.h"
#include "ServiceData/VelmorantServiceNames.h"
#include "UnitGroupWrapper.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VlmButton.h"

void UVlmEWListDisplayer::NativeConstruct()
{
	Super::NativeConstruct();

	if (ModeSelector)
	{
		ModeSelector->ClearOptions();
		ModeSelector->AddOption(TEXT("Promotion"));
		ModeSelector->AddOption(TEXT("Configurator"));
		ModeSelector->OnSelectionChanged.AddUniqueDynamic(this, &UVlmEWListDisplayer::ReceivedModeSelectorChange);
	}
	if (HomeButton)
	{
		HomeButton->OnButtonClicked.AddUniqueDynamic(this, &UVlmEWListDisplayer::ReceivedHomeButtonClicked);
	}
	SearchText->OnTextChanged.AddUniqueDynamic(this, &UVlmEWListDisplayer::ReceivedSearchTextChange);

	// A native event knows no unique adds: without the removal, a second construction would bind twice.
	ItemList->OnItemClicked().RemoveAll(this);
	ItemList->OnItemClicked().AddUObject(this, &UVlmEWListDisplayer::ReceivedItemClicked);
}

void UVlmEWListDisplayer::ActivateDataPanel_Implementation()
{
	UVelmorantProjectRequestManager* RequestManager = GetRequestManager();
	if (!RequestManager)
	{
		return;
	}

	if (IsProjectSelected())
	{
		SetUnitGroupList();
	}
	// A plain add on purpose: every activation adds a handler, and all of them run on each update.
	RequestManager->GetOnUpdateRequest().AddUObject(this, &UVlmEWListDisplayer::Received_UpdateRequestData);
}

void UVlmEWListDisplayer::Received_UpdateRequestData(EUpdateRequestDataType DataType, EUpdateRequestType)
{
	if (DataType == EUpdateRequestDataType::ProjectData)
	{
		ResetCurrentSelectionLevel();
		RefreshListView();
	}
}

void UVlmEWListDisplayer::RefreshListView()
{
	switch (CurrentSelectionLevel)
	{
		case UnitGroupLevel:
			SetUnitGroupList();
			break;
		case UnitLevel:
			SetUnitList();
			break;
		case ConfiguratorLevel:
			SetConfiguratorList();
			break;
		default:
			break;
	}
	RaiseListCount();
}

void UVlmEWListDisplayer::ResetCurrentSelectionLevel()
{
	CurrentSelectionLevel = UnitGroupLevel;
}

void UVlmEWListDisplayer::DisplayUnitGroups()
{
	ResetCurrentSelectionLevel();
	SetUnitGroupList();
	RaiseListCount();
}

void UVlmEWListDisplayer::ReceivedHomeButtonClicked(FName)
{
	DisplayUnitGroups();
}

void UVlmEWListDisplayer::ReceivedModeSelectorChange(FString SelectedItem, ESelectInfo::Type)
{
	OnModeSelectionChange(SelectedItem);
	DisplayUnitGroups();
}

void UVlmEWListDisplayer::DisplayUnitsFromUnitGroupTarget()
{
	SetUnitList();
}

void UVlmEWListDisplayer::DisplayConfiguratorFromUnitGroupTarget()
{
	SetConfiguratorList();
}

void UVlmEWListDisplayer::ReceivedItemClicked(UObject* Item)
{
	const UListDisplayerItemBase* Row = Cast<UListDisplayerItemBase>(Item);
	if (!Row || Row->ItemBaseType != ELDIT_UnitGroup)
	{
		return;
	}

	CurrentSelectionLevel = UnitLevel;
	if (UVelmorantProjectRequestManager* RequestManager = GetRequestManager())
	{
		RequestManager->SetSelectedUnitGroup(VelmorantServiceNames::Make(Row->Keycode));
	}
	RefreshListView();
}

void UVlmEWListDisplayer::SetNavBarButtons(const TArray<UVlmButton*>& InNavBarButtons)
{
	NavButtonList.Reset();
	for (UVlmButton* Button : InNavBarButtons)
	{
		NavButtonList.Add(Button); // a missing one, too: the others keep their indices
		if (Button)
		{
			Button->OnSelectionStateChanged.AddUniqueDynamic(this, &UVlmEWListDisplayer::Received_NavBarButtonChange);
		}
	}
}

void UVlmEWListDisplayer::SetNavBarByIndex(int32 InIndex)
{
	if (NavButtonList.IsValidIndex(InIndex) && NavButtonList[InIndex])
	{
		NavButtonList[InIndex]->SetSelectionState(true, true);
	}
}

void UVlmEWListDisplayer::Received_NavBarButtonChange(UVlmButton* ButtonChanged, bool bSelected)
{
	if (!bSelected || !IsProjectSelected() || !IsUnitGroupTarget())
	{
		return;
	}

	for (UVlmButton* Button : NavButtonList)
	{
		if (Button && Button != ButtonChanged)
		{
			Button->SetSelectionState(false, true);
		}
	}
	OnNavBarButtonChanged(NavButtonList.IndexOfByPredicate([](const TObjectPtr<UVlmButton>& Button) { return Button && Button->IsButtonSelected(); }));
}

void UVlmEWListDisplayer::ReceivedSearchTextChange(const FText& Text)
{
	if (Text.IsEmpty())
	{
		ItemList->SetListItems(CurrentElemetsList);
	}
	else
	{
		if (!Search.IsValid())
		{
			Search = MakeShared<FVelmorantTextSearch>(ProjectRows::MakeSearch(CurrentElemetsList));
		}
		TArray<UListDisplayerItemBase*> Matches;
		for (const int32 Row : Search->Find(Text.ToString()))
		{
			Matches.Add(CurrentElemetsList[Row]);
		}
		ItemList->SetListItems(Matches);
	}
	RaiseListCount();
}

void UVlmEWListDisplayer::ClearSearchText()
{
	if (SearchText)
	{
		SearchText->SetText(FText::GetEmpty());
	}
	ReceivedSearchTextChange(FText::GetEmpty());
}

void UVlmEWListDisplayer::SetUnitGroupList()
{
	ShowRows(ELDIT_UnitGroup);
}

void UVlmEWListDisplayer::SetUnitList()
{
	ShowRows(ELDIT_Unit);
}

void UVlmEWListDisplayer::SetConfiguratorList()
{
	ShowRows(ELDIT_Configurator);
}

void UVlmEWListDisplayer::ShowRows(EListDisplayItemType Type)
{
	// The search text is not applied again on purpose: a rebuilt list shows all its rows.
	const TArray<ProjectRows::FRow> Rows = ProjectRows::OfProject(VelmorantSelectedProject::Find(), Type);
	CurrentElemetsList.Reset(Rows.Num());
	for (const ProjectRows::FRow& Row : Rows)
	{
		CurrentElemetsList.Add(UListDisplayerItemBase::CreateListDisplayerItemBase(Row.UnitID, Row.Keycode, Row.DisplayName, Type));
	}
	Search.Reset();
	ItemList->SetListItems(CurrentElemetsList);
	OnSelectionTypeChange(Type);
}

void UVlmEWListDisplayer::RaiseListCount()
{
	OnListCountChange(ItemList->GetNumItems());
}

bool UVlmEWListDisplayer::IsProjectSelected() const
{
	const UProjectWrapper* Project = VelmorantSelectedProject::Find();
	return Project && !Project->GetProjectData().ApiKey.IsEmpty();
}

bool UVlmEWListDisplayer::IsUnitGroupTarget() const
{
	const UProjectWrapper* Project = VelmorantSelectedProject::Find();
	return Project && Project->HasUnitGroupTarget();
}

FString UVlmEWListDisplayer::GetUnitGroupTargetName() const
{
	return IsUnitGroupTarget() ? VelmorantSelectedProject::Find()->GetUnitGroupTarget()->GetUnitGroupData().Name : FString();
}

UVelmorantProjectRequestManager* UVlmEWListDisplayer::GetRequestManager() const
{
	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	return EditorUser ? EditorUser->GetProjectRequestManager() : nullptr;
}
