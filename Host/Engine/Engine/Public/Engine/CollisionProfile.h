// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "Engine/EngineTypes.h"
#include "CollisionProfile.generated.h"

/** One collision profile, as config files write it. The order of the properties is the order in the file. */
USTRUCT()
struct ENGINE_API FCollisionResponseTemplate
{
	GENERATED_BODY()

	UPROPERTY()
	FName Name;

	UPROPERTY()
	TEnumAsByte<ECollisionEnabled::Type> CollisionEnabled = ECollisionEnabled::QueryAndPhysics;

	UPROPERTY()
	bool bCanModify = true;

	UPROPERTY()
	FName ObjectTypeName;

	/** Where the profile differs from the channels' own defaults. */
	UPROPERTY()
	TArray<FResponseChannel> CustomResponses;

	UPROPERTY()
	FString HelpMessage;

	/** Worked out from ObjectTypeName when the profile is loaded; never written. */
	TEnumAsByte<ECollisionChannel> ObjectType = ECC_WorldStatic;

	/** Worked out from the channels' defaults and CustomResponses when the profile is loaded; never written. */
	FCollisionResponseContainer ResponseToChannels;
};

/** A channel of the project's own. */
USTRUCT()
struct ENGINE_API FCustomChannelSetup
{
	GENERATED_BODY()

	UPROPERTY()
	TEnumAsByte<ECollisionChannel> Channel = ECC_WorldStatic;

	UPROPERTY()
	TEnumAsByte<ECollisionResponse> DefaultResponse = ECR_Block;

	/** A channel for traces; otherwise an object type. */
	UPROPERTY()
	bool bTraceType = false;

	UPROPERTY()
	bool bStaticObject = false;

	UPROPERTY()
	FName Name;
};

/** Responses that a project adds to a profile of the engine. */
USTRUCT()
struct ENGINE_API FCustomProfile
{
	GENERATED_BODY()

	UPROPERTY()
	FName Name;

	UPROPERTY()
	TArray<FResponseChannel> CustomResponses;
};

/**
 * The collision profiles and channels of the engine and the project.
 *
 * The arrays hold what the merged engine config says. What profiles resolve to is worked out beside them, so that writing the
 * settings back gives the lines that were read, in the engine's own form.
 */
UCLASS(Config = Engine, DefaultConfig, meta = (DisplayName = "Collision"))
class ENGINE_API UCollisionProfile : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	/** The class default object, with the profiles loaded. */
	static UCollisionProfile* Get();

	/** Reads the engine config when that has not happened yet, or again when bForceInit. */
	void LoadProfileConfig(bool bForceInit = false);

	/**
	 * Finds a profile by name, ignoring case; a name that a redirect replaces finds the new one.
	 * @return whether there is such a profile; if not, ProfileData stays as it was.
	 */
	bool GetProfileTemplate(FName ProfileName, FCollisionResponseTemplate& ProfileData) const;

	/** Null when there is no such index. Good until the profiles are loaded again. */
	const FCollisionResponseTemplate* GetProfileByIndex(int32 Index) const;

	int32 GetNumOfProfiles() const { return LoadedProfiles.Num(); }

protected:
	UPROPERTY(GlobalConfig)
	TArray<FCollisionResponseTemplate> Profiles;

	UPROPERTY(GlobalConfig)
	TArray<FCustomChannelSetup> DefaultChannelResponses;

	UPROPERTY(GlobalConfig)
	TArray<FCustomProfile> EditProfiles;

	UPROPERTY(GlobalConfig)
	TArray<FRedirector> ProfileRedirects;

	UPROPERTY(GlobalConfig)
	TArray<FRedirector> CollisionChannelRedirects;

private:
	void LoadChannels();
	void LoadProfiles();
	void ResolveProfile(FCollisionResponseTemplate& Profile) const;
	int32 FindChannel(FName ChannelName) const;

	/** By channel number; 32 once loaded. */
	TArray<FName> ChannelNames;

	FCollisionResponseContainer DefaultResponses;

	TArray<FCollisionResponseTemplate> LoadedProfiles;

	/** Into LoadedProfiles. */
	TMap<FName, int32> ProfileIndices;

	bool bLoaded = false;
};
