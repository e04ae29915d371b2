// Copyright Velmorant. All Rights Reserved.

#include "CoreGlobals.h"

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogInit);

ITransaction* GUndo = nullptr;
bool GIsTransacting = false;
bool GIsEditor = true;
