// Copyright Velmorant. All Rights Reserved.

#include "VelmorantSDKSettings.h"

FName UVelmorantSDKSettings::GetCategoryName() const
{
	return TEXT("Plugins");
}
