// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

/** The viewers of project settings and editor preferences. */
class ISettingsModule : public IModuleInterface
{
public:
	/**
	 * Opens the viewer at one page, e.g. "Project", "Engine", "CollisionProfile", instead of the page that it showed.
	 *
	 * Host: every class of developer settings has a page; what is changed there is saved at once. Asking for one that is not there leaves the viewer as it was and is
	 * logged, together with those that are.
	 */
	virtual void ShowViewer(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) = 0;
};
