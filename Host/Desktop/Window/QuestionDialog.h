// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostQuestions.h"

/** Asks a person what the editor wants to know: its choices as buttons, its fields to fill in. Closing it cancels, or takes the default. */
class FQuestionDialog : public QDialog
{
public:
	FQuestionDialog(const FHostQuestion& InQuestion, QWidget* Parent);

	/** After it was closed. */
	FHostAnswer GetAnswer() const;

protected:
	/** Nothing happens for a choice that the question does not have. */
	void SetChoiceEnabled(const FString& InChoice, bool bEnabled);

private:
	const FHostQuestion& Question;
	FString Choice;
	TMap<FString, QLineEdit*> Fields;
	TMap<FString, QPushButton*> Buttons;
};
