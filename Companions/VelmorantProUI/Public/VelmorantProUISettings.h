// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/DeveloperSettings.h"
#include "Engine/Font.h"
#include "UObject/SoftObjectPtr.h"
#include "VelmorantUIStyleConfiguration.h"
#include "VelmorantProUISettings.generated.h"

/** An icon font that the project uses. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FFontIconSource
{
	GENERATED_BODY()

	/** What icons name the font by; unique in the project. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	FName FontID;

	/** Its icons: rows of FFontIconRow. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	TSoftObjectPtr<UDataTable> IconDataTable;

	/** What draws them: one typeface per style, under the style's name. May be left empty: then the app's own font does. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	TSoftObjectPtr<UFont> Font;
};

/** What a project's user interface is made of; kept in the project's DefaultGame.ini. */
UCLASS(config = Game, defaultconfig, meta = (DisplayName = "Velmorant Pro UI Settings"))
class VELMORANTPROUI_API UVelmorantProUISettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	/** The palette. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	TSoftObjectPtr<UVelmorantUIStyleConfiguration> StyleConfiguration;

	/** In the order in which lists offer them. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	TArray<FFontIconSource> FontIcons;

	//~ Begin UDeveloperSettings
	virtual FName GetContainerName() const override;
	virtual FName GetCategoryName() const override;
	virtual FName GetSectionName() const override;
	//~ End UDeveloperSettings
};
