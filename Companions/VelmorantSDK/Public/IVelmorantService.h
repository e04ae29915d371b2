// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "VelmorantConfiguratorTypes.h"
#include "VelmorantSDKTypes.h"

/** The service's answer to a login. */
struct FVelmorantLoginAnswer
{
	bool bSuccess = false;
	FLoginInfo LoginInfo;
	FString Token;
	double TokenSeconds = 0.0; // how long the token stays valid
};

/** One configurator as the service sends it. */
struct FVelmorantConfiguratorRecord
{
	FName Name;
	TMap<FName, FVelmorantConfigUnit> Units; // usually one, under the configurator's own name
	TArray<FVelmorantConfiguratorUnitGroup> UnitGroups;
};

/** One unit group with its units as the service sends it. */
struct FVelmorantUnitGroupRecord
{
	FUnitGroupData Group;
	TArray<FUnitData> Units;
};

/** The service's answer to a request for a project's data. */
struct FVelmorantProjectAnswer
{
	bool bSuccess = false;
	TArray<FVelmorantUnitGroupRecord> UnitGroups;
	TArray<FVelmorantConfiguratorRecord> Configurators;
};

/**
 * The online service. Every request is answered exactly once, later, on the game thread, never within the call itself; a service
 * that is destroyed answers nothing any more. A request that fails is answered with failure: an unknown or expired token, an
 * unknown project, no connection. Reasons go to the log.
 */
class VELMORANTSDK_API IVelmorantService
{
public:
	virtual ~IVelmorantService() = default;

	virtual void RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer) = 0;

	virtual void RequestLogout(const FString& Token) = 0;

	virtual void RequestProjects(const FString& Token, TFunction<void(bool bSuccess, const TArray<FProject>&)> OnAnswer) = 0;

	virtual void RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer) = 0;

	/** Unset when the request failed. */
	virtual void RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const TOptional<FVelmorantConfiguratorRecord>&)> OnAnswer) = 0;
};
