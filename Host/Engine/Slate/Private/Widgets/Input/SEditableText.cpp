// Copyright Velmorant. All Rights Reserved.

#include "Widgets/Input/SEditableText.h"

#include "HostSecrets.h"
#include "HostWidget.h"
#include "Widgets/Input/SEditableTextBox.h"

void SEditableText::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	HintText = InArgs._HintText;
	ReadOnly = InArgs._IsReadOnly;
	Password = InArgs._IsPassword;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
	Font = InArgs._Font;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	NoteSecret(GetText());
}

void SEditableText::SetIsPassword(const TAttribute<bool>& InIsPassword)
{
	Password = InIsPassword;
	NoteSecret(GetText());
}

void SEditableText::NoteSecret(const FText& Held) const
{
	if (IsTextPassword())
	{
		HostSecrets::Note(Held.ToString());
	}
}

void SEditableText::SetText(const TAttribute<FText>& InText)
{
	const FText Old = GetText();
	Text = InText;
	const FText New = GetText();
	NoteSecret(New);
	if (!New.EqualTo(Old))
	{
		OnTextChanged.ExecuteIfBound(New);
	}
}

void SEditableText::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("edit");
	OutDescription.Value = GetText().ToString();
	OutDescription.bReadOnly = IsTextReadOnly();
	OutDescription.bPassword = IsTextPassword();
	const FString Hint = GetHintText().ToString();
	if (!Hint.IsEmpty())
	{
		OutDescription.Label = Hint;
	}
}

void SEditableText::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.Hint = GetHintText().ToString();
	OutLook.Font = Font.Get(FSlateFontInfo());
	if (MinDesiredWidth.IsSet())
	{
		OutLook.MinWidth = MinDesiredWidth.Get();
	}
}

FHostInputResult SEditableText::TakeHostInput(const FHostInput& Input)
{
	const bool bCommits = Input.Kind == EHostInput::Type || Input.Kind == EHostInput::Commit;
	if (!bCommits && Input.Kind != EHostInput::Edit)
	{
		return SLeafWidget::TakeHostInput(Input);
	}
	if (IsTextReadOnly())
	{
		return FHostInputResult::Refused(TEXT("is read-only"));
	}
	const FText Typed = TakeTyped(Input.Text);
	if (bCommits)
	{
		LastTyped.Reset();
		OnTextCommitted.ExecuteIfBound(Typed, Input.Kind == EHostInput::Type ? ETextCommit::OnEnter : Input.Commit);
	}
	return FHostInputResult::Done();
}

/** What is typed over a bound text is seen only while typing: once it is committed, the text is again what its owner says. */
FText SEditableText::TakeTyped(const FString& InText)
{
	const FText Typed = FText::FromString(InText);
	if (!Text.IsBound())
	{
		SetText(Typed);
		return GetText();
	}
	NoteSecret(Typed);
	if (!Typed.EqualTo(LastTyped.Get(GetText())))
	{
		LastTyped = Typed;
		OnTextChanged.ExecuteIfBound(Typed);
	}
	return Typed;
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	// clang-format off
	SBorder::Construct(SBorder::FArguments()
	[
		SAssignNew(EditableText, SEditableText)
		.Text(InArgs._Text)
		.HintText(InArgs._HintText)
		.Font(InArgs._Font)
		.IsReadOnly(InArgs._IsReadOnly)
		.IsPassword(InArgs._IsPassword)
		.MinDesiredWidth(InArgs._MinDesiredWidth)
		.OnTextChanged(InArgs._OnTextChanged)
		.OnTextCommitted(InArgs._OnTextCommitted)
	]);
	// clang-format on
}

void SEditableTextBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	const FHostWidgetDescription Inner = FHostWidgetAccess::Describe(*EditableText);
	OutDescription.Role = TEXT("edit");
	OutDescription.Label = Inner.Label;
	OutDescription.Value = Inner.Value;
	OutDescription.Error = Error.ToString();
	OutDescription.bReadOnly = Inner.bReadOnly;
	OutDescription.bPassword = Inner.bPassword;
	OutDescription.bSealed = true;
}

void SEditableTextBox::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook = FHostWidgetAccess::LookOf(*EditableText);
	OutLook.Opacity = GetRenderOpacity();
	OutLook.bCollapsed = GetVisibility() == EVisibility::Collapsed;
}

FHostInputResult SEditableTextBox::TakeHostInput(const FHostInput& Input)
{
	return FHostWidgetAccess::Give(EditableText.ToSharedRef(), Input);
}
