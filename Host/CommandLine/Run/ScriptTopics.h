// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptCommand.h"

/** All that a script can say, by topic; each topic has a source file of its own. */
namespace ScriptTopics
{
	FScriptTopic GetPanels();
	FScriptTopic GetMenus();
	FScriptTopic GetDetails();
	FScriptTopic GetNotifications();
	FScriptTopic GetQuestions();
	FScriptTopic GetAssets();
	FScriptTopic GetCalls();
	FScriptTopic GetLevel();
	FScriptTopic GetUndo();
	FScriptTopic GetPlacement();
	FScriptTopic GetFiles();
	FScriptTopic GetEditor();

	/** Topics in the order of the documentation, then those of the program's extension. */
	TArray<FScriptTopic> GetAll();
}
