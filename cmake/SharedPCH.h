// Copyright Velmorant. All Rights Reserved.
// Precompiled for every module above CoreUObject; sources still include what they use.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
