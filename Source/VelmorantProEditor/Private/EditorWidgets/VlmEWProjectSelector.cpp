// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWProjectSelector.h"

#include "Blueprint/WidgetTree.h"
#include "Components/CheckBox.h"
#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/SizeBox.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Misc/ConfigCacheIni.h"
#include "ServiceData/VelmorantServiceNames.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProEditor.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantSDKSettings.h"
#include "VlmButton.h"
#include "VlmText.h"

namespace VlmEWProjectSelector
{
	const TCHAR* const NoSelection = TEXT("No Selection");
	const float ComboItemHeight = 10.0f; // Slate units, at least

	UVlmText* MakeComboText(UWidgetTree& WidgetTree, const FString& Item)
	{
		UVlmText* Text = WidgetTree.ConstructWidget<UVlmText>();
		Text->SetText(FText::FromString(Item));
		Text->SetFontStyle("small");
		Text->SetColorHandler(FVelmorantColorHandler("Secondary"));
		return Text;
	}
}

void UVlmEWProjectSelector::NativeOnInitialized()
{
	Super::NativeOnInitialized();
}

void UVlmEWProjectSelector::NativePreConstruct()
{
	Super::NativePreConstruct();

	if (ProjectKeyCode)
	{
		ProjectKeyCode->SetIsReadOnly(true);
	}
	if (ProjectName)
	{
		ProjectName->SetIsReadOnly(true);
	}
}

void UVlmEWProjectSelector::NativeConstruct()
{
	Super::NativeConstruct();

	if (ProjectSelection)
	{
		ProjectSelection->OnSelectionChanged.AddUniqueDynamic(this, &UVlmEWProjectSelector::Received_SelectionChanged);
	}
	if (SetAsDefault)
	{
		SetAsDefault->OnButtonClicked.AddUniqueDynamic(this, &UVlmEWProjectSelector::Received_SetAsDefaultApiKey);
	}
	if (CopyApyKey)
	{
		CopyApyKey->OnButtonClicked.AddUniqueDynamic(this, &UVlmEWProjectSelector::Received_CopyApiKey);
	}
	if (ForceUpdateCheckBox)
	{
		ForceUpdateCheckBox->OnCheckStateChanged.AddUniqueDynamic(this, &UVlmEWProjectSelector::Received_ForceUpdateChange);
		bForceUpdateOnChange = ForceUpdateCheckBox->IsChecked();
	}
}

void UVlmEWProjectSelector::NativeDestruct()
{
	// The bindings to the child widgets and to the developer user stay on purpose: both are weak.
	Super::NativeDestruct();
}

void UVlmEWProjectSelector::ActivateDataPanel_Implementation()
{
	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	if (!EditorUser)
	{
		return;
	}

	const TArray<FProject> Projects = EditorUser->GetEditorUserProjects();
	if (Projects.IsEmpty())
	{
		RequestEditorUserProjects();
		return;
	}
	UserProjectList = Projects;
	Received_ProjectsResponse(true, UserProjectList);
}

void UVlmEWProjectSelector::RequestEditorUserProjects()
{
	UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	check(EditorUser);

	// A plain add on purpose: every request adds a handler, and all of them run on each response.
	ProjectsResponseHandle = EditorUser->GetOnProjectsResponse().AddUObject(this, &UVlmEWProjectSelector::Received_ProjectsResponse);
	EditorUser->RequestEditorUserProjects();
	OnRequestingUserProjectsProcess(true);
}

void UVlmEWProjectSelector::Received_ProjectsResponse(bool bSuccess, TArray<FProject> Projects)
{
	if (bSuccess)
	{
		UserProjectList = Projects;
		FillOptions();
	}
	OnRequestingUserProjectsProcess(false);
}

void UVlmEWProjectSelector::FillOptions()
{
	if (!ProjectSelection)
	{
		return;
	}

	ProjectSelection->ClearOptions();
	ProjectSelection->RefreshOptions();
	ProjectSelection->AddOption(VlmEWProjectSelector::NoSelection);
	for (const FProject& Project : UserProjectList)
	{
		ProjectSelection->AddOption(Project.ProjectName);
	}
	SelectDefaultProject();
}

