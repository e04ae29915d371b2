// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IVelmorantService.h"

/** The requests that a data file can make fail. */
enum class EServiceRequest : uint8
{
	Login,
	Projects,
	ProjectData,
	Configurator
};

struct FServiceUser
{
	FString UserName; // compared without regard to case
	FString Password;
	FLoginInfo LoginInfo; // the picture as its file was at the last request
	FString PictureFile; // empty for none
	TArray<FString> ProjectKeyCodes;
};

struct FServiceProject
{
	FProject Project;
	TArray<FVelmorantUnitGroupRecord> UnitGroups;
	TArray<FVelmorantConfiguratorRecord> Configurators;
};

/** All that a data file says; valid as a whole. */
struct FServiceData
{
	double DelaySeconds = 0.0;
	double TokenSeconds = 0.0;
	TArray<FServiceUser> Users;
	TArray<FServiceProject> Projects;
	TArray<EServiceRequest> FailingRequests;
};
