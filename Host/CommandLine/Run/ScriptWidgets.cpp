// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptWidgets.h"

#include "Framework/Application/SlateApplication.h"
#include "HostDetailsView.h"
#include "HostSettings.h"
#include "HostSnapshot.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptObjects.h"
#include "Suggestions.h"

namespace ScriptWidgets
{
	/** Null unless that page shows. */
	TSharedPtr<SWidget> FindSettingsPage(const FString& Section)
	{
		const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
		const bool bMeant = Page.IsSet() && Page->Address.Section == ScriptObjects::ToName(Section);
		return bMeant ? Page->Content : TSharedPtr<SWidget>();
	}

	/** Why nothing of that name is open; a button or page of that name may be meant. */
	FString Explain(FScriptContext& Context, const FString& Name)
	{
		FString Reason;
		if (!CheckUserInterface(Reason))
		{
			return Reason;
		}
		const TOptional<FHostWidgetDescription> Button = HostSnapshot::Describe(Context.Session.GetToolbar().GetContent(), Name, Reason);
		if (Button.IsSet() && Button->Role == TEXT("menu button"))
		{
			return FString::Printf(TEXT("the menu of the toolbar's button %s is not open; open it with: open menu %s"), *Name, *Name);
		}
		return Suggestions::Append(FString::Printf(TEXT("no panel named %s is open"), *Name), Name, GetRootNames(Context));
	}

	bool CheckUserInterface(FString& OutReason)
	{
		const bool bThere = FSlateApplication::IsInitialized();
		OutReason = bThere ? FString() : FString(TEXT("there is no user interface: the editor runs as a commandlet"));
		return bThere;
	}

	TSharedPtr<SWidget> FindRoot(FScriptContext& Context, const FString& Name, FString& OutReason)
	{
		if (const FPanelHost::FPanel* Panel = Context.Session.GetPanels().Find(Name))
		{
			return Panel->Content;
		}
		if (const TSharedPtr<SWidget> Page = FindSettingsPage(Name))
		{
			return Page;
		}
		if (const TSharedPtr<SWidget> Menu = Context.Session.GetToolbar().FindOpenMenu(Name))
		{
			return Menu;
		}
		if (FHostDetailsView* Details = Context.Session.GetDetails().Find(Name))
		{
			return Details->GetWidget();
		}
		OutReason = Explain(Context, Name);
		return nullptr;
	}

	/** The rows of a details panel, as a sentence to follow another one. */
	FString ListRows(FHostDetailsView& Details)
	{
		const TArray<FString> Titles = Details.GetRowTitles();
		if (!Titles.IsEmpty())
		{
			return TEXT(" The rows are: ") + FString::Join(Titles, TEXT(", "));
		}
		return Details.GetObjects().IsEmpty() ? TEXT(" The panel has no rows: its objects are gone.") : TEXT(" The panel has no rows: nothing of its objects, or of that section, can be edited.");
	}

	TArray<FString> GetRootNames(FScriptContext& Context)
	{
		TArray<FString> Names;
		for (const FPanelHost::FPanel& Panel : Context.Session.GetPanels().GetAll())
		{
			Names.Add(Panel.Name);
		}
		if (const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage())
		{
			Names.Add(Page->Address.Section.ToString());
		}
		Names.Append(Context.Session.GetDetails().GetNames());
		return Names;
	}

	FString ExplainWidget(FScriptContext& Context, const FString& Panel, const FString& Widget, const FString& Reason)
	{
		FString Ignored;
		TSharedPtr<SWidget> Root = FindRoot(Context, Panel, Ignored);
		if (!Root.IsValid() || HostSnapshot::Find(Root.ToSharedRef(), Widget, Ignored).IsValid())
		{
			return Reason;
		}
		FString Missing = Widget;
		FString Outer;
		FString Inner;
		while (Missing.Split(TEXT("/"), &Outer, &Inner))
		{
			const TSharedPtr<SWidget> Parent = HostSnapshot::Find(Root.ToSharedRef(), Outer, Ignored);
			Missing = Parent.IsValid() ? Inner : Outer;
			Root = Parent.IsValid() ? Parent : Root;
		}
		const TArray<FString> Names = HostSnapshot::GetNames(Root.ToSharedRef());
		if (Names.Contains(Missing))
		{
			return Reason; // there are several
		}
		FHostDetailsView* Details = Context.Session.GetDetails().Find(Panel);
		const FString Help = Suggestions::Append(Reason, Missing, Names, Details != nullptr ? Suggestions::EList::No : Suggestions::EList::Yes);
		return Details != nullptr ? Help + ListRows(*Details) : Help;
	}

	bool Close(FScriptContext& Context, const FString& Name, FString& OutReason)
	{
		if (Context.Session.GetPanels().Find(Name) != nullptr)
		{
			return Context.Session.GetPanels().Close(Name);
		}
		if (FindSettingsPage(Name).IsValid())
		{
			return HostSettings::Close();
		}
		if (Context.Session.GetToolbar().FindOpenMenu(Name).IsValid())
		{
			Context.Session.GetToolbar().Close();
			return true;
		}
		if (Context.Session.GetDetails().Close(Name))
		{
			return true;
		}
		OutReason = Explain(Context, Name);
		return false;
	}
}
