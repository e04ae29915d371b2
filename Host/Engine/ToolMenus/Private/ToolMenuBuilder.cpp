// Copyright Velmorant. All Rights Reserved.

#include "ToolMenuBuilder.h"

#include "ToolMenus.h"

namespace ToolMenuBuilder
{
	/** Where something goes among Items, or DefaultIndex when it asked for nothing or for a neighbour that is not there. */
	template<typename ItemType>
	int32 PlaceOf(const FToolMenuInsert& Position, const TArray<ItemType>& Items, int32 DefaultIndex)
	{
		if (Position.Position == EToolMenuInsertType::First)
		{
			return 0;
		}
		const int32 Neighbour = Items.IndexOfByPredicate([&Position](const ItemType& Item) { return Item.Name == Position.Name; });
		if (Position.IsDefault() || Neighbour == INDEX_NONE)
		{
			return DefaultIndex;
		}
		return Position.Position == EToolMenuInsertType::Before ? Neighbour : Neighbour + 1;
	}

	FText TextOf(const TAttribute<FText>& Attribute)
	{
		return Attribute.Get(FText::GetEmpty());
	}
}

FToolMenuSection& FToolMenuBuilder::FindOrInsertSection(const FToolMenuSection& Recipe, UToolMenu& OutGenerated)
{
	if (FToolMenuSection* Existing = OutGenerated.FindSection(Recipe.Name))
	{
		if (!Existing->Label.IsSet())
		{
			Existing->Label = Recipe.Label;
		}
		return *Existing;
	}
	FToolMenuSection Section;
	Section.Name = Recipe.Name;
	Section.Label = Recipe.Label;
	Section.Owner = Recipe.Owner;
	Section.Context = OutGenerated.Context;
	const int32 Index = ToolMenuBuilder::PlaceOf(Recipe.InsertPosition, OutGenerated.Sections, OutGenerated.Sections.Num());
	OutGenerated.Sections.Insert(MoveTemp(Section), Index);
	return OutGenerated.Sections[Index];
}

void FToolMenuBuilder::InsertEntry(const FToolMenuEntry& Entry, FToolMenuSection& OutSection, int32 DefaultIndex)
{
	OutSection.Blocks.Insert(Entry, ToolMenuBuilder::PlaceOf(Entry.InsertPosition, OutSection.Blocks, DefaultIndex));
}

void FToolMenuBuilder::AppendDynamic(const FToolMenuEntry& Dynamic, FToolMenuSection& OutSection)
{
	FToolMenuSection Made;
	Made.Name = OutSection.Name;
	Made.Context = OutSection.Context;
	Dynamic.Construct.Execute(Made);
	for (FToolMenuEntry& Entry : Made.Blocks)
	{
		if (!Entry.Owner.IsSet())
		{
			Entry.Owner = Dynamic.Owner;
		}
		if (Entry.IsDynamic())
		{
			AppendDynamic(Entry, OutSection);
		}
		else
		{
			InsertEntry(Entry, OutSection, OutSection.Blocks.Num());
		}
	}
}

void FToolMenuBuilder::Append(const UToolMenu& Recipe, UToolMenu& OutGenerated)
{
	const TArray<FToolMenuSection> Sections = Recipe.Sections; // a copy: dynamic entries may add to the recipe
	for (const FToolMenuSection& RecipeSection : Sections)
	{
		FToolMenuSection& Section = FindOrInsertSection(RecipeSection, OutGenerated);
		for (const FToolMenuEntry& Entry : RecipeSection.Blocks)
		{
			if (Entry.IsDynamic())
			{
				AppendDynamic(Entry, Section);
			}
			else
			{
				InsertEntry(Entry, Section, Section.Blocks.Num());
			}
		}
	}
}

FHostMenuEntry FToolMenuBuilder::Describe(const FToolMenuSection& Section, const FToolMenuEntry& Entry, const FToolMenuContext& Context)
{
	FHostMenuEntry Result;
	Result.Section = Section.Name;
	Result.SectionLabel = ToolMenuBuilder::TextOf(Section.Label).ToString();
	Result.Name = Entry.Name;
	Result.Label = ToolMenuBuilder::TextOf(Entry.Label).ToString();
	Result.ToolTip = ToolMenuBuilder::TextOf(Entry.ToolTip).ToString();
	const FSlateIcon Icon = Entry.Icon.Get(FSlateIcon());
	Result.IconStyle = Icon.GetStyleSetName();
	Result.IconKey = Icon.GetStyleName();
	Result.bEnabled = Entry.CanExecute(Context);
	Result.bOpensMenu = Entry.OpensMenu();
	return Result;
}

TArray<FHostMenuEntry> HostToolMenus::List(FName Menu, const FToolMenuContext& Context)
{
	TArray<FHostMenuEntry> Result;
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu(Menu, Context);
	for (const FToolMenuSection& Section : Generated->Sections)
	{
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			if (Entry.Type != EMultiBlockType::Separator && Entry.IsVisible(Context))
			{
				Result.Add(FToolMenuBuilder::Describe(Section, Entry, Context));
			}
		}
	}
	return Result;
}

FHostInputResult HostToolMenus::Run(FName Menu, const FToolMenuContext& Context, const FString& LabelOrName)
{
	UToolMenu* Generated = UToolMenus::Get()->GenerateMenu(Menu, Context);
	const FToolMenuEntry* ByLabel = nullptr;
	const FToolMenuEntry* ByName = nullptr;
	for (const FToolMenuSection& Section : Generated->Sections)
	{
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			const bool bShows = Entry.Type != EMultiBlockType::Separator && Entry.IsVisible(Context);
			if (bShows && !ByLabel && ToolMenuBuilder::TextOf(Entry.Label).ToString().Equals(LabelOrName))
			{
				ByLabel = &Entry;
			}
			if (bShows && !ByName && Entry.Name.ToString().Equals(LabelOrName, ESearchCase::IgnoreCase))
			{
				ByName = &Entry;
			}
		}
	}
	const FToolMenuEntry* Found = ByLabel ? ByLabel : ByName;
	if (!Found)
	{
		return FHostInputResult::Refused(FString::Printf(TEXT("The menu %s has no entry \"%s\"."), *Menu.ToString(), *LabelOrName));
	}
	if (!Found->CanExecute(Context))
	{
		return FHostInputResult::Refused(FString::Printf(TEXT("The menu entry \"%s\" is disabled."), *LabelOrName));
	}
	const FToolMenuEntry HeldWhileRunning = *Found;
	if (!HeldWhileRunning.Execute(Context))
	{
		return FHostInputResult::Refused(FString::Printf(TEXT("The menu entry \"%s\" does nothing by itself."), *LabelOrName));
	}
	return FHostInputResult::Done();
}

TSharedRef<SWidget> HostToolMenus::Open(FName Menu, const FToolMenuContext& Context)
{
	return UToolMenus::Get()->GenerateWidget(Menu, Context);
}
