// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/EngineSubsystem.h"
#include "Templates/UniquePtr.h"
#include "VelmorantSDKEngineSubsystem.generated.h"

class IVelmorantService;
class UVelmorantDeveloperUser;
class UVelmorantUser;

/** Owns the users and the connection to the service; lives as long as the engine. */
UCLASS()
class VELMORANTSDK_API UVelmorantSDKEngineSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	UVelmorantSDKEngineSubsystem();
	virtual ~UVelmorantSDKEngineSubsystem() override;

	/** Null before the engine has made its subsystems. */
	static UVelmorantSDKEngineSubsystem* Get();

	/**
	 * The developer user of the editor.
	 * @param bCreateIfMissing make one when there is none; otherwise null is returned then.
	 */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|User")
	static UVelmorantDeveloperUser* GetVelmorantEditorUser(bool bCreateIfMissing);

	/** Makes sure that the developer user exists and is the current user while no model runs. */
	static void EnsureUserEditorContext();

	/** The current user: the developer user in the editor context, and in the running model too if they act there; otherwise the model's own. Never null. */
	UVelmorantUser* GetVelmorantUser();

	/** Where requests go; made on first use from the settings. Never null. */
	IVelmorantService& GetService();

	//~ Begin USubsystem
	virtual void Deinitialize() override;
	//~ End USubsystem

private:
	UPROPERTY()
	TObjectPtr<UVelmorantDeveloperUser> DeveloperUser;

	UPROPERTY()
	TObjectPtr<UVelmorantUser> RuntimeUser;

	TUniquePtr<IVelmorantService> Service;
	bool bEditorContext = false;
};
