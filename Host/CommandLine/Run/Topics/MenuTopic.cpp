// Copyright Velmorant. All Rights Reserved.
// The level editor's toolbar and its menus, and what they lead to: settings pages and web pages.

#include "HostProcess.h"
#include "HostSettings.h"
#include "HostSnapshot.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Run/ScriptTopics.h"
#include "Run/ScriptWidgets.h"

namespace MenuTopic
{
	FStepResult OpenMenu(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FString Reason;
		const bool bOpened = ScriptWidgets::CheckUserInterface(Reason) && Context.Session.GetToolbar().OpenMenu(Arguments[0], Reason).IsValid();
		return bOpened ? FStepResult::Done() : FStepResult::Error(Reason);
	}

	FStepResult PrintToolbar(FScriptContext& Context, const FScriptArguments&)
	{
		FString Reason;
		if (!ScriptWidgets::CheckUserInterface(Reason))
		{
			return FStepResult::Error(Reason);
		}
		Context.Print(HostSnapshot::Take(Context.Session.GetToolbar().GetContent()).TrimEnd());
		return FStepResult::Done();
	}

	FStepResult PrintSettings(FScriptContext& Context, const FScriptArguments&)
	{
		const TOptional<HostSettings::FOpenPage> Open = HostSettings::GetOpenPage();
		for (const HostSettings::FPageAddress& Page : HostSettings::GetAllPages())
		{
			const bool bShows = Open.IsSet() && Open->Address == Page;
			Context.Print(Page.ToString() + (bShows ? TEXT(" (shows)") : TEXT("")));
		}
		return FStepResult::Done();
	}

	FStepResult PrintUrls(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FString& Url : HostProcess::GetOpenedUrls())
		{
			Context.Print(Url);
		}
		return FStepResult::Done();
	}

	FExpectation ExpectMenu(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		FToolbarHost& Toolbar = Context.Session.GetToolbar();
		FString Reason;
		if (!ScriptWidgets::CheckUserInterface(Reason) || !Toolbar.FindButton(Arguments[0], Reason).IsValid())
		{
			return FExpectation::Unanswerable(Reason);
		}
		return {Toolbar.FindOpenMenu(Arguments[0]).IsValid(), TEXT("it is not open"), FString()};
	}

	FExpectation ExpectSettings(FScriptContext&, const FScriptArguments& Arguments)
	{
		const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
		if (!Page.IsSet())
		{
			return {false, TEXT("no settings page shows"), FString()};
		}
		const FString* Category = Arguments.FindOption(1, TEXT("category"));
		const FString* Container = Arguments.FindOption(1, TEXT("container"));
		const bool bHolds = Page->Address.Section == ScriptObjects::ToName(Arguments[0]) && (Category == nullptr || Page->Address.Category == ScriptObjects::ToName(*Category)) &&
			(Container == nullptr || Page->Address.Container == ScriptObjects::ToName(*Container));
		return {bHolds, FString(TEXT("the page that shows is ")) + Page->Address.ToString(), FString()};
	}

	FExpectation ExpectUrl(FScriptContext&, const FScriptArguments& Arguments)
	{
		const TArray<FString>& Urls = HostProcess::GetOpenedUrls();
		const bool bOpened = Urls.ContainsByPredicate([&Arguments](const FString& Url) { return Url.Equals(Arguments[0]); });
		return {bOpened, Urls.IsEmpty() ? FString(TEXT("no web page was opened")) : FString(TEXT("opened were: ")) + FString::Join(Urls, TEXT(", ")), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("open menu"), TEXT("BUTTON"), 1, 1, TEXT("")}, &OpenMenu},
		{{TEXT("print toolbar"), TEXT(""), 0, 0, TEXT("")}, &PrintToolbar},
		{{TEXT("print settings"), TEXT(""), 0, 0, TEXT("")}, &PrintSettings},
		{{TEXT("print urls"), TEXT(""), 0, 0, TEXT("")}, &PrintUrls},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("menu"), TEXT("BUTTON"), 1, 1, TEXT("")}, &ExpectMenu},
		{{TEXT("settings"), TEXT("SECTION [category CATEGORY] [container CONTAINER]"), 1, 1, TEXT("category container")}, &ExpectSettings},
		{{TEXT("url"), TEXT("ADDRESS"), 1, 1, TEXT("")}, &ExpectUrl},
	};
}

FScriptTopic ScriptTopics::GetMenus()
{
	return {MenuTopic::Commands, MenuTopic::Expectations};
}
