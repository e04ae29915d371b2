// Copyright Velmorant. All Rights Reserved.

#include "EditorSubsystem.h"

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, EditorSubsystem)
