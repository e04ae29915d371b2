// Copyright Velmorant. All Rights Reserved.

#include "HostLog.h"
#include "HostQuestions.h"
#include "HostState.h"
#include "Misc/CommandLine.h"
#include "Misc/MessageDialog.h"

#include <gtest/gtest.h>

/** Nobody has asked or answered anything yet. */
class HostQuestionsFixture : public testing::Test
{
protected:
	HostQuestionsFixture() { HostState::DestroyAll(); }
	virtual ~HostQuestionsFixture() override { HostState::DestroyAll(); }

	static FHostQuestion MakeSaveQuestion()
	{
		FHostQuestion Question;
		Question.Kind = FName(TEXT("SaveAsset"));
		Question.Choices = {TEXT("Save"), TEXT("Cancel")};
		Question.DefaultChoice = TEXT("Save");
		Question.Fields = {{TEXT("Name"), TEXT("Tower")}, {TEXT("Path"), TEXT("/Game")}};
		return Question;
	}
};

using Questions = HostQuestionsFixture;
using MessageDialogs = HostQuestionsFixture;

TEST_F(Questions, NobodyAnsweringMeansTheDefaultWithTheProposedFields)
{
	const FHostAnswer Answer = HostQuestions::Ask(MakeSaveQuestion());
	EXPECT_TRUE(Answer.Choice.Equals(TEXT("Save")));
	EXPECT_TRUE(Answer.Fields.FindRef(TEXT("Path")).Equals(TEXT("/Game")));
	ASSERT_EQ(HostQuestions::GetAsked().Num(), 1);
	EXPECT_EQ(HostQuestions::GetAsked()[0].Source, EHostAnswerSource::Unattended);
}

TEST_F(Questions, QueuedAnswersServeTheirKindInOrderAndKeepFieldsTheyLeaveOut)
{
	HostQuestions::Enqueue(FName(TEXT("Message")), {TEXT("Ok"), {}});
	HostQuestions::Enqueue(FName(TEXT("SaveAsset")), {TEXT(""), {{TEXT("Name"), TEXT("Harbor")}}});
	HostQuestions::Enqueue(FName(TEXT("SaveAsset")), {TEXT("Cancel"), {}});
	const FHostAnswer First = HostQuestions::Ask(MakeSaveQuestion());
	EXPECT_TRUE(First.Choice.Equals(TEXT("Save")));
	EXPECT_TRUE(First.Fields.FindRef(TEXT("Name")).Equals(TEXT("Harbor")));
	EXPECT_TRUE(First.Fields.FindRef(TEXT("Path")).Equals(TEXT("/Game")));
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Cancel")));
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Save"))) << "the queue is empty";
}

TEST_F(Questions, TheResponderIsAskedAfterTheQueueAndMayPass)
{
	int32 NumAsked = 0;
	HostQuestions::SetResponder([&NumAsked](const FHostQuestion&) -> TOptional<FHostAnswer> {
		return ++NumAsked == 1 ? TOptional<FHostAnswer>(FHostAnswer{TEXT("Cancel"), {}}) : NullOpt;
	});
	HostQuestions::Enqueue(FName(TEXT("SaveAsset")), {TEXT("Save"), {}});
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Save")));
	EXPECT_EQ(NumAsked, 0);
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Cancel")));
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Save")));
	EXPECT_EQ(HostQuestions::GetAsked()[1].Source, EHostAnswerSource::Responder);
	EXPECT_EQ(HostQuestions::GetAsked()[2].Source, EHostAnswerSource::Unattended);
}

TEST_F(Questions, AnUnattendedEditorAndACommandletAskNobody)
{
	for (const TCHAR* Switches : {TEXT("-unattended"), TEXT("-nullrhi -run=Cook")})
	{
		FCommandLine::Set(Switches);
		HostQuestions::Enqueue(FName(TEXT("SaveAsset")), {TEXT("Cancel"), {}});
		EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Save"))) << "the default";
		EXPECT_EQ(HostQuestions::GetAsked().Last().Source, EHostAnswerSource::Unattended);

		FCommandLine::Set(TEXT(""));
		EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Cancel"))) << "the answer was not used up";
	}
}

TEST_F(Questions, AChoiceThatIsNotOfferedIsReportedAndNotTaken)
{
	HostLog::Clear();
	HostQuestions::Enqueue(FName(TEXT("SaveAsset")), {TEXT("Maybe"), {}});
	EXPECT_TRUE(HostQuestions::Ask(MakeSaveQuestion()).Choice.Equals(TEXT("Save")));
	EXPECT_TRUE(HostLog::GetLines().ContainsByPredicate([](const FHostLogLine& Line) { return Line.Verbosity == ELogVerbosity::Warning && Line.Text.Contains(TEXT("'Maybe'")); }));
}

TEST_F(MessageDialogs, AskWithTitleTextAndButtonsAndLogTheResult)
{
	HostLog::Clear();
	HostQuestions::Enqueue(FName(TEXT("Message")), {TEXT("Yes"), {}});
	const EAppReturnType::Type Result = FMessageDialog::Open(EAppMsgCategory::Error, EAppMsgType::YesNo, FText::FromString(TEXT("Repair it?")), FText::FromString(TEXT("Collision")));
	EXPECT_EQ(Result, EAppReturnType::Yes);
	ASSERT_EQ(HostQuestions::GetAsked().Num(), 1);
	const FHostQuestion& Question = HostQuestions::GetAsked()[0].Question;
	EXPECT_TRUE(Question.Title.ToString().Equals(TEXT("Collision")));
	EXPECT_TRUE(Question.Message.ToString().Equals(TEXT("Repair it?")));
	EXPECT_EQ(Question.Choices, (TArray<FString>{TEXT("Yes"), TEXT("No")}));
	EXPECT_TRUE(HostLog::GetLines().ContainsByPredicate([](const FHostLogLine& Line) { return Line.Text.Contains(TEXT("result: Yes, title: Collision, text: Repair it?")); }));
}
