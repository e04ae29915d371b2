// refused: a const override of a function that is not const
// compiler: 'virtual void FFinishModule::StartupModule() const' marked 'override', but does not override
// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FFinishModule : public IModuleInterface
{
public:
	virtual void StartupModule() const override;
};
