// Copyright Velmorant. All Rights Reserved.

#pragma once

/** What the editor calls of a module. All of it is optional. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;

	/** Right after the module was loaded; other modules may be loaded from here. */
	virtual void StartupModule() {}

	/** Before the module goes, while other modules can still be loaded. Not called for modules without automatic shut-down. */
	virtual void ShutdownModule() {}

	/** Whether ShutdownModule() is called when the editor goes down. */
	virtual bool SupportsAutomaticShutdown() { return true; }
};
