// Copyright Velmorant. All Rights Reserved.

#include "LevelVariantSets.h"

#include "Modules/ModuleManager.h"
#include "VariantList.h"
#include "VariantSet.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, VariantManagerContent)

ULevelVariantSets::ULevelVariantSets(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, List(MakeUnique<TVariantList<UVariantSet>>(*this, VariantSets))
{
}

ULevelVariantSets::~ULevelVariantSets() = default;

void ULevelVariantSets::AddVariantSets(const TArray<UVariantSet*>& NewVariantSets, int32 Index)
{
	List->Add(NewVariantSets, Index);
}

void ULevelVariantSets::RemoveVariantSets(const TArray<UVariantSet*> InVariantSets)
{
	List->Remove(InVariantSets);
}

UVariantSet* ULevelVariantSets::GetVariantSet(int32 VariantSetIndex)
{
	return VariantSets.IsValidIndex(VariantSetIndex) ? VariantSets[VariantSetIndex] : nullptr;
}

UVariantSet* ULevelVariantSets::GetVariantSetByName(FString VariantSetName)
{
	return List->FindByText(VariantSetName);
}

void ULevelVariantSets::PostLoad()
{
	Super::PostLoad();
	List->NoteElementsChanged();
}

void ULevelVariantSets::PostEditUndo()
{
	List->NoteElementsChanged();
	Super::PostEditUndo();
}
