// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "VelmorantConfiguratorTypes.h"
#include "VelmorantSDKTypes.h"

/** Why a request failed. */
enum class EVelmorantFailure : uint8
{
	None, // it did not
	WrongCredentials, // logins only: no such user, or another password
	NotReachable,
	NotConfigured, // nobody said where the service is
	UnusableData, // there was an answer that makes no sense
	NoAnswer, // within the time limit
	NotSignedIn, // no token, or one that is not valid any more
	Refused, // the project or configurator does not exist, or not for this user
	GivenUp, // the user signed out meanwhile
};

/** What all answers have. */
struct FVelmorantAnswer
{
	EVelmorantFailure Failure = EVelmorantFailure::None;

	bool IsSuccess() const { return Failure == EVelmorantFailure::None; }
};

/** The service's answer to a login. */
struct FVelmorantLoginAnswer : public FVelmorantAnswer
{
	FLoginInfo LoginInfo;
	FString Token;
	double TokenSeconds = 0.0; // how long the token stays valid
};

/** The service's answer to a request for the user's projects. */
struct FVelmorantProjectsAnswer : public FVelmorantAnswer
{
	TArray<FProject> Projects;
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
struct FVelmorantProjectAnswer : public FVelmorantAnswer
{
	TArray<FVelmorantUnitGroupRecord> UnitGroups;
	TArray<FVelmorantConfiguratorRecord> Configurators;
};

/** The service's answer to a request for one configurator. */
struct FVelmorantConfiguratorAnswer : public FVelmorantAnswer
{
	FVelmorantConfiguratorRecord Configurator;
};

/**
 * The online service. Every request is answered at most once, later, on the game thread, never within the call itself; a service
 * that is destroyed answers nothing any more. A request that fails is answered with why. What there is to say beyond that goes to the log.
 */
class VELMORANTSDK_API IVelmorantService
{
public:
	virtual ~IVelmorantService() = default;

	virtual void RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer) = 0;

	virtual void RequestLogout(const FString& Token) = 0;

	virtual void RequestProjects(const FString& Token, TFunction<void(const FVelmorantProjectsAnswer&)> OnAnswer) = 0;

	virtual void RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer) = 0;

	virtual void RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const FVelmorantConfiguratorAnswer&)> OnAnswer) = 0;
};
