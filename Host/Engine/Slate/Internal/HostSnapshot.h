// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidget.h"

/**
 * A widget tree as a person sees it, as text, and a person's hands on it.
 *
 * One widget a line, indented by depth with two blanks:
 *
 *   edit UserName "ada@harbor.example" (read-only)
 *   button SummitButton [Sign in] (disabled)
 *
 * that is: role, name, label in brackets, value in quotes, facts in parentheses. Boxes and borders without a name are left out; a
 * hidden widget is one line without its children. The value of a password field is a row of bullets of fixed length, or empty.
 * Quotes, backslashes and line ends in values are escaped, so that a line stays a line.
 *
 * Widgets are meant by their name, their label, the text they show, or their tool tip, in this order of preference;
 * `Outer/Inner` means the inner one within the outer one. Names ignore case, labels do not. What does not show is only meant
 * when nothing that shows fits.
 */
namespace HostSnapshot
{
	FString Take(const TSharedRef<SWidget>& Root);

	/** The widget meant by the text, or null; OutReason then says why: nothing of that name, or more than one. */
	TSharedPtr<SWidget> Find(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason);

	/** By what the widgets that show can be meant: their names, or else their labels; in the order of the screen, each once. */
	TArray<FString> GetNames(const TSharedRef<SWidget>& Root);

	/** What a person would read in it: its value, or its label. Unset with a reason when there is no such widget; secrets read as bullets. */
	TOptional<FString> Read(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason);

	/** What is seen of it; bEnabled and bVisible take its parents into account. */
	TOptional<FHostWidgetDescription> Describe(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason);

	/** The choices of a combo box, as shown. */
	TArray<FString> GetOptions(const TSharedRef<SWidget>& Root, const FString& Widget, FString& OutReason);

	//~ Input. Refused, with a reason that names the widget, when it is not found, hidden, disabled, read-only, or of another kind.

	FHostInputResult Click(const TSharedRef<SWidget>& Root, const FString& Widget);
	/** Replaces the whole text and leaves the field with Enter. */
	FHostInputResult Type(const TSharedRef<SWidget>& Root, const FString& Widget, const FString& Text);
	/** Chooses the option, row or tile that shows Option. */
	FHostInputResult Choose(const TSharedRef<SWidget>& Root, const FString& Widget, const FString& Option);
	FHostInputResult Check(const TSharedRef<SWidget>& Root, const FString& Widget, bool bOn);
}
