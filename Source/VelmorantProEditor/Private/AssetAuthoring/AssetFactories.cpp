// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/AssetFactories.h"

#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "MinimapConfigAsset.h"
#include "Misc/MessageDialog.h"
#include "VelmorantAssets.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantUIStyleConfiguration.h"

namespace AssetFactories
{
	void ReportNoBlueprint(const UClass* ParentClass)
	{
		FFormatNamedArguments Arguments;
		Arguments.Add(TEXT("ClassName"), ParentClass ? FText::FromString(ParentClass->GetName()) : NSLOCTEXT("UnrealEd", "Null", "(null)"));
		FMessageDialog::Open(EAppMsgType::Ok, FText::Format(NSLOCTEXT("UnrealEd", "CannotCreateBlueprintFromClass", "Cannot create a blueprint based on the class '{ClassName}'."), Arguments));
	}
}

UVelmorantAssetFactory::UVelmorantAssetFactory()
{
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UVelmorantObjectFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags | AddedFlags);
}

/** The caller's flags are not used: the Blueprint sets its own. */
UObject* UVelmorantBlueprintFactory::FactoryCreateNew(UClass*, UObject* InParent, FName InName, EObjectFlags, UObject*, FFeedbackContext*)
{
	UClass* ParentClass = SupportedClass;
	if (!ParentClass || !FKismetEditorUtilities::CanCreateBlueprintOfClass(ParentClass))
	{
		AssetFactories::ReportNoBlueprint(ParentClass);
		return nullptr;
	}
	return FKismetEditorUtilities::CreateBlueprint(ParentClass, InParent, InName, BPTYPE_Normal, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), NAME_None);
}

UConfiguratorDataAssetFactory::UConfiguratorDataAssetFactory()
{
	SupportedClass = UVelmorantConfiguratorDataAsset::StaticClass();
	AddedFlags = RF_Transactional;
}

UConfiguratorItemOverrideFactory::UConfiguratorItemOverrideFactory()
{
	SupportedClass = UVelmorantConfiguratorItemOverride::StaticClass();
	AddedFlags = RF_Transactional;
}

UUIStyleConfigurationAssetFactory::UUIStyleConfigurationAssetFactory()
{
	SupportedClass = UVelmorantUIStyleConfiguration::StaticClass();
	AddedFlags = RF_Transactional;
}

UMapLinkerAssetFactory::UMapLinkerAssetFactory()
{
	SupportedClass = UVelmorantMapsLinkerConfig::StaticClass();
}

UMinimapDataAssetFactory::UMinimapDataAssetFactory()
{
	SupportedClass = UMinimapConfigAsset::StaticClass();
}

UISPActionBaseFactory::UISPActionBaseFactory()
{
	SupportedClass = UVlmISPActionsBase::StaticClass();
}

UUnitVolumeActionFactory::UUnitVolumeActionFactory()
{
	SupportedClass = UUnitVolumeAction::StaticClass();
}
