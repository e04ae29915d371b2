// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "VelmorantProSettings.generated.h"

/** How a project's models are put together; kept in the project's DefaultGame.ini. */
UCLASS(config = Game, defaultconfig, meta = (DisplayName = "Velmorant Pro Settings"))
class VELMORANTPRO_API UVelmorantProSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	/** What stands between room and group in the name of a variant set. Sets that were made with another one are not found again. */
	UPROPERTY(Config, EditAnywhere, Category = "Variants")
	FString VariantSetSeparator = TEXT(" - ");

	/** Whether the name of a variant set begins with the group rather than with the room. */
	UPROPERTY(Config, EditAnywhere, Category = "Variants")
	bool bGroupBeforeRoom = false;

	//~ Begin UDeveloperSettings
	virtual FName GetCategoryName() const override;
	//~ End UDeveloperSettings
};
