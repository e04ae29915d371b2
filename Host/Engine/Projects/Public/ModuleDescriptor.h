// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

/** When a module of a project or plugin is started. */
namespace ELoadingPhase
{
	enum Type
	{
		EarliestPossible,
		PostConfigInit,
		PostSplashScreen,
		PreEarlyLoadingScreen,
		PreLoadingScreen,
		PreDefault,
		Default,
		PostDefault,
		PostEngineInit,
		None,
		Max
	};

	/** Max for a name that is none; letter case does not count. */
	ELoadingPhase::Type FromString(const TCHAR* Text);
}

/** A module as a project or plugin names it. */
struct FModuleDescriptor
{
	FName Name;

	/** "Runtime", "Editor" and the like, as written. Host: everything that is linked is loaded; the type is for readers. */
	FString Type;

	ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;
};
