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

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType, const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, UserInterfaceActionType, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	return AddEntry(FToolMenuEntry::InitDynamicEntry(InName, InConstruct));
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
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

FToolMenuSection& UToolMenu::AddSection(const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	FToolMenuSection& Section = FindOrAddSection(SectionName, InLabel, InPosition);
	if (InLabel.IsSet())
	{
		Section.Label = InLabel;
	}
	return Section;
}
