// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptTopics.h"

TConstArrayView<FScriptTopic> ScriptTopics::GetAll()
{
	static const FScriptTopic Topics[] = {
		GetPanels(), GetNotifications(), GetQuestions(), GetAssets(), GetCalls(), GetLevel(), GetFiles(), GetEditor()};
	return Topics;
}
