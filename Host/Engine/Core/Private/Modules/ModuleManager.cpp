// Copyright Velmorant. All Rights Reserved.

#include "Modules/ModuleManager.h"

#include "HostModules.h"
#include "HostState.h"
#include "Logging/LogMacros.h"

#include <algorithm>
#include <memory>
#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace ModuleManager
{
	struct FLinkedModule
	{
		const ANSICHAR* Name; // a literal: names are not made before main
		FModuleManager::FInitializeStaticallyLinkedModule Initializer;
	};

	/** All modules of the program; filled before main, used by every editor. */
	std::vector<FLinkedModule>& GetLinkedModules()
	{
		static std::vector<FLinkedModule> Linked;
		return Linked;
	}

	TFunction<void(FName)>& GetLoadListener()
	{
		static TFunction<void(FName)> Listener;
		return Listener;
	}

	const FLinkedModule* FindLinkedModule(FName Name)
	{
		for (const FLinkedModule& Module : GetLinkedModules())
		{
			if (Name == FName(Module.Name))
			{
				return &Module;
			}
		}
		return nullptr;
	}
}

/** Modules in the order in which their start was complete, those that were shut down since included. */
class FModuleManager::FModules
{
public:
	struct FModule
	{
		FName Name;
		std::unique_ptr<IModuleInterface> Object;
		bool bLoaded = true;
	};

	~FModules()
	{
		while (!All.empty())
		{
			const std::unique_ptr<FModule> Last = std::move(All.back()); // out of the list first: a destructor may ask for modules
			All.pop_back();
		}
	}

	FModule* FindLoaded(FName Name)
	{
		const auto Found = std::find_if(All.begin(), All.end(), [Name](const std::unique_ptr<FModule>& Module) { return Module->bLoaded && Module->Name == Name; });
		return Found != All.end() ? Found->get() : nullptr;
	}

	void MoveToEnd(const IModuleInterface* Object)
	{
		const auto Found = std::find_if(All.begin(), All.end(), [Object](const std::unique_ptr<FModule>& Module) { return Module->Object.get() == Object; });
		std::rotate(Found, Found + 1, All.end());
	}

	std::vector<std::unique_ptr<FModule>> All;
};

FModuleManager::FModuleManager()
	: Modules(MakeUnique<FModules>())
{
}

FModuleManager::~FModuleManager() = default;

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags)
{
	if (FModules::FModule* Loaded = Modules->FindLoaded(InModuleName))
	{
		return Loaded->Object.get();
	}
	const ModuleManager::FLinkedModule* Linked = ModuleManager::FindLinkedModule(InModuleName);
	if (Linked == nullptr)
	{
		UE_CLOG(InLoadModuleFlags == ELoadModuleFlags::LogFailures, LogModuleManager, Warning, TEXT("No module named '%s' is part of this program"), *InModuleName.ToString());
		return nullptr;
	}
	std::unique_ptr<FModules::FModule> Module = std::make_unique<FModules::FModule>();
	Module->Name = FName(Linked->Name);
	Module->Object.reset(Linked->Initializer());
	IModuleInterface* Object = Module->Object.get();
	Modules->All.push_back(std::move(Module)); // before it starts: what it loads may ask for it
	if (ModuleManager::GetLoadListener())
	{
		ModuleManager::GetLoadListener()(FName(Linked->Name));
	}
	Object->StartupModule();
	Modules->MoveToEnd(Object); // behind what it loaded: its shut-down, which comes first then, may still need that
	return Object;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* Module = LoadModule(InModuleName, ELoadModuleFlags::LogFailures);
	checkf(Module != nullptr, TEXT("Module '%s' could not be loaded"), *InModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const FModules::FModule* Loaded = Modules->FindLoaded(InModuleName);
	return Loaded != nullptr ? Loaded->Object.get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	return Modules->FindLoaded(InModuleName) != nullptr;
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return ModuleManager::FindLinkedModule(FName(ModuleName)) != nullptr;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	FModules::FModule* Module = Modules->FindLoaded(InModuleName);
	if (Module == nullptr)
	{
		return false;
	}
	if (!bIsShutdown || Module->Object->SupportsAutomaticShutdown())
	{
		Module->Object->ShutdownModule();
	}
	Module->bLoaded = false;
	return true;
}

void FModuleManager::RegisterStaticallyLinkedModule(const ANSICHAR* InModuleName, FInitializeStaticallyLinkedModule InInitializer)
{
	ModuleManager::GetLinkedModules().push_back(ModuleManager::FLinkedModule{InModuleName, InInitializer});
}

/** What the host may see of the manager beyond the engine's interface. */
class FHostModuleAccess
{
public:
	static TArray<FName> GetLoaded(const FModuleManager& Manager)
	{
		TArray<FName> Result;
		for (const std::unique_ptr<FModuleManager::FModules::FModule>& Module : Manager.Modules->All)
		{
			if (Module->bLoaded)
			{
				Result.Add(Module->Name);
			}
		}
		return Result;
	}

	static void Reset(FModuleManager& Manager) { Manager.Modules = MakeUnique<FModuleManager::FModules>(); }
};

namespace HostModules
{
	THostState<FModuleManager> Manager;

	TArray<FName> GetLoaded()
	{
		return FHostModuleAccess::GetLoaded(Manager.Get());
	}

	void SetLoadListener(TFunction<void(FName)> Listener)
	{
		ModuleManager::GetLoadListener() = MoveTemp(Listener);
	}

	void ShutDownModules(const TArray<FName>& First)
	{
		for (const FName Name : First)
		{
			Manager.Get().UnloadModule(Name, true);
		}
		// Asked again each time, because shutting down may load modules.
		for (TArray<FName> Rest = GetLoaded(); !Rest.IsEmpty(); Rest = GetLoaded())
		{
			Manager.Get().UnloadModule(Rest.Last(), true);
		}
	}

	void DestroyModules()
	{
		FHostModuleAccess::Reset(Manager.Get());
	}
}

FModuleManager& FModuleManager::Get()
{
	return HostModules::Manager.Get();
}
