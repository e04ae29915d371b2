// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Logging/LogMacros.h"

class FConfigCacheIni;
class FFeedbackContext;
class FOutputDeviceRedirector;
class ITransaction;

DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogInit, Log, All);

extern FOutputDeviceRedirector* GLog;
extern FFeedbackContext* GWarn;
extern FConfigCacheIni* GConfig; // null while no editor is running

// Files under which GConfig knows its branches; empty while no editor is running.
extern FString GEngineIni;
extern FString GGameIni;
extern FString GEditorIni;
extern FString GEditorPerProjectIni;

/** The step of undo that is being recorded; null when there is none. */
extern ITransaction* GUndo;
/** Whether a step is being undone or redone just now. */
extern bool GIsTransacting;

/** Host: always true, in a commandlet as well. */
extern bool GIsEditor;

/** Whether the editor runs a command and ends, without a user interface: it was started with -run=NAME. */
bool IsRunningCommandlet();
