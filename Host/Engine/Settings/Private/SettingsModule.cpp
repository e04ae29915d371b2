// Copyright Velmorant. All Rights Reserved.

#include "HostSettings.h"
#include "ISettingsModule.h"
#include "Modules/ModuleManager.h"

class FSettingsModule : public ISettingsModule
{
public:
	//~ Begin ISettingsModule
	virtual void ShowViewer(const FName& ContainerName, const FName& CategoryName, const FName& SectionName) override
	{
		ShownPages.Add(HostSettings::FShownPage{ContainerName, CategoryName, SectionName});
	}
	//~ End ISettingsModule

	TArray<HostSettings::FShownPage> ShownPages;
};

IMPLEMENT_MODULE(FSettingsModule, Settings)

TArray<HostSettings::FShownPage> HostSettings::GetShownPages()
{
	const ISettingsModule* Module = FModuleManager::GetModulePtr<ISettingsModule>("Settings");
	return Module != nullptr ? static_cast<const FSettingsModule*>(Module)->ShownPages : TArray<FShownPage>();
}
