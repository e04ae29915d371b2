// Copyright Velmorant. All Rights Reserved.

#include "ToolbarHost.h"

#include "HostMenus.h"
#include "HostSnapshot.h"
#include "HostToolMenus.h"
#include "ToolMenus.h"

namespace ToolbarHost
{
	/** By which plugins extend the toolbar. */
	static const TCHAR* const MenuName = TEXT("LevelEditor.LevelEditorToolBar.PlayToolBar");

	bool OpensMenu(SWidget& Widget)
	{
		return FHostWidgetAccess::Describe(Widget).Role == TEXT("menu button");
	}

	/** What is open below a button; null while nothing is, and for anything but a button that opens a menu. */
	TSharedPtr<SWidget> MenuBelow(const TSharedPtr<SWidget>& Button)
	{
		if (!Button.IsValid() || !OpensMenu(*Button))
		{
			return nullptr;
		}
		const TArray<TSharedRef<SWidget>> Below = FHostWidgetAccess::ChildrenOf(*Button);
		return Below.IsEmpty() ? TSharedPtr<SWidget>() : TSharedPtr<SWidget>(Below[0]);
	}

	/** The names of the buttons that open menus; nothing of what is open below them. */
	void ListButtons(const TSharedRef<SWidget>& Widget, TArray<FString>& OutNames)
	{
		const FHostWidgetDescription Seen = FHostWidgetAccess::Describe(*Widget);
		if (Seen.Role == TEXT("menu button"))
		{
			OutNames.Add(Seen.Name.ToString());
			return;
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			ListButtons(Child, OutNames);
		}
	}

	bool HasOpenMenu(const TSharedRef<SWidget>& Widget)
	{
		if (MenuBelow(Widget).IsValid())
		{
			return true;
		}
		for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Widget))
		{
			if (HasOpenMenu(Child))
			{
				return true;
			}
		}
		return false;
	}
}

void FToolbarHost::Register()
{
	UToolMenus::Get()->RegisterMenu(ToolbarHost::MenuName, NAME_None, EMultiBoxType::SlimHorizontalToolBar);
}

TSharedRef<SWidget> FToolbarHost::GetContent()
{
	if (!Content.IsValid() || !ToolbarHost::HasOpenMenu(Content.ToSharedRef()))
	{
		Content = HostToolMenus::Open(ToolbarHost::MenuName, FToolMenuContext());
	}
	return Content.ToSharedRef();
}

TSharedPtr<SWidget> FToolbarHost::FindButton(const FString& Button, FString& OutReason)
{
	const TSharedRef<SWidget> Toolbar = GetContent();
	const TSharedPtr<SWidget> Found = HostSnapshot::Find(Toolbar, Button, OutReason);
	if (Found.IsValid() && ToolbarHost::OpensMenu(*Found))
	{
		return Found;
	}
	if (Found.IsValid())
	{
		OutReason = FString::Printf(TEXT("\"%s\" opens no menu."), *Button);
	}
	TArray<FString> Names;
	ToolbarHost::ListButtons(Toolbar, Names);
	OutReason += TEXT(" The toolbar's menus are: ") + (Names.IsEmpty() ? FString(TEXT("none")) : FString::Join(Names, TEXT(", ")));
	return nullptr;
}

TSharedPtr<SWidget> FToolbarHost::OpenMenu(const FString& Button, FString& OutReason)
{
	HostMenus::DismissAll();
	const TSharedPtr<SWidget> Found = FindButton(Button, OutReason);
	if (!Found.IsValid())
	{
		return nullptr;
	}
	const FHostInputResult Result = HostSnapshot::Click(Content.ToSharedRef(), Button);
	OutReason = Result.Reason;
	return Result.bDone ? ToolbarHost::MenuBelow(Found) : nullptr;
}

TSharedPtr<SWidget> FToolbarHost::FindOpenMenu(const FString& Button) const
{
	FString Reason;
	return Content.IsValid() ? ToolbarHost::MenuBelow(HostSnapshot::Find(Content.ToSharedRef(), Button, Reason)) : nullptr;
}

void FToolbarHost::Close()
{
	HostMenus::DismissAll();
	Content.Reset();
}
