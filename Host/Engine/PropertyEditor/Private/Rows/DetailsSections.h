// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class FPropertyNode;
class SHostPartList;
class SWidget;
class UClass;

/** The sections of the shown objects' classes: a button for each, and which categories the picked one has. */
class FDetailsSections
{
public:
	/** OnPicked is told of clicks; it is up to its owner to Pick(). */
	explicit FDetailsSections(TFunction<void(FName)> InOnPicked);

	/** None shows all categories. */
	void Pick(FName InSection) { Picked = InSection; }

	/** Whether the picked section has the category. One that the class does not have has none. */
	bool Show(const FString& Category, const UClass* Class) const;

	/**
	 * One button for each section of the objects' classes that has something of theirs, and one for all categories; nothing without such
	 * a section.
	 */
	void MakeButtons(FPropertyNode& Root);

	TSharedRef<SWidget> GetButtons() const;

private:
	void AddButton(FName Name, const FText& Label);

	FName Picked;
	TFunction<void(FName)> OnPicked;
	TSharedRef<SHostPartList> Buttons;
};
