// refused: a second one of what an editor has one of
// compiler: 'FModuleManager::FModuleManager()' is private within this context
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Modules/ModuleManager.h"

FModuleManager SecondManager;
