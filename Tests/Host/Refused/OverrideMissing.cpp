// refused: a function that overrides without saying so
// compiler: 'virtual void FFinishModule::StartupModule()' can be marked override
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FFinishModule : public IModuleInterface
{
public:
	virtual void StartupModule();
};
