// Copyright Velmorant. All Rights Reserved.

#include "HostContentBrowser.h"

#include "AssetContextMenu.h"
#include "ContentBrowserMenuContexts.h"
#include "ContentBrowserState.h"
#include "UObject/Class.h"

namespace HostContentBrowser
{
	FToolMenuContext MakeContext()
	{
		UContentBrowserAssetContextMenuContext* Context = NewObject<UContentBrowserAssetContextMenuContext>();
		Context->SelectedAssets = GetSelection();
		return FToolMenuContext(Context);
	}

	/** The menu for the selection; None without one, or when a class of it is not there. */
	FName FindMenu()
	{
		const UClass* AssetClass = AssetContextMenu::CommonClass(GetSelection());
		if (AssetClass == nullptr)
		{
			return FName();
		}
		AssetContextMenu::Register(AssetClass);
		return AssetContextMenu::NameFor(AssetClass);
	}
}

const TArray<HostContentBrowser::FSync>& HostContentBrowser::GetSyncHistory()
{
	return FContentBrowserState::Get().SyncHistory;
}

void HostContentBrowser::SetSelection(const TArray<FAssetData>& Assets)
{
	FContentBrowserState::Get().Selection = Assets;
}

const TArray<FAssetData>& HostContentBrowser::GetSelection()
{
	return FContentBrowserState::Get().Selection;
}

TArray<FHostMenuEntry> HostContentBrowser::GetContextMenu()
{
	const FName Menu = FindMenu();
	return Menu.IsNone() ? TArray<FHostMenuEntry>() : HostToolMenus::List(Menu, MakeContext());
}

TSharedPtr<SWidget> HostContentBrowser::OpenContextMenu()
{
	const FName Menu = FindMenu();
	return Menu.IsNone() ? TSharedPtr<SWidget>() : TSharedPtr<SWidget>(HostToolMenus::Open(Menu, MakeContext()));
}

FHostInputResult HostContentBrowser::RunContextMenuEntry(const FString& LabelOrName)
{
	if (GetSelection().IsEmpty())
	{
		return FHostInputResult::Refused(FString::Printf(TEXT("No asset is selected, so there is no menu with \"%s\"."), *LabelOrName));
	}
	const FName Menu = FindMenu();
	if (Menu.IsNone())
	{
		return FHostInputResult::Refused(TEXT("The class of a selected asset is not loaded, so the assets have no menu."));
	}
	return HostToolMenus::Run(Menu, MakeContext(), LabelOrName);
}
