// Copyright Velmorant. All Rights Reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"

#include "HostMenus.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender>, const bool,
	const ISlateStyle*, bool, FName InMenuName)
	: CommandList(MoveTemp(InCommandList))
	, MenuName(InMenuName)
	, bClosesMenus(bInShouldCloseWindowAfterMenuSelection)
{
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	checkf(!bInSection, TEXT("The section %s begins inside another one."), *InExtensionHook.ToString());
	bInSection = true;
	Sections.Add(FSection{InExtensionHook, InHeadingText, {}});
}

void FMenuBuilder::EndSection()
{
	checkf(bInSection, TEXT("A section ends that never began."));
	bInSection = false;
}

void FMenuBuilder::Add(const TSharedRef<SWidget>& Entry)
{
	const bool bContinues = bInSection || (!Sections.IsEmpty() && Sections.Last().Name.IsNone());
	if (!bContinues)
	{
		Sections.AddDefaulted(); // outside of any section
	}
	Sections.Last().Entries.Add(Entry);
}

void FMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, FName, const TAttribute<EVisibility>& InVisibilityOverride)
{
	check(InCommand.IsValid());
	const auto FindAction = [List = CommandList, InCommand] { return List.IsValid() ? List->GetActionForCommand(InCommand) : nullptr; };

	// clang-format off
	Add(SNew(SHostMenuEntry)
		.Tag(InExtensionHook.IsNone() ? InCommand->GetCommandName() : InExtensionHook)
		.Label(InLabelOverride.IsSet() ? InLabelOverride : TAttribute<FText>(InCommand->GetLabel()))
		.ToolTipText(InToolTipOverride.IsSet() ? InToolTipOverride : TAttribute<FText>(InCommand->GetDescription()))
		.Icon(InIconOverride.IsSet() ? InIconOverride : InCommand->GetIcon())
		.ActionType(InCommand->GetUserInterfaceType())
		.ClosesMenus(bClosesMenus)
		.IsEnabled_Lambda([FindAction]
		{
			const FUIAction* Action = FindAction();
			return Action && Action->CanExecute();
		})
		.Visibility_Lambda([FindAction, InVisibilityOverride]
		{
			const FUIAction* Action = FindAction();
			return Action && !Action->IsVisible() ? EVisibility::Collapsed : InVisibilityOverride.Get(EVisibility::Visible);
		})
		.CheckState_Lambda([FindAction]
		{
			const FUIAction* Action = FindAction();
			return Action ? Action->GetCheckState() : ECheckBoxState::Unchecked;
		})
		.OnChosen_Lambda([List = CommandList, InCommand] { return List.IsValid() && List->ExecuteAction(InCommand.ToSharedRef()); }));
	// clang-format on
}

void FMenuBuilder::AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon, const FUIAction& UIAction,
	FName InExtensionHook, const EUserInterfaceActionType UserInterfaceActionType, FName)
{
	// clang-format off
	Add(SNew(SHostMenuEntry)
		.Tag(InExtensionHook)
		.Label(InLabel)
		.ToolTipText(InToolTip)
		.Icon(InIcon)
		.ActionType(UserInterfaceActionType)
		.ClosesMenus(bClosesMenus)
		.IsEnabled_Lambda([UIAction] { return UIAction.CanExecute(); })
		.Visibility_Lambda([UIAction] { return UIAction.IsVisible() ? EVisibility::Visible : EVisibility::Collapsed; })
		.CheckState_Lambda([UIAction] { return UIAction.GetCheckState(); })
		.OnChosen_Lambda([UIAction] { return UIAction.Execute(); }));
	// clang-format on
}

void FMenuBuilder::AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool, bool, const TAttribute<FText>& InToolTipText)
{
	if (Label.IsEmpty())
	{
		Add(InWidget);
		return;
	}
	// clang-format off
	Add(SNew(SHorizontalBox)
		.ToolTipText(InToolTipText)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(STextBlock)
			.Text(Label)
		]
		+ SHorizontalBox::Slot()
		[
			InWidget
		]);
	// clang-format on
}

TSharedRef<SWidget> FMenuBuilder::MakeWidget()
{
	checkf(!bInSection, TEXT("The section %s has not been ended."), *Sections.Last().Name.ToString());
	const TSharedRef<SHostMenu> Menu = SNew(SHostMenu).Tag(MenuName);
	for (const FSection& Section : Sections)
	{
		if (Section.Entries.IsEmpty())
		{
			continue;
		}
		const TSharedRef<SHostMenuSection> Entries = SNew(SHostMenuSection).Tag(Section.Name).Heading(Section.Heading);
		for (const TSharedRef<SWidget>& Entry : Section.Entries)
		{
			Entries->AddPart(Entry);
		}
		Menu->AddPart(Entries);
	}
	return Menu;
}
