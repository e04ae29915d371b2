// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

class FHostDetailsView;
class FScriptContext;
class SWidget;

/** What scripts can look at and click in, by name. */
namespace ScriptWidgets
{
	/** @return false with a reason when the editor has no user interface. */
	bool CheckUserInterface(FString& OutReason);

	/**
	 * An open panel, by the name it was opened under
	 * a tab that something else opened, by its asset's name
	 * the settings page that shows, by its section
	 * an open menu of the toolbar, by its button
	 * an open details panel, by the name it was opened under
	 *
	 * @return null with a reason that says how to get there
	 */
	TSharedPtr<SWidget> FindRoot(FScriptContext& Context, const FString& Name, FString& OutReason);

	/** The names of all that is open now and can be looked at by FindRoot(), menus aside. */
	TArray<FString> GetRootNames(FScriptContext& Context);

	/** The reason why there is no such widget, with what there is; as it was when the widget is there. */
	FString ExplainWidget(FScriptContext& Context, const FString& Panel, const FString& Widget, const FString& Reason);

	/** @return whether it was open; if not, why it cannot be closed. */
	bool Close(FScriptContext& Context, const FString& Name, FString& OutReason);
}
