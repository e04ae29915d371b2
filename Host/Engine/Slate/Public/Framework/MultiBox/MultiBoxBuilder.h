// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Styling/CoreStyle.h"
#include "Textures/SlateIcon.h"
#include "Widgets/SWidget.h"

class FExtender;

/**
 * Makes a menu, section by section and entry by entry, in the order of the calls.
 *
 * Host: menus have no extenders, and the style set only matters to what is painted.
 */
class SLATE_API FMenuBuilder
{
public:
	/**
	 * @param bInShouldCloseWindowAfterMenuSelection whether choosing an entry closes the menu
	 * @param InCommandList what the commands among the entries do; a command that it does not map is shown disabled
	 */
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = nullptr,
		const bool bInCloseSelfOnly = false, const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None);
	virtual ~FMenuBuilder() = default;

	/** What follows stands under this heading, until EndSection(). A section without entries does not show. */
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	void EndSection();

	/** An entry for a command: its label, tool tip and icon unless others are given. Its name is the hook, or else the command's. */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(), const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None,
		const TAttribute<EVisibility>& InVisibilityOverride = TAttribute<EVisibility>());

	void AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& UIAction,
		FName InExtensionHook = NAME_None, const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

	/** Any widget, behind its label when that is not empty. */
	void AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool bNoIndent = false, bool bSearchable = true, const TAttribute<FText>& InToolTipText = FText());

	/** The menu as built so far; every section must have been ended. */
	virtual TSharedRef<SWidget> MakeWidget();

private:
	struct FSection
	{
		FName Name;
		TAttribute<FText> Heading;
		TArray<TSharedRef<SWidget>> Entries;
	};

	void Add(const TSharedRef<SWidget>& Entry);

	TArray<FSection> Sections;
	TSharedPtr<const FUICommandList> CommandList;
	FName MenuName;
	bool bClosesMenus = true;
	bool bInSection = false;
};
