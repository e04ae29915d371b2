// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptCommand.h"

/** Icon fonts: bringing one into the project, and looking at what the project has. */
namespace IconTopic
{
	FScriptTopic Get();
}
