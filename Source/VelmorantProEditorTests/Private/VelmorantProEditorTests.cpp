// Copyright Velmorant. All Rights Reserved.

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, VelmorantProEditorTests)
