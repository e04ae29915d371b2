// Copyright Velmorant. All Rights Reserved.

#include "Variant.h"

#include "VariantList.h"
#include "VariantSet.h"

#define LOCTEXT_NAMESPACE "VariantManagerContent"

UVariant::UVariant(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, DisplayText(LOCTEXT("DefaultVariantText", "Variant"))
{
}

UVariantSet* UVariant::GetParent()
{
	return Cast<UVariantSet>(GetOuter());
}

void UVariant::SetDisplayText(const FText& NewDisplayText)
{
	Modify();
	DisplayText = NewDisplayText;
	TellParent();
}

void UVariant::PostEditUndo()
{
	TellParent();
	Super::PostEditUndo();
}

void UVariant::TellParent()
{
	if (UVariantSet* Parent = GetParent())
	{
		Parent->List->NoteTextChanged(*this);
	}
}

void VariantList::LeaveParent(UVariant& Variant)
{
	if (UVariantSet* Parent = Variant.GetParent())
	{
		Parent->RemoveVariants({&Variant});
	}
}

#undef LOCTEXT_NAMESPACE
