// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

/** The viewers of project settings and editor preferences. */
class ISettingsModule : public IModuleInterface
{
public:
	/** Opens the viewer at one page, e.g. "Project", "Engine", "CollisionProfile". Host: there is no viewer; the call is recorded. */
	virtual void ShowViewer(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) = 0;
};
