// Copyright Velmorant. All Rights Reserved.

#include "VariantSet.h"

#include "LevelVariantSets.h"
#include "Variant.h"
#include "VariantList.h"

#define LOCTEXT_NAMESPACE "VariantManagerContent"

UVariantSet::UVariantSet(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, DisplayText(LOCTEXT("DefaultVariantSetText", "Variant Set"))
	, List(MakeUnique<TVariantList<UVariant>>(*this, Variants))
{
}

UVariantSet::~UVariantSet() = default;

ULevelVariantSets* UVariantSet::GetParent()
{
	return Cast<ULevelVariantSets>(GetOuter());
}

void UVariantSet::SetDisplayText(const FText& NewDisplayText)
{
	Modify();
	DisplayText = NewDisplayText;
	TellParent();
}

void UVariantSet::TellParent()
{
	if (ULevelVariantSets* Parent = GetParent())
	{
		Parent->List->NoteTextChanged(*this);
	}
}

void UVariantSet::AddVariants(const TArray<UVariant*>& NewVariants, int32 Index)
{
	List->Add(NewVariants, Index);
}

void UVariantSet::RemoveVariants(const TArray<UVariant*>& InVariants)
{
	List->Remove(InVariants);
}

int32 UVariantSet::GetVariantIndex(UVariant* Variant)
{
	return List->FindElement(Variant);
}

UVariant* UVariantSet::GetVariantByName(FString VariantName)
{
	return List->FindByText(VariantName);
}

void UVariantSet::PostLoad()
{
	Super::PostLoad();
	List->NoteElementsChanged();
}

void UVariantSet::PostEditUndo()
{
	List->NoteElementsChanged();
	TellParent();
	Super::PostEditUndo();
}

void VariantList::LeaveParent(UVariantSet& VariantSet)
{
	if (ULevelVariantSets* Parent = VariantSet.GetParent())
	{
		Parent->RemoveVariantSets({&VariantSet});
	}
}

#undef LOCTEXT_NAMESPACE
