// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

class IPropertyHandle;
class SWidget;

/** What the drop-down lists of names in the details panel have in common. */
namespace VelmorantPropertyOptions
{
	/** One option per name, in order: the form that the searchable combo box takes. */
	TArray<TSharedPtr<FString>> Make(const TArray<FName>& Names);

	/** The option of that name, ignoring case; null when there is none. */
	TSharedPtr<FString> Find(const TArray<TSharedPtr<FString>>& Options, FName Name);

	/** The name that the property holds; "Multiple Values" when the selected objects differ. */
	FText GetValueText(const TSharedPtr<IPropertyHandle>& Handle);

	/** A text block in the font of the details panel. */
	TSharedRef<SWidget> MakeText(const TAttribute<FText>& Text);
}
