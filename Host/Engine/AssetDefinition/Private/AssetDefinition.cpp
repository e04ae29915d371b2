// Copyright Velmorant. All Rights Reserved.

#include "AssetDefinition.h"

#include "Modules/ModuleManager.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "AssetDefinition"

FAssetCategoryPath EAssetCategoryPaths::Basic(LOCTEXT("BasicCategory", "Basic"));
FAssetCategoryPath EAssetCategoryPaths::Blueprint(LOCTEXT("BlueprintCategory", "Blueprint"));
FAssetCategoryPath EAssetCategoryPaths::Material(LOCTEXT("MaterialCategory", "Material"));
FAssetCategoryPath EAssetCategoryPaths::Texture(LOCTEXT("TextureCategory", "Texture"));
FAssetCategoryPath EAssetCategoryPaths::Animation(LOCTEXT("AnimationCategory", "Animation"));
FAssetCategoryPath EAssetCategoryPaths::Cinematics(LOCTEXT("CinematicsCategory", "Cinematics"));
FAssetCategoryPath EAssetCategoryPaths::Audio(LOCTEXT("AudioCategory", "Audio"));
FAssetCategoryPath EAssetCategoryPaths::Physics(LOCTEXT("PhysicsCategory", "Physics"));
FAssetCategoryPath EAssetCategoryPaths::UI(LOCTEXT("UserInterfaceCategory", "User Interface"));
FAssetCategoryPath EAssetCategoryPaths::Misc(LOCTEXT("MiscellaneousCategory", "Miscellaneous"));
FAssetCategoryPath EAssetCategoryPaths::Gameplay(LOCTEXT("GameplayCategory", "Gameplay"));
FAssetCategoryPath EAssetCategoryPaths::AI(LOCTEXT("ArtificialIntelligenceCategory", "Artificial Intelligence"));
FAssetCategoryPath EAssetCategoryPaths::Input(LOCTEXT("InputCategory", "Input"));
FAssetCategoryPath EAssetCategoryPaths::FX(LOCTEXT("FXCategory", "FX"));
FAssetCategoryPath EAssetCategoryPaths::Foliage(LOCTEXT("FoliageCategory", "Foliage"));
FAssetCategoryPath EAssetCategoryPaths::World(LOCTEXT("WorldCategory", "World"));

#undef LOCTEXT_NAMESPACE

FText UAssetDefinition::GetAssetDisplayName() const
{
	const UClass* AssetClass = GetAssetClass().LoadSynchronous();
	return AssetClass != nullptr ? AssetClass->GetDisplayNameText() : FText::GetEmpty();
}

FText UAssetDefinition::GetAssetDisplayName(const FAssetData&) const
{
	return GetAssetDisplayName();
}

TSoftClassPtr<UObject> UAssetDefinition::GetAssetClass() const
{
	checkf(false, TEXT("%s must override GetAssetClass()."), *GetClass()->GetName());
	return TSoftClassPtr<UObject>();
}

FLinearColor UAssetDefinition::GetAssetColor() const
{
	checkf(false, TEXT("%s must override GetAssetColor()."), *GetClass()->GetName());
	return FLinearColor::White;
}

TConstArrayView<FAssetCategoryPath> UAssetDefinition::GetAssetCategories() const
{
	return TConstArrayView<FAssetCategoryPath>();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, AssetDefinition)
