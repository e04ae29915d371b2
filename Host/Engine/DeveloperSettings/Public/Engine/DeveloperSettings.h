// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "DeveloperSettings.generated.h"

/**
 * Settings that live in a config file and have a page of their own in the settings viewer.
 * Only the class default object is ever used; its class says which config file.
 */
UCLASS(Abstract)
class DEVELOPERSETTINGS_API UDeveloperSettings : public UObject
{
	GENERATED_BODY()

public:
	/** Which viewer shows the page: "Editor" for a user's own preferences, otherwise "Project". */
	virtual FName GetContainerName() const;

	/** The heading the page stands under: "Engine", "Game" or "Editor" by its config file, otherwise "General". */
	virtual FName GetCategoryName() const;

	/** What the page is called in addresses: the class's name. */
	virtual FName GetSectionName() const;
};
