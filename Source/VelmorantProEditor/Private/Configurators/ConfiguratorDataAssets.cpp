// Copyright Velmorant. All Rights Reserved.

#include "Configurators/ConfiguratorDataAssets.h"

#include "AssetAuthoring/AssetFactories.h"
#include "AssetRegistry/AssetData.h"
#include "Configurators/LevelVariantGeneration.h"
#include "Configurators/VelmorantAssetQueries.h"
#include "ConfiguratorWrapper.h"
#include "EditorServices/VelmorantChange.h"
#include "EditorServices/VelmorantNotifications.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "ProjectWrapper.h"
#include "ScopedTransaction.h"
#include "ServiceData/VelmorantSelectedProject.h"
#include "UObject/Package.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantDeveloperUser.h"
#include "VelmorantProEditor.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

#include <cwctype>

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace ConfiguratorDataAssets
{
	const TCHAR* const ContentFolder = TEXT("/Game/Velmorant/Configurator");
	const float OutcomeSeconds = 7.0f;
	const float LookUpFailureSeconds = 10.0f;

	bool IsAlreadyCreated(const FName& ConfiguratorID)
	{
		for (const FAssetData& Asset : VelmorantAssetQueries::FindAssetsOfClass(*UVelmorantConfiguratorDataAsset::StaticClass()))
		{
			const UVelmorantConfiguratorDataAsset* DataAsset = Cast<UVelmorantConfiguratorDataAsset>(Asset.GetAsset());
			if (DataAsset && DataAsset->ConfiguratorName == ConfiguratorID)
			{
				return true;
			}
		}
		return false;
	}

	void ReportLookUpFailure(const FString& Message)
	{
		UE_LOG(LogVelmorantProEditor, Warning, TEXT("UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator :: Failed \n %s"), *Message);
		VelmorantNotifications::Popup(TEXT("Failed Configuration Creation"), Message, SNotificationItem::CS_Fail, LookUpFailureSeconds);
	}

	/** ':' becomes '_'; of the rest only letters, digits and '_' are kept. Letters are those of the C library's locale. */
	FString SanitizeName(const FName& ConfiguratorID)
	{
		FString Name = ConfiguratorID.ToString();
		for (int32 Index = Name.Len() - 1; Index >= 0; --Index)
		{
			if (Name[Index] == TEXT(':'))
			{
				Name[Index] = TEXT('_');
			}
			else if (!iswalnum(static_cast<wint_t>(Name[Index])) && Name[Index] != TEXT('_'))
			{
				Name.RemoveAt(Index);
			}
		}
		return Name;
	}

	UVelmorantConfiguratorDataAsset* CreateWithDialog(const FName& ConfiguratorID)
	{
		FString PackageName;
		FString AssetName;
		IAssetTools::Get().CreateUniqueAssetName(ContentFolder, TEXT("_") + SanitizeName(ConfiguratorID), PackageName, AssetName);

		UConfiguratorDataAssetFactory* Factory = NewObject<UConfiguratorDataAssetFactory>(GetTransientPackage());
		return Cast<UVelmorantConfiguratorDataAsset>(IAssetTools::Get().CreateAssetWithDialog(
			AssetName, ContentFolder, UVelmorantConfiguratorDataAsset::StaticClass(), Factory, NAME_None, true));
	}

	/** @return whether the wrapper holds a record under that name; if not, the asset is left as it is. */
	bool CopyUnitRecord(const UConfiguratorWrapper& Configurator, const FName& ConfiguratorName, UVelmorantConfiguratorDataAsset& DataAsset)
	{
		const FVelmorantConfigUnit* Unit = Configurator.GetConfigtorUnitCollection().Find(ConfiguratorName);
		if (Unit)
		{
			VelmorantChange::Write(DataAsset, DataAsset.ConfiguratorUnit, *Unit);
		}
		return Unit != nullptr;
	}

	void ReceiveUpdateRequest(EUpdateRequestDataType DataType, UVelmorantConfiguratorDataAsset* DataAsset, const UConfiguratorWrapper* Configurator, const FName& ConfiguratorName)
	{
		if (DataType != EUpdateRequestDataType::ConfiguratorData || !DataAsset || !Configurator)
		{
			return;
		}

		const FScopedTransaction Transaction(LOCTEXT("UpdateLevelVariantSetDataTransaction", "Update LevelVariantSet Data"));
		if (CopyUnitRecord(*Configurator, ConfiguratorName, *DataAsset))
		{
			if (ULevelVariantSets* LevelVariantSets = Cast<ULevelVariantSets>(DataAsset->LevelVariantSets.ResolveObject()))
			{
				LevelVariantGeneration::FillOut(DataAsset, LevelVariantSets);
			}
		}
	}
}

