// Copyright Velmorant. All Rights Reserved.

#include "Configurators/LevelVariantGeneration.h"

#include "AssetRegistry/AssetData.h"
#include "Configurators/VelmorantAssetQueries.h"
#include "EditorServices/VelmorantChange.h"
#include "EditorServices/VelmorantNotifications.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "Misc/Paths.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantProEditor.h"
#include "VelmorantVariantHandler.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace LevelVariantGeneration
{
	const float OutcomeSeconds = 7.0f;
	const TCHAR* const NameSeparator = TEXT("_");

	void Assign(const ULevelVariantSets& LevelVariantSets, UVelmorantConfiguratorDataAsset& DataAsset)
	{
		VelmorantChange::Begin(DataAsset);
		DataAsset.LevelVariantSets.SetPath(LevelVariantSets.GetPathName());
	}

	/** Finds level variant sets whose asset name ends in "_" and the configurator's name, and assigns them to the data asset. */
	ULevelVariantSets* AdoptExisting(UVelmorantConfiguratorDataAsset& DataAsset)
	{
		for (const FAssetData& Asset : VelmorantAssetQueries::FindAssetsOfClass(*ULevelVariantSets::StaticClass()))
		{
			FString Tail; // stays empty for a name without "_", which matches no real name
			Asset.AssetName.ToString().Split(NameSeparator, nullptr, &Tail, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			if (FName(*Tail) != DataAsset.ConfiguratorName)
			{
				continue;
			}

			ULevelVariantSets* LevelVariantSets = Cast<ULevelVariantSets>(Asset.GetAsset());
			if (LevelVariantSets)
			{
				Assign(*LevelVariantSets, DataAsset);
				VelmorantNotifications::Popup(TEXT("Success Configuration Assigned Existing Asset"), TEXT("It exits an LevelVariantSets with the suffix and had been assigned to configurator"), SNotificationItem::CS_Success, OutcomeSeconds);
			}
			return LevelVariantSets;
		}
		return nullptr;
	}

	/** Null when the path names nothing that is loaded. The message is shown all the same, on purpose. */
	ULevelVariantSets* ResolveAssigned(const UVelmorantConfiguratorDataAsset& DataAsset)
	{
		ULevelVariantSets* LevelVariantSets = Cast<ULevelVariantSets>(DataAsset.LevelVariantSets.ResolveObject());
		VelmorantNotifications::Popup(TEXT("Success Configuration LevelVariantSets Updated"), TEXT("Configurator already has a LevelVariantSet. It had been updated"), SNotificationItem::CS_Success, OutcomeSeconds);
		return LevelVariantSets;
	}

	ULevelVariantSets* CreateBeside(UVelmorantConfiguratorDataAsset& DataAsset, const FString& CleanName)
	{
		FString Folder;
		FString FileName;
		FString Extension;
		FPaths::Split(DataAsset.GetPathName(), Folder, FileName, Extension);

		ULevelVariantSets* LevelVariantSets = Cast<ULevelVariantSets>(IAssetTools::Get().CreateAsset(TEXT("LevelVariant_") + CleanName, Folder, ULevelVariantSets::StaticClass(), nullptr));
		if (LevelVariantSets)
		{
			Assign(*LevelVariantSets, DataAsset);
			VelmorantNotifications::Popup(TEXT("Success Configuration Create LevelVariantSet"), TEXT(""), SNotificationItem::CS_Success, OutcomeSeconds);
		}
		return LevelVariantSets;
	}

	void AddMissingVariants(UVariantSet& VariantSet, const FVelmorantConfigGroup& Group)
	{
		// New variants join the set after the loop, so a product named twice must be looked for among them too. Names ignore case.
		TArray<UVariant*> NewVariants;
		TSet<FString> NewNames;
		for (const FVelmorantConfigProduct& Product : Group.Products)
		{
			if (VariantSet.GetVariantByName(Product.Name) || NewNames.Contains(Product.Name))
			{
				continue;
			}

			UVariant* Variant = NewObject<UVariant>(GetTransientPackage(), NAME_None, RF_Transactional);
			Variant->SetDisplayText(FText::FromString(Product.Name));
			NewVariants.Add(Variant);
			NewNames.Add(Product.Name);
		}
		if (!NewVariants.IsEmpty()) // adding none would dirty the asset all the same
		{
			VelmorantChange::Begin(VariantSet);
			VariantSet.AddVariants(NewVariants);
		}
	}

	void WriteDisplayText(UVariantSet& VariantSet, const FString& Text)
	{
		if (!VariantSet.GetDisplayText().ToString().Equals(Text)) // writing it again would dirty the asset all the same
		{
			VelmorantChange::Begin(VariantSet);
			VariantSet.SetDisplayText(FText::FromString(Text));
		}
	}

	void AddMissingGroup(ULevelVariantSets& LevelVariantSets, const FVelmorantConfigRoom& Room, const FVelmorantConfigGroup& Group)
	{
		const FString Name = UVelmorantVariantHandler::CombineVariantSet(Room.Name, Group.Name);

		UVariantSet* VariantSet = LevelVariantSets.GetVariantSetByName(Name);
		const bool bNewSet = VariantSet == nullptr;
		if (bNewSet)
		{
			VariantSet = NewObject<UVariantSet>(GetTransientPackage(), NAME_None, RF_Transactional);
		}

		AddMissingVariants(*VariantSet, Group);
		WriteDisplayText(*VariantSet, Name);
		if (bNewSet)
		{
			VelmorantChange::Begin(LevelVariantSets);
			LevelVariantSets.AddVariantSets({VariantSet});
		}
	}
}

void LevelVariantGeneration::CreateOrUpdate(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	if (!ConfiguratorData)
	{
		return;
	}

	// IsValid() is meant, not "is None": a None name is a valid entry and passes.
	if (!ConfiguratorData->ConfiguratorName.IsValid() && ConfiguratorData->ConfiguratorUnit.Rooms.IsEmpty())
	{
		// The blank at the title's end is intended.
		VelmorantNotifications::Popup(TEXT("Failed Configuration LevelVariantSet Creation "), TEXT("Configurator data not valid to create LevelVariantSet"), SNotificationItem::CS_Fail, OutcomeSeconds);
		return;
	}

	const FScopedTransaction Transaction(LOCTEXT("CreateLevelVariantSetTransaction", "Create LevelVariantSet"));
	ULevelVariantSets* LevelVariantSets = ConfiguratorData->LevelVariantSets.IsNull()
		? AdoptExisting(*ConfiguratorData)
		: ResolveAssigned(*ConfiguratorData);
	if (!LevelVariantSets)
	{
		const FString CleanName = ConfiguratorData->ConfiguratorName.ToString().Replace(TEXT(" "), TEXT("_"));
		LevelVariantSets = CreateBeside(*ConfiguratorData, CleanName);
	}

	if (!FillOut(ConfiguratorData, LevelVariantSets))
	{
		// The format names the other operation on purpose: both failures are found by the same search in the log.
		const FString Message = TEXT("Configurator ID doesn't match");
		UE_LOG(LogVelmorantProEditor, Warning, TEXT("UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator :: Failed \n %s"), *Message);
		VelmorantNotifications::Popup(TEXT("Failed Configuration LevelVariantSet Creation"), Message, SNotificationItem::CS_Fail, OutcomeSeconds);
	}
}

bool LevelVariantGeneration::FillOut(UVelmorantConfiguratorDataAsset* ConfiguratorData, ULevelVariantSets* LevelVariantSets)
{
	if (!LevelVariantSets)
	{
		VelmorantNotifications::Popup(TEXT("Fail to Fill Out Level Variant"), TEXT("Level variant is null"), SNotificationItem::CS_Fail, OutcomeSeconds);
		return false;
	}

	if (!ConfiguratorData)
	{
		return true; // nothing to add
	}

	const FScopedTransaction Transaction(LOCTEXT("FillOutLevelVariantSetTransaction", "Fill Out LevelVariantSet"));
	const TArray<FVelmorantConfigRoom> Rooms = ConfiguratorData->ConfiguratorUnit.Rooms; // a copy: whoever is told of the changes may change the record
	for (const FVelmorantConfigRoom& Room : Rooms)
	{
		for (const FVelmorantConfigGroup& Group : Room.Groups)
		{
			AddMissingGroup(*LevelVariantSets, Room, Group);
		}
	}
	return true;
}

#undef LOCTEXT_NAMESPACE
