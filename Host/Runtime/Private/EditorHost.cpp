// Copyright Velmorant. All Rights Reserved.

#include "EditorHost.h"

#include "CoreGlobals.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HostClock.h"
#include "HostConfig.h"
#include "HostDelayedRegistration.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostLeftovers.h"
#include "HostLocale.h"
#include "HostLog.h"
#include "HostModules.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "HostPlugins.h"
#include "HostSlate.h"
#include "HostState.h"
#include "HostToolMenus.h"
#include "Interfaces/IPluginManager.h"
#include "Logging/LogMacros.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ToolbarHost.h"
#include "WriteNotices.h"

#include <cstdlib>

DEFINE_LOG_CATEGORY_STATIC(LogEditorHost, Log, All);

namespace EditorHost
{
	const double SecondsBetweenCollections = 60.0; // as often as the engine does by default

	bool NamesDescriptor(const FString& Project)
	{
		return FPaths::GetExtension(Project) == TEXT("uproject");
	}

	/** @param Map a package name, also with an object name behind it */
	bool CanReadMap(const FString& Map)
	{
		FString Package = Map;
		Map.Split(TEXT("."), &Package, nullptr);
		return HostPackages::GetStored(Package) == HostPackages::EStored::Text;
	}

	/** Wherever editors write. */
	void RemoveLeftovers()
	{
		TArray<FString> Folders = {HostPaths::GetUserSettingsDir(), HostPaths::GetUserStateDir(), FPaths::ProjectConfigDir(), FPaths::GeneratedConfigDir()};
		for (const HostPlugins::FContentMount& Mount : HostPlugins::GetContentMounts())
		{
			Folders.Add(Mount.Directory);
		}
		for (const FString& Folder : Folders)
		{
			HostLeftovers::RemoveBelow(Folder);
		}
	}
}

bool FEditorHostOptions::ShouldCollectEveryTick()
{
	return std::getenv("VELMORANT_COLLECT_EVERY_TICK") != nullptr;
}

FEditorHost::FEditorHost(const FEditorHostOptions& Options)
	: bCollectEveryTick(Options.bCollectEveryTick)
{
	BringUpEngine(Options);
	LoadPluginModules();
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	FToolbarHost::Register();
	HostToolMenus::Start();
	OpenStartupMap();
	HostEditor::FinishInitialization(HostClock::Now());
}

FEditorHost::~FEditorHost()
{
	// The plugins' modules first, the last loaded first, while every engine module is still there. Module objects go last: raw
	// bindings to them may be destroyed after their shut-down, but are never called.
	TArray<FName> ShutdownOrder;
	for (int32 Index = PluginModules.Num() - 1; Index >= 0; --Index)
	{
		ShutdownOrder.Add(PluginModules[Index]);
	}
	HostModules::ShutDownModules(ShutdownOrder);
	HostToolMenus::Stop();
	HostSlate::Stop();
	HostEditor::Destroy();
	HostObjects::TearDown();
	HostModules::DestroyModules();
	HostState::DestroyAll();
}

void FEditorHost::BringUpEngine(const FEditorHostOptions& Options)
{
	HostLocale::UseUnicodeCharacterClasses();
	HostLog::Clear();

	if (EditorHost::NamesDescriptor(Options.Project))
	{
		HostPaths::SetProjectFile(Options.Project);
	}
	else
	{
		HostPaths::SetProjectDir(Options.Project);
	}
	HostPaths::SetPluginDirs(Options.PluginDirs.IsEmpty() ? TArray<FString>{HostPaths::FindProgramData(TEXT("Plugins"))} : Options.PluginDirs);
	if (!Options.UserSettingsDir.IsEmpty())
	{
		HostPaths::SetUserSettingsDir(Options.UserSettingsDir);
	}
	if (Options.bWriteOverlay)
	{
		HostFiles::RestoreOverlay(Options.OverlayWrites);
	}
	HostFiles::LimitWrites(Options.WriteFolders, Options.WriteRemedy);

	FCommandLine::Set(*Options.CommandLine);
	if (!Options.Platform.IsEmpty())
	{
		HostConfig::SetPlatform(Options.Platform);
	}
	HostConfig::Boot();
	HostObjects::Boot();
	HostPlugins::Discover(HostPaths::GetPluginDirs());
	EditorHost::RemoveLeftovers();
	MountContent();
	HostEditor::Create();
	if (!IsRunningCommandlet())
	{
		HostSlate::Start();
	}
	WriteNotices::Start();
	FSlateNotificationManager::Get().SetAllowNotifications(Options.bAllowNotifications);
}

void FEditorHost::MountContent()
{
	for (const HostPlugins::FContentMount& Mount : HostPlugins::GetContentMounts())
	{
		HostPackages::Mount(Mount.Root, Mount.Directory);
	}
}

void FEditorHost::LoadPluginModules()
{
	for (const ELoadingPhase::Type Phase : {ELoadingPhase::PreDefault, ELoadingPhase::Default})
	{
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetEnabledPlugins())
		{
			for (const FModuleDescriptor& Module : Plugin->GetDescriptor().Modules)
			{
				if (Module.LoadingPhase == Phase && FModuleManager::Get().ModuleExists(*Module.Name.ToString()))
				{
					FModuleManager::Get().LoadModule(Module.Name);
					PluginModules.Add(Module.Name);
				}
			}
		}
	}
}

void FEditorHost::OpenStartupMap()
{
	// Asked for exactly once: modules count these requests. There always is a map afterwards: an untitled one when the project names
	// none or one that is not ours to read (the engine's own maps and its binary files are no fault of the project), and the empty one
	// that the editor came up with when the named one cannot be opened.
	FString Map;
	GConfig->GetString(TEXT("/Script/EngineSettings.GameMapsSettings"), TEXT("EditorStartupMap"), Map, GEngineIni);
	if (!Map.IsEmpty() && !EditorHost::CanReadMap(Map))
	{
		UE_LOG(LogEditorHost, Warning, TEXT("The start-up map %s cannot be opened here; an untitled one takes its place."), *Map);
		Map.Empty();
	}
	HostEditor::OpenMap(Map);
}

void FEditorHost::Tick(double Seconds)
{
	double Left = Seconds;
	do
	{
		const double Step = Left < TickSeconds ? Left : TickSeconds;
		TickFrame(Step);
		Left -= Step;
	} while (Left > 0.0);
}

void FEditorHost::TickFrame(double Seconds)
{
	HostClock::Advance(Seconds);

	SecondsSinceCollection += Seconds;
	if (bCollectEveryTick || SecondsSinceCollection >= EditorHost::SecondsBetweenCollections)
	{
		SecondsSinceCollection = 0.0;
		HostObjects::CollectGarbage();
	}
}
