// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptExtension.h"

/** What scripts can say of the toolkit, and what it says to them. */
namespace ToolkitScripts
{
	FScriptExtension MakeExtension();
}
