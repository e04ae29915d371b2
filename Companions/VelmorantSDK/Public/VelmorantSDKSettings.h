// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "VelmorantSDKSettings.generated.h"

/** Project settings of the SDK, kept in the project's DefaultGame.ini. */
UCLASS(config = Game, defaultconfig, meta = (DisplayName = "Velmorant SDK Settings"))
class VELMORANTSDK_API UVelmorantSDKSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	/** The API key of the project that this model belongs to; the project selector preselects it. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	FString ApiKey;

	/** The file that stands in for the online service; relative paths start at the project's folder. The switch -VelmorantService= overrides it. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	FString ServiceDataFile;

	/** Seconds that the service has to answer a request. 0 for no limit. */
	UPROPERTY(Config, EditAnywhere, Category = "Velmorant")
	float RequestTimeoutSeconds = 30.0f;

	//~ Begin UDeveloperSettings
	virtual FName GetCategoryName() const override;
	//~ End UDeveloperSettings
};
