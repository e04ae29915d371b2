// Copyright Velmorant. All Rights Reserved.

#include "SettingsModule.h"

#include "Engine/DeveloperSettings.h"
#include "HostDetailsView.h"
#include "Logging/LogMacros.h"
#include "Modules/ModuleManager.h"
#include "SettingsPage.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

DEFINE_LOG_CATEGORY_STATIC(LogSettings, Log, All);

IMPLEMENT_MODULE(FSettingsModule, Settings)

namespace SettingsModule
{
	HostSettings::FPageAddress AddressOf(const UDeveloperSettings& Settings)
	{
		return {Settings.GetContainerName(), Settings.GetCategoryName(), Settings.GetSectionName()};
	}

	/** The default objects of all classes that have a page, by address. */
	TArray<UDeveloperSettings*> GetAll()
	{
		TArray<UClass*> Classes;
		GetDerivedClasses(UDeveloperSettings::StaticClass(), Classes);
		TArray<UDeveloperSettings*> Result;
		for (UClass* Class : Classes)
		{
			if (!Class->HasAnyClassFlags(CLASS_Abstract))
			{
				Result.Add(CastChecked<UDeveloperSettings>(Class->GetDefaultObject()));
			}
		}
		Result.Sort([](const UDeveloperSettings& Left, const UDeveloperSettings& Right) { return AddressOf(Left).ToString() < AddressOf(Right).ToString(); });
		return Result;
	}

	UDeveloperSettings* Find(const HostSettings::FPageAddress& Address)
	{
		for (UDeveloperSettings* Settings : GetAll())
		{
			if (AddressOf(*Settings) == Address)
			{
				return Settings;
			}
		}
		return nullptr;
	}

	/** Null while it is not loaded. */
	FSettingsModule* Get()
	{
		return static_cast<FSettingsModule*>(FModuleManager::GetModulePtr<ISettingsModule>("Settings"));
	}
}

void FSettingsModule::StartupModule()
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.AddRaw(this, &FSettingsModule::SaveChange);
}

void FSettingsModule::ShutdownModule()
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.RemoveAll(this);
	OpenPage.Reset(); // it shows objects, which go before modules do
}

void FSettingsModule::ShowViewer(const FName& ContainerName, const FName& CategoryName, const FName& SectionName)
{
	const HostSettings::FPageAddress Address{ContainerName, CategoryName, SectionName};
	if (UDeveloperSettings* Settings = SettingsModule::Find(Address))
	{
		const TSharedRef<FHostDetailsView> Details = MakeShared<FHostDetailsView>(TArray<UObject*>{Settings});
		OpenPage = HostSettings::FOpenPage{Address, Settings, Details, SettingsPage::Make(*Settings, *Details)};
		return;
	}
	TArray<FString> Known;
	for (const HostSettings::FPageAddress& Page : HostSettings::GetAllPages())
	{
		Known.Add(Page.ToString());
	}
	UE_LOG(LogSettings, Warning, TEXT("There is no settings page %s. There are: %s."), *Address.ToString(), *FString::Join(Known, TEXT(", ")));
}

/** What a person changes on the page is saved at once: there is no button for it. */
void FSettingsModule::SaveChange(UObject* Object, FPropertyChangedEvent& Event)
{
	if (!OpenPage.IsSet() || OpenPage->Settings != Object || Event.ChangeType == EPropertyChangeType::Interactive)
	{
		return;
	}
	if (Object->GetClass()->HasAnyClassFlags(CLASS_DefaultConfig))
	{
		Object->TryUpdateDefaultConfigFile();
		return;
	}
	Object->SaveConfig();
}

TArray<HostSettings::FPageAddress> HostSettings::GetAllPages()
{
	TArray<FPageAddress> Pages;
	for (const UDeveloperSettings* Settings : SettingsModule::GetAll())
	{
		Pages.Add(SettingsModule::AddressOf(*Settings));
	}
	return Pages;
}

TOptional<HostSettings::FOpenPage> HostSettings::GetOpenPage()
{
	const FSettingsModule* Module = SettingsModule::Get();
	return Module != nullptr ? Module->OpenPage : TOptional<FOpenPage>();
}

bool HostSettings::Close()
{
	FSettingsModule* Module = SettingsModule::Get();
	if (Module == nullptr || !Module->OpenPage.IsSet())
	{
		return false;
	}
	Module->OpenPage.Reset();
	return true;
}
