// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

template<typename T>
class THostState;

enum class ELoadModuleFlags : uint32
{
	None = 0,
	LogFailures = 1 << 0
};

/**
 * The modules of the running editor.
 *
 * Host: every module is part of the program; "loading" makes its module object and starts it. Names ignore case. A module object outlives
 * its unloading until the editor has gone down, so that raw bindings to it that stay registered never point nowhere.
 */
class FModuleManager
{
public:
	using FInitializeStaticallyLinkedModule = IModuleInterface* (*)();

	/** The manager of the running editor. */
	static FModuleManager& Get();

	FModuleManager(const FModuleManager&) = delete;
	FModuleManager& operator=(const FModuleManager&) = delete;

	/** Null when there is no such module. One that is loaded already is just returned. */
	IModuleInterface* LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);

	/** Fatal when there is no such module. */
	IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/** Null when it is not loaded. */
	IModuleInterface* GetModule(const FName InModuleName);

	bool IsModuleLoaded(const FName InModuleName) const;

	/** Whether the program has such a module, loaded or not. */
	bool ModuleExists(const TCHAR* ModuleName) const;

	/**
	 * Shuts the module down and forgets it.
	 * @param bIsShutdown the editor is going down: modules without automatic shut-down are left as they are then
	 * @return false when it is not loaded.
	 */
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);

	template<typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(InModuleName));
	}

	template<typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName InModuleName)
	{
		return static_cast<TModuleInterface*>(Get().GetModule(InModuleName));
	}

	/** Tells the program that it has this module; once per process, for all editors. Name lives as long as the process. */
	static void RegisterStaticallyLinkedModule(const ANSICHAR* InModuleName, FInitializeStaticallyLinkedModule InInitializer);

private:
	FModuleManager();
	~FModuleManager();

	class FModules;
	TUniquePtr<FModules> Modules;

	friend class FHostModuleAccess;
	friend class THostState<FModuleManager>;
};

/** Registers a module at load time; IMPLEMENT_MODULE makes one. */
template<class ModuleClass>
class FStaticallyLinkedModuleRegistrant
{
public:
	explicit FStaticallyLinkedModuleRegistrant(const ANSICHAR* InModuleName)
	{
		FModuleManager::RegisterStaticallyLinkedModule(InModuleName, []() -> IModuleInterface* { return new ModuleClass(); });
	}
};

/** For a module that has nothing to start or shut down. */
class FDefaultModuleImpl : public IModuleInterface
{
};

/** Once per module, in one of its source files. ModuleName is written without quotes. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(#ModuleName); \
	extern "C" void IMPLEMENT_MODULE_##ModuleName(); \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() \
	{ \
	}
