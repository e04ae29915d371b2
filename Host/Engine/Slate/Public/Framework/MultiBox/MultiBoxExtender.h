// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FMenuBuilder;

DECLARE_DELEGATE_OneParam(FNewMenuDelegate, FMenuBuilder&);
