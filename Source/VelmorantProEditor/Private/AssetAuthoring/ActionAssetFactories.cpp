// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ActionAssetFactories.h"

#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/MessageDialog.h"
#include "VelmorantAssets.h"

namespace ActionAssetFactories
{
	void ReportNoBlueprint(const UClass* ParentClass)
	{
		FFormatNamedArguments Arguments;
		Arguments.Add(TEXT("ClassName"), ParentClass ? FText::FromString(ParentClass->GetName()) : NSLOCTEXT("UnrealEd", "Null", "(null)"));
		FMessageDialog::Open(EAppMsgType::Ok, FText::Format(NSLOCTEXT("UnrealEd", "CannotCreateBlueprintFromClass", "Cannot create a blueprint based on the class '{ClassName}'."), Arguments));
	}

	/** The caller's flags are not used: the Blueprint sets its own. */
	UObject* CreateActionBlueprint(UClass* ParentClass, UObject* InParent, FName InName)
	{
		if (!ParentClass || !FKismetEditorUtilities::CanCreateBlueprintOfClass(ParentClass))
		{
			ReportNoBlueprint(ParentClass);
			return nullptr;
		}
		return FKismetEditorUtilities::CreateBlueprint(ParentClass, InParent, InName, BPTYPE_Normal, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass(), NAME_None);
	}
}

UISPActionBaseFactory::UISPActionBaseFactory()
{
	SupportedClass = UVlmISPActionsBase::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UISPActionBaseFactory::FactoryCreateNew(UClass*, UObject* InParent, FName InName, EObjectFlags, UObject*, FFeedbackContext*)
{
	return ActionAssetFactories::CreateActionBlueprint(UVlmISPActionsBase::StaticClass(), InParent, InName);
}

UUnitVolumeActionFactory::UUnitVolumeActionFactory()
{
	SupportedClass = UUnitVolumeAction::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UUnitVolumeActionFactory::FactoryCreateNew(UClass*, UObject* InParent, FName InName, EObjectFlags, UObject*, FFeedbackContext*)
{
	return ActionAssetFactories::CreateActionBlueprint(UUnitVolumeAction::StaticClass(), InParent, InName);
}
