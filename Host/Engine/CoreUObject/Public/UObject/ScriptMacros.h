// Copyright Velmorant. All Rights Reserved.
// Included by every generated header: what the bodies of reflected types are written in.

#pragma once

#include "HostReflection/Records.h"
#include "Templates/SubclassOf.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/Script.h"
#include "UObject/ScriptDelegates.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/Stack.h"
#include "UObject/WeakObjectPtrTemplates.h"
