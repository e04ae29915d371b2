// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Logging/LogMacros.h"

DECLARE_LOG_CATEGORY_EXTERN(LogVelmorantProUI, Log, All);
