// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostSettings.h"
#include "ISettingsModule.h"

class UDeveloperSettings;
struct FPropertyChangedEvent;

/** The settings viewer: the page that it shows, and those that it was asked for. */
class FSettingsModule : public ISettingsModule
{
public:
	//~ Begin IModuleInterface
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
	//~ End IModuleInterface

	//~ Begin ISettingsModule
	virtual void ShowViewer(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) override;
	//~ End ISettingsModule

	TOptional<HostSettings::FOpenPage> OpenPage;

private:
	void SaveChange(UObject* Object, FPropertyChangedEvent& Event);
};
