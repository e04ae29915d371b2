// Copyright Velmorant. All Rights Reserved.
// What a menu or toolbar that was made for a context looks like.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HostMenus.h"
#include "SToolMenuComboButton.h"
#include "ToolMenuBuilder.h"
#include "ToolMenus.h"

namespace ToolMenuWidgets
{
	bool IsToolBar(const UToolMenu& Menu)
	{
		switch (Menu.MenuType)
		{
			case EMultiBoxType::ToolBar:
			case EMultiBoxType::VerticalToolBar:
			case EMultiBoxType::SlimHorizontalToolBar:
			case EMultiBoxType::UniformToolBar:
			case EMultiBoxType::SlimHorizontalUniformToolBar:
				return true;
			default:
				return false;
		}
	}

	/** A menu has room for labels; a toolbar shows icons, and labels only beside those that are styled so. An icon-less button needs its label. */
	bool ShowsLabel(const UToolMenu& Menu, const FToolMenuEntry& Entry)
	{
		return !IsToolBar(Menu) || Entry.StyleNameOverride == "CalloutToolbar" || !Entry.Icon.Get(FSlateIcon()).IsSet();
	}
}

TSharedRef<SWidget> FToolMenuBuilder::MakeOpenedMenu(const FToolMenuEntry& Entry, const FToolMenuContext& Context)
{
	const FNewToolMenuChoice& Content = Entry.Type == EMultiBlockType::ToolBarComboButton ? Entry.ToolBarData.ComboButtonContextMenuGenerator : Entry.SubMenuContent;
	if (Content.OnGetContent.IsBound())
	{
		return Content.OnGetContent.Execute();
	}
	if (Content.NewToolMenuWidget.IsBound())
	{
		return Content.NewToolMenuWidget.Execute(Context);
	}
	if (Content.NewMenu.IsBound())
	{
		FMenuBuilder Builder(Entry.bShouldCloseWindowAfterMenuSelection, Entry.CommandList);
		Content.NewMenu.Execute(Builder);
		return Builder.MakeWidget();
	}
	if (Content.NewToolMenu.IsBound())
	{
		UToolMenu* SubMenu = NewObject<UToolMenu>(UToolMenus::Get());
		SubMenu->Context = Context;
		Content.NewToolMenu.Execute(SubMenu);
		UToolMenu* Generated = NewObject<UToolMenu>(UToolMenus::Get());
		Generated->Context = Context;
		Append(*SubMenu, *Generated);
		return MakeWidget(*Generated);
	}
	return SNullWidget::NullWidget;
}

TSharedRef<SWidget> FToolMenuBuilder::MakeComboButton(const UToolMenu& Menu, const FToolMenuEntry& Entry)
{
	// clang-format off
	return SNew(SToolMenuComboButton)
		.Tag(Entry.Name)
		.Label(Entry.Label)
		.ShowsLabel(ToolMenuWidgets::ShowsLabel(Menu, Entry))
		.Icon(Entry.Icon)
		.ToolTipText(Entry.ToolTip)
		.IsEnabled_Lambda([Entry, Context = Menu.Context] { return Entry.CanExecute(Context); })
		.Visibility_Lambda([Entry, Context = Menu.Context] { return Entry.IsVisible(Context) ? EVisibility::Visible : EVisibility::Collapsed; })
		.OnGetMenuContent_Lambda([Entry, Context = Menu.Context] { return MakeOpenedMenu(Entry, Context); });
	// clang-format on
}

TSharedRef<SWidget> FToolMenuBuilder::MakeButton(const UToolMenu& Menu, const FToolMenuEntry& Entry)
{
	const bool bLabel = ToolMenuWidgets::ShowsLabel(Menu, Entry);
	// clang-format off
	return SNew(SHostMenuEntry)
		.Tag(Entry.Name)
		.Role(ToolMenuWidgets::IsToolBar(Menu) ? TEXT("button") : TEXT("entry"))
		.Label(bLabel ? Entry.Label : TAttribute<FText>())
		.Icon(Entry.Icon)
		.ToolTipText(Entry.ToolTip)
		.ClosesMenus(Entry.bShouldCloseWindowAfterMenuSelection)
		.IsEnabled_Lambda([Entry, Context = Menu.Context] { return Entry.CanExecute(Context); })
		.Visibility_Lambda([Entry, Context = Menu.Context] { return Entry.IsVisible(Context) ? EVisibility::Visible : EVisibility::Collapsed; })
		.OnChosen_Lambda([Entry, Context = Menu.Context] { return Entry.Execute(Context); })
		[
			Entry.CustomWidget.IsValid() ? Entry.CustomWidget.ToSharedRef() : SNullWidget::NullWidget
		];
	// clang-format on
}

TSharedRef<SWidget> FToolMenuBuilder::MakeEntryWidget(const UToolMenu& Menu, const FToolMenuEntry& Entry)
{
	if (Entry.OpensMenu())
	{
		return MakeComboButton(Menu, Entry);
	}
	// A widget by itself is for a person's hands; one that stands in for a label is not.
	const bool bStandsAlone = Entry.CustomWidget.IsValid() && Entry.Type == EMultiBlockType::Widget;
	return bStandsAlone ? Entry.CustomWidget.ToSharedRef() : MakeButton(Menu, Entry);
}

TSharedRef<SWidget> FToolMenuBuilder::MakeWidget(UToolMenu& Generated)
{
	const TSharedRef<SHostMenu> Menu = SNew(SHostMenu).Tag(Generated.MenuName).Role(ToolMenuWidgets::IsToolBar(Generated) ? TEXT("toolbar") : TEXT("menu"));
	for (const FToolMenuSection& Section : Generated.Sections)
	{
		const TSharedRef<SHostMenuSection> Entries = SNew(SHostMenuSection).Tag(Section.Name).Heading(Section.Label);
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			if (Entry.Type != EMultiBlockType::Separator)
			{
				Entries->AddPart(MakeEntryWidget(Generated, Entry));
			}
		}
		if (Entries->GetChildren()->Num() > 0)
		{
			Menu->AddPart(Entries);
		}
	}
	return Menu;
}
