// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidgetLook.h"
#include "Misc/Optional.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SWidget.h"

/** What a person could see of one widget. Strings are as shown, in no language but the texts' own. */
struct FHostWidgetDescription
{
	/** "text", "button", "edit", … One lower-case word. */
	FString Role = TEXT("widget");
	/** The widget's tag; for a UMG widget, the name it has in its layout. */
	FName Name;
	/** What stands on the widget itself. */
	FString Label;
	/** What the widget holds, or what was chosen in it; unset for widgets that hold nothing. */
	TOptional<FString> Value;
	FString ToolTip;
	/** What is wrong with the value, as it stands beside the widget. */
	FString Error;

	bool bEnabled = true;
	bool bVisible = true;
	bool bReadOnly = false;
	bool bSelected = false;
	bool bBusy = false;
	/** The value is a secret: it is never shown, not even by its length. */
	bool bPassword = false;
	TOptional<ECheckBoxState> Checked;

	/** Further facts, such as "12 items". */
	TArray<FString> Notes;

	/** Means nothing by itself: a person sees only what is in it. */
	bool bTransparent = false;
	/** Its children are part of it and not shown on their own: the text on a button. */
	bool bSealed = false;
};

enum class EHostInput : uint8
{
	Click,
	Type, // replaces the whole text, then leaves the field with Enter
	Choose, // the option or row that shows Text
	Check, // sets a check box to bOn

	//~ The single acts of somebody with keyboard and mouse, who sees each of them.
	Edit, // replaces the whole text and stays in the field
	Commit, // leaves the field, with Text in it, as Commit says
	Pick, // the option of that Index
	Scroll, // shows the rows of Count items from Index on
	Move, // by so many items as Index says, from the one that is selected, as with the arrow keys
};

/** One thing that a person does to a widget. */
struct FHostInput
{
	EHostInput Kind = EHostInput::Click;
	FString Text;
	bool bOn = false;
	int32 Index = 0;
	int32 Count = 0;
	ETextCommit::Type Commit = ETextCommit::OnEnter;
};

/** Whether the widget took the input; if not, why not, as half a sentence: "is disabled". */
struct FHostInputResult
{
	bool bDone = false;
	FString Reason;

	static FHostInputResult Done() { return {true, FString()}; }
	static FHostInputResult Refused(const FString& InReason) { return {false, InReason}; }
};

/** The way to the host functions of widgets. */
class FHostWidgetAccess
{
public:
	static FHostWidgetDescription Describe(const SWidget& Widget);

	static FHostWidgetLook LookOf(const SWidget& Widget);

	/** What is drawn of it, the faces of buttons included, and where. */
	static TArray<FHostWidgetPart> PartsOf(const TSharedRef<SWidget>& Widget);

	/** Holds the widget for as long as its handlers run. Asks only this widget: disabled or hidden parents are the caller's concern. */
	static FHostInputResult Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input);

	/** What a person could choose in a combo box, as shown; makes the option widgets anew, as opening the box does. */
	static TArray<FString> OptionsOf(const TSharedRef<SWidget>& Widget);
	static TArray<TSharedRef<SWidget>> OptionWidgetsOf(const TSharedRef<SWidget>& Widget);

	/** The texts that show in a widget and below it, in order, one blank between. Secrets, colours and tool tips are not texts. */
	static FString TextOf(SWidget& Widget);

	/** Whether one of those texts is exactly this one. Rows of lists within the widget are widgets of their own. */
	static bool ShowsText(SWidget& Widget, const FString& Text);

	static TArray<TSharedRef<SWidget>> ChildrenOf(SWidget& Widget);
};
