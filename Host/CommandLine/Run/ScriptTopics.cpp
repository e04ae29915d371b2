// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptTopics.h"

TConstArrayView<FScriptTopic> ScriptTopics::GetAll()
{
	static const FScriptTopic Topics[] = {
		GetPanels(), GetMenus(), GetDetails(), GetNotifications(), GetQuestions(), GetAssets(), GetIcons(), GetCalls(), GetLevel(), GetPlacement(), GetUndo(), GetFiles(), GetEditor()};
	return Topics;
}
