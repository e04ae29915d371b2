// Copyright Velmorant. All Rights Reserved.

#include "CoreGlobals.h"

#include "Misc/CommandLine.h"
#include "Misc/Parse.h"

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogInit);

ITransaction* GUndo = nullptr;
bool GIsTransacting = false;
bool GIsEditor = true;

bool IsRunningCommandlet()
{
	FString Name;
	return FParse::Value(FCommandLine::Get(), TEXT("-run="), Name);
}
