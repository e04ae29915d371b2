// refused: a function that overrides without saying so
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FFinishModule : public IModuleInterface
{
public:
	virtual void StartupModule();
};
