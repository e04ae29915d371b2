// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptTopics.h"

#include "Run/ScriptExtension.h"

TArray<FScriptTopic> ScriptTopics::GetAll()
{
	TArray<FScriptTopic> Topics = {
		GetPanels(), GetMenus(), GetDetails(), GetNotifications(), GetQuestions(), GetAssets(), GetCalls(), GetLevel(), GetPlacement(), GetUndo(), GetFiles(), GetEditor()};
	Topics.Append(ScriptExtension::Get().Topics);
	return Topics;
}
