// Copyright Velmorant. All Rights Reserved.

#include "Modules/ModuleManager.h"
#include "VelmorantProUILog.h"

DEFINE_LOG_CATEGORY(LogVelmorantProUI);

IMPLEMENT_MODULE(FDefaultModuleImpl, VelmorantProUI)
