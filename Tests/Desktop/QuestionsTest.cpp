// Copyright Velmorant. All Rights Reserved.
// What is asked in dialogs, and what follows from the answers.

#include "DesktopFixture.h"

#include "HostClock.h"
#include "HostQuestions.h"
#include "QtText.h"

namespace QuestionsTest
{
	FHostQuestion MakeQuestion()
	{
		FHostQuestion Question;
		Question.Kind = TEXT("SaveAsset");
		Question.Title = FText::FromString(TEXT("Save Asset As"));
		Question.Message = FText::FromString(TEXT("Where to?"));
		Question.Choices = {TEXT("Save"), TEXT("Cancel")};
		Question.DefaultChoice = TEXT("Cancel");
		Question.Fields.Add(TEXT("Name"), TEXT("Garden"));
		Question.Fields.Add(TEXT("Path"), TEXT("/Game"));
		return Question;
	}

	void Press(QDialog& Dialog, const QString& Text)
	{
		for (QPushButton* const Button : Dialog.findChildren<QPushButton*>())
		{
			if (Button->text() == Text)
			{
				Button->click();
				return;
			}
		}
		ADD_FAILURE() << "the dialog has no button " << Text.toStdString();
		Dialog.reject();
	}
}

using QuestionDialogs = FDesktopTest;

TEST_F(QuestionDialogs, TakeChoiceAndFieldsFromTheDialog)
{
	using namespace QuestionsTest;
	struct FCase
	{
		const char* Behaviour;
		std::function<void(QDialog&)> Act;
		FString Choice;
		FString Name;
	};
	const FCase Cases[] = {
		{"a button is a choice, and fields are what stands in them",
			[](QDialog& Dialog) {
				Dialog.findChild<QLineEdit*>(QStringLiteral("Name"))->setText(QStringLiteral("Terrace"));
				Press(Dialog, QStringLiteral("Save"));
			},
			TEXT("Save"), TEXT("Terrace")},
		{"fields that nobody touched keep what was proposed", [](QDialog& Dialog) { Press(Dialog, QStringLiteral("Save")); }, TEXT("Save"), TEXT("Garden")},
		{"a closed dialog takes the default", [](QDialog& Dialog) { Dialog.reject(); }, TEXT("Cancel"), TEXT("Garden")},
	};
	Open();
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WhenAsked(Case.Act);
		const FHostAnswer Answer = HostQuestions::Ask(MakeQuestion());
		EXPECT_TRUE(Answer.Choice.Equals(Case.Choice)) << QtText::From(Answer.Choice).toStdString();
		EXPECT_TRUE(Answer.Fields.FindRef(TEXT("Name")).Equals(Case.Name));
	}
}

TEST_F(QuestionDialogs, LetTimeStandWhileOneIsOpen)
{
	using namespace QuestionsTest;
	Open();
	const double Before = HostClock::Now();
	WhenAsked([this](QDialog& Dialog) {
		GetWindow().Frame();
		Let(5.0);
		Dialog.reject();
	});
	HostQuestions::Ask(MakeQuestion());
	EXPECT_EQ(HostClock::Now(), Before);
	Let(5.0);
	EXPECT_GT(HostClock::Now(), Before) << "it goes on afterwards";
}
