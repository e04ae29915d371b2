// Copyright Velmorant. All Rights Reserved.

#include "ToolMenuSection.h"

#include "ToolMenus.h"

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	FToolMenuEntry* Existing = Args.Name == NAME_None ? nullptr : FindEntry(Args.Name);
	FToolMenuEntry& Entry = Existing ? *Existing : Blocks.AddDefaulted_GetRef();
	Entry = Args;
	if (!Entry.Owner.IsSet())
	{
		Entry.Owner = UToolMenus::Get()->CurrentOwner();
	}
	return Entry;
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(InNameOverride, InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType, const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, UserInterfaceActionType, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InCommandList,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntryWithCommandList(
		InCommand, InCommandList, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	return AddEntry(FToolMenuEntry::InitDynamicEntry(InName, InConstruct));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FNewToolMenuChoice& InMakeMenu,
	bool bInOpenSubMenuOnClick, const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	return AddEntry(FToolMenuEntry::InitSubMenu(InName, InLabel, InToolTip, InMakeMenu, bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry& FToolMenuSection::AddSeparator(const FName InName)
{
	return AddEntry(FToolMenuEntry::InitSeparator(InName));
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}

FToolMenuSection& UToolMenu::AddSection(const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	FToolMenuSection& Section = FindOrAddSection(SectionName, InLabel, InPosition);
	if (InLabel.IsSet())
	{
		Section.Label = InLabel;
	}
	return Section;
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	return FindOrAddSection(SectionName, TAttribute<FText>());
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	if (FToolMenuSection* Existing = FindSection(SectionName))
	{
		return *Existing;
	}
	FToolMenuSection& Section = Sections.AddDefaulted_GetRef();
	Section.Name = SectionName;
	Section.Label = InLabel;
	Section.InsertPosition = InPosition;
	Section.Owner = UToolMenus::Get()->CurrentOwner();
	Section.Context = Context;
	return Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	return Sections.FindByPredicate([SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::RemoveSection(const FName SectionName)
{
	Sections.RemoveAll([SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::AddMenuEntry(const FName SectionName, const FToolMenuEntry& Args)
{
	FindOrAddSection(SectionName).AddEntry(Args);
}
