// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Textures/SlateIcon.h"

enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	ToggleButton,
	RadioButton,
	Check,
	CollapsedButton,
};

class FUICommandInfo;

/** A named group of commands and the style set of their icons. */
class SLATE_API FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName)
		, ContextParent(InContextParent)
		, ContextDesc(InContextDesc)
		, StyleSetName(InStyleSetName)
	{
	}
	virtual ~FBindingContext() = default;

	FName GetContextName() const { return ContextName; }
	const FText& GetContextDesc() const { return ContextDesc; }
	FName GetStyleSetName() const { return StyleSetName; }

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

/** One command: its texts, icon and default keys. What it does is mapped elsewhere, in a command list. */
class SLATE_API FUICommandInfo : public TSharedFromThis<FUICommandInfo>
{
public:
	/** Makes a command and makes it known in its context. The icon is `<context>.<command>` of the context's style set. */
	static void MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand, const FName InCommandName,
		const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon, const EUserInterfaceActionType InUserInterfaceType,
		const FInputChord& InDefaultChord, const FInputChord& InAlternateDefaultChord = FInputChord());

	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	FName GetCommandName() const { return CommandName; }
	FName GetBindingContext() const { return BindingContext; }
	const FSlateIcon& GetIcon() const { return Icon; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }

	/** The chord as a menu prints it; empty when there is none. */
	FText GetInputText() const { return DefaultChord.GetInputText(); }

private:
	FUICommandInfo() = default;

	FName BindingContext;
	FName CommandName;
	FText Label;
	FText Description;
	FSlateIcon Icon;
	EUserInterfaceActionType UserInterfaceType = EUserInterfaceActionType::None;
	FInputChord DefaultChord;
	FInputChord AlternateDefaultChord;
};
