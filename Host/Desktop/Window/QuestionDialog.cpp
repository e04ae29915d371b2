// Copyright Velmorant. All Rights Reserved.

#include "Window/QuestionDialog.h"

#include "QtText.h"

FQuestionDialog::FQuestionDialog(const FHostQuestion& InQuestion, QWidget* Parent)
	: QDialog(Parent)
	, Question(InQuestion)
{
	const FString Cancel = TEXT("Cancel");
	Choice = Question.Choices.Contains(Cancel) ? Cancel : FString(); // until a person chooses
	setObjectName(QtText::From(Question.Kind));
	setWindowTitle(QtText::From(Question.Title));
	setMinimumWidth(420);
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setSpacing(14);
	Layout->setContentsMargins(18, 16, 18, 14);
	QLabel* const Message = new QLabel(QtText::From(Question.Message), this);
	Message->setTextFormat(Qt::PlainText);
	Message->setWordWrap(true);
	Message->setVisible(!Question.Message.IsEmpty());
	Layout->addWidget(Message);

	QFormLayout* const Form = new QFormLayout;
	for (const TPair<FString, FString>& Field : Question.Fields)
	{
		QLineEdit* const Edit = new QLineEdit(QtText::From(Field.Value), this);
		Edit->setObjectName(QtText::From(Field.Key));
		Form->addRow(QtText::From(Field.Key), Edit);
		Fields.Add(Field.Key, Edit);
	}
	Layout->addLayout(Form);

	QDialogButtonBox* const Row = new QDialogButtonBox(this);
	for (const FString& Each : Question.Choices)
	{
		QPushButton* const Button = Row->addButton(QtText::From(Each), QDialogButtonBox::ActionRole);
		Button->setDefault(Each.Equals(Question.DefaultChoice));
		Buttons.Add(Each, Button);
		connect(Button, &QPushButton::clicked, this, [this, Each] {
			Choice = Each;
			accept();
		});
	}
	Layout->addWidget(Row);
}

FHostAnswer FQuestionDialog::GetAnswer() const
{
	FHostAnswer Answer;
	Answer.Choice = Choice;
	for (const TPair<FString, QLineEdit*>& Field : Fields)
	{
		Answer.Fields.Add(Field.Key, QtText::ToEditor(Field.Value->text()));
	}
	return Answer;
}

void FQuestionDialog::SetChoiceEnabled(const FString& InChoice, bool bEnabled)
{
	if (QPushButton* const* const Button = Buttons.Find(InChoice))
	{
		(*Button)->setEnabled(bEnabled);
	}
}
