// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "HostParts.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Styling/SlateBrush.h"
#include "Textures/SlateIcon.h"
#include "Widgets/SCompoundWidget.h"

class SComboButton;

/** The menus that are open below buttons. */
namespace HostMenus
{
	/** To be called by whatever opens a menu, after it is open. */
	void NoteOpened(const TSharedRef<SComboButton>& Button);

	/** Closes all, the one opened last first. */
	void DismissAll();

	/** How an icon reads in the facts about a widget: its key, and whether its style set lacks it. Empty for no icon. */
	FString DescribeIcon(const FSlateIcon& Icon);

	/** The icon as it is drawn; unset for none, and for one that its style set lacks. */
	TOptional<FSlateBrush> FindBrush(const FSlateIcon& Icon);
}

/** A menu or toolbar as a person sees it: its sections. */
class SHostMenu : public SHostPartList
{
public:
	SLATE_BEGIN_ARGS(SHostMenu)
		: _Role(TEXT("menu"))
		{
		}
		SLATE_ARGUMENT(FString, Role)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;

private:
	FString Role;
};

/** Entries that stand together, below their heading if they have one. Its tag is the section's name. */
class SHostMenuSection : public SHostPartList
{
public:
	SLATE_BEGIN_ARGS(SHostMenuSection)
		{
		}
		SLATE_ATTRIBUTE(FText, Heading)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;

private:
	TAttribute<FText> Heading;
};

/** A line of a menu, or a button of a toolbar: icon and label, or whatever is put into it. Its tag is the entry's name. */
class SHostMenuEntry : public SCompoundWidget
{
public:
	DECLARE_DELEGATE_RetVal(bool, FOnChosen);

	SLATE_BEGIN_ARGS(SHostMenuEntry)
		: _Role(TEXT("entry"))
		, _ActionType(EUserInterfaceActionType::Button)
		, _ClosesMenus(true)
		{
		}
		/** Takes the place of the label. */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(FString, Role)
		SLATE_ATTRIBUTE(FText, Label)
		SLATE_ATTRIBUTE(FSlateIcon, Icon)
		SLATE_ARGUMENT(EUserInterfaceActionType, ActionType)
		/** Only asked for when the type of action has a state. */
		SLATE_ATTRIBUTE(ECheckBoxState, CheckState)
		/** Whether choosing it closes all menus, before its action runs. */
		SLATE_ARGUMENT(bool, ClosesMenus)
		/** Runs the action; returns whether there was one. */
		SLATE_EVENT(FOnChosen, OnChosen)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	//~ The texts themselves, with their keys. What shows instead of the label is none of them.
	FText GetLabel() const { return Label.Get(FText::GetEmpty()); }
	FText GetToolTip() const { return ToolTip.Get(FText::GetEmpty()); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

private:
	bool HasState() const;

	FString Role;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	EUserInterfaceActionType ActionType = EUserInterfaceActionType::Button;
	TAttribute<ECheckBoxState> CheckState;
	bool bClosesMenus = true;
	FOnChosen OnChosen;
};
