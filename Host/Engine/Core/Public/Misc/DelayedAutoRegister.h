// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/Function.h"

/** The stations of an editor that comes up, in their order. */
enum class EDelayedRegisterRunPhase : uint8
{
	StartOfEnginePreInit,
	FileSystemReady,
	TaskGraphSystemReady,
	StatSystemReady,
	IniSystemReady,
	EarliestPossiblePluginsLoaded,
	ShaderTypesReady,
	PreObjectSystemReady,
	ObjectSystemReady,
	DeviceProfileManagerReady,
	EndOfEngineInit,

	NumPhases
};

/**
 * Runs a function when an editor that comes up reaches a phase: at once when the phase has passed already.
 *
 * Host: what registers before the first editor comes up (a static object) is run again by every later editor of the process;
 * what registers while an editor is up belongs to that one.
 */
class CORE_API FDelayedAutoRegisterHelper
{
public:
	FDelayedAutoRegisterHelper(EDelayedRegisterRunPhase RunPhase, TFunction<void()> RegistrationFunction);

	/** The running editor has reached RunPhase. */
	static void RunAndClearDelayedAutoRegisterDelegates(EDelayedRegisterRunPhase RunPhase);
};