void ConfiguratorDataAssets::Create(const FName& ConfiguratorID)
{
	if (IsAlreadyCreated(ConfiguratorID))
	{
		VelmorantNotifications::Popup(TEXT("Failed Configuration Creation"), TEXT("Configurator is already created"), SNotificationItem::CS_Fail, OutcomeSeconds);
		return;
	}

	// A missing project does not end the operation: it then has no configurator either, and both failures are reported.
	const UProjectWrapper* Project = VelmorantSelectedProject::Find();
	if (!Project)
	{
		ReportLookUpFailure(TEXT("Selected Project Wrapper is null. Please select a project first."));
	}

	const UConfiguratorWrapper* Configurator = Project ? Project->GetConfiguratorByName(ConfiguratorID) : nullptr;
	if (!Configurator)
	{
		ReportLookUpFailure(TEXT("Configurator ID doesn't match"));
		return;
	}

	UVelmorantConfiguratorDataAsset* DataAsset = CreateWithDialog(ConfiguratorID);
	if (!DataAsset)
	{
		VelmorantNotifications::Popup(TEXT("Cancelled Configuration Creation"), TEXT(""), SNotificationItem::CS_Fail, OutcomeSeconds);
		return;
	}

	DataAsset->ConfiguratorName = ConfiguratorID;
	CopyUnitRecord(*Configurator, ConfiguratorID, *DataAsset); // no record under that name leaves the default; not reported
	VelmorantNotifications::Popup(TEXT("Success Configuration Creation"), TEXT(""), SNotificationItem::CS_Success, OutcomeSeconds);
}

bool ConfiguratorDataAssets::Update(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	if (!ConfiguratorData)
	{
		return false;
	}

	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	if (!EditorUser || !EditorUser->HasValidToken())
	{
		VelmorantNotifications::Popup(TEXT("VelmorantDeveloperUser isn't valid"), TEXT("User isn't login or hasn't a valid token. Check login process"), SNotificationItem::CS_Fail, OutcomeSeconds);
		return false;
	}

	const FName ConfiguratorName = ConfiguratorData->ConfiguratorName;
	const UProjectWrapper* Project = VelmorantSelectedProject::Find();
	UConfiguratorWrapper* Configurator = Project ? Project->GetConfiguratorByName(ConfiguratorName) : nullptr;
	if (!Configurator || !Configurator->GetConfigtorUnitCollection().Contains(ConfiguratorName))
	{
		// The blank at the title's end is intended.
		VelmorantNotifications::Popup(TEXT("Fail Configuration Updated "), TEXT("Configurator name doesn't match with current data"), SNotificationItem::CS_Fail, OutcomeSeconds);
		return false;
	}

	Configurator->RequestUpdateData(EUpdateRequestDataType::Configurator, EUpdateRequestType::Get);

	// Never removed on purpose: each successful call adds a handler, and all of them run on every later configurator update.
	// Weak: asset and wrapper may be gone by then.
	EditorUser->GetProjectRequestManager()->GetOnUpdateRequest().AddLambda(
		[WeakDataAsset = TWeakObjectPtr<UVelmorantConfiguratorDataAsset>(ConfiguratorData), WeakConfigurator = TWeakObjectPtr<UConfiguratorWrapper>(Configurator), ConfiguratorName](EUpdateRequestDataType DataType, EUpdateRequestType) {
			ReceiveUpdateRequest(DataType, WeakDataAsset.Get(), WeakConfigurator.Get(), ConfiguratorName);
		});

	// Tells that the refresh was requested, not that data has arrived.
	VelmorantNotifications::Popup(TEXT("Success Configuration Updated"), TEXT(""), SNotificationItem::CS_Success, OutcomeSeconds);
	return true;
}

#undef LOCTEXT_NAMESPACE
