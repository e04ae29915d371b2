// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProUISettings.h"

FName UVelmorantProUISettings::GetContainerName() const
{
	return TEXT("Project");
}

FName UVelmorantProUISettings::GetCategoryName() const
{
	return TEXT("Plugins");
}

FName UVelmorantProUISettings::GetSectionName() const
{
	return TEXT("VelmorantProUISettings");
}
