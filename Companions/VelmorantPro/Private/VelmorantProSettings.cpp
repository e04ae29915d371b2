// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProSettings.h"

FName UVelmorantProSettings::GetCategoryName() const
{
	return TEXT("Plugins");
}
