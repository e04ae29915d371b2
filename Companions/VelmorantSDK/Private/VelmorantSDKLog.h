// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

DECLARE_LOG_CATEGORY_EXTERN(LogVelmorantSDK, Log, All);