void UVlmEWProjectSelector::SelectDefaultProject()
{
	const FString& DefaultApiKey = GetDefault<UVelmorantSDKSettings>()->ApiKey;
	for (const FProject& Project : UserProjectList)
	{
		if (Project.ApiKey.Equals(DefaultApiKey, ESearchCase::IgnoreCase))
		{
			ProjectSelection->SetSelectedOption(Project.ProjectName);
			return;
		}
	}
	ProjectSelection->SetSelectedIndex(0);
}

void UVlmEWProjectSelector::Received_SelectionChanged(FString SelectedItem, ESelectInfo::Type)
{
	if (!SelectedItem.IsEmpty())
	{
		SelectedProject = GetProjectByName(VelmorantServiceNames::Make(SelectedItem));
		UpdateSelectedProject();
	}
}

FProject UVlmEWProjectSelector::GetProjectByKeyCode(FName KeyCode) const
{
	const FString KeyCodeString = KeyCode.ToString();
	const FProject* Project = UserProjectList.FindByPredicate([&KeyCodeString](const FProject& Candidate) {
		return VelmorantServiceNames::Shorten(Candidate.KeyCode).Equals(KeyCodeString, ESearchCase::IgnoreCase);
	});
	return Project ? *Project : FProject();
}

FProject UVlmEWProjectSelector::GetProjectByName(FName Name) const
{
	const FString NameString = Name.ToString();
	const FProject* Project = UserProjectList.FindByPredicate([&NameString](const FProject& Candidate) {
		return VelmorantServiceNames::Shorten(Candidate.ProjectName).Equals(NameString, ESearchCase::IgnoreCase);
	});
	return Project ? *Project : FProject();
}

void UVlmEWProjectSelector::UpdateSelectedProject() const
{
	if (ProjectKeyCode)
	{
		ProjectKeyCode->SetText(FText::FromString(SelectedProject.KeyCode));
	}
	if (ProjectName)
	{
		ProjectName->SetText(FText::FromString(SelectedProject.ProjectName));
	}

	if (SelectedProject.IsValidProject())
	{
		if (UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false))
		{
			EditorUser->SetSelectedProject(SelectedProject, bForceUpdateOnChange);
		}
	}
}

void UVlmEWProjectSelector::SetUpdateInformationOnChange(bool bForce)
{
	bForceUpdateOnChange = bForce;
}

void UVlmEWProjectSelector::Received_ForceUpdateChange(bool bIsChecked)
{
	bForceUpdateOnChange = bIsChecked;
}

void UVlmEWProjectSelector::Received_CopyApiKey(FName)
{
	if (!SelectedProject.KeyCode.IsEmpty())
	{
		FPlatformApplicationMisc::ClipboardCopy(*SelectedProject.ApiKey);
	}
}

void UVlmEWProjectSelector::Received_SetAsDefaultApiKey(FName)
{
	if (SelectedProject.ApiKey.IsEmpty())
	{
		UE_LOG(LogVelmorantProEditor, Error, TEXT("UVlmEWProjectSelector: Invalid ApiKey to Apply"));
		return;
	}

	UVelmorantSDKSettings* Settings = GetMutableDefault<UVelmorantSDKSettings>();
	Settings->ApiKey = SelectedProject.ApiKey;
	Settings->SaveConfig(CPF_Config, nullptr, GConfig);
	Settings->TryUpdateDefaultConfigFile(TEXT(""));
	UE_LOG(LogVelmorantProEditor, Log, TEXT("UserProjects Apikey set new")); // whatever came of the writing
}

UWidget* UVlmEWProjectSelector::GenerateComboItemWidget(FString Item)
{
	USizeBox* SizeBox = WidgetTree->ConstructWidget<USizeBox>();
	SizeBox->SetMinDesiredHeight(VlmEWProjectSelector::ComboItemHeight);
	SizeBox->AddChild(VlmEWProjectSelector::MakeComboText(*WidgetTree, Item));
	return SizeBox;
}

UWidget* UVlmEWProjectSelector::GenerateComboContentWidget(FName Item)
{
	return VlmEWProjectSelector::MakeComboText(*WidgetTree, Item.ToString());
}
