// Copyright Velmorant. All Rights Reserved.

#include "HostQuestions.h"

#include "CoreGlobals.h"
#include "HostState.h"
#include "Logging/LogMacros.h"
#include "Misc/App.h"

DEFINE_LOG_CATEGORY_STATIC(LogHostQuestions, Log, All);

namespace HostQuestionsImpl
{
	struct FQueuedAnswer
	{
		FName Kind;
		FHostAnswer Answer;
	};

	struct FState
	{
		TArray<FQueuedAnswer> Queue; // the oldest first
		TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> Responder;
		TArray<FAskedQuestion> Asked;
	};

	THostState<FState> State;

	TOptional<FHostAnswer> TakeQueued(FName Kind)
	{
		const int32 Index = State->Queue.IndexOfByPredicate([Kind](const FQueuedAnswer& Each) { return Each.Kind == Kind; });
		if (Index == INDEX_NONE)
		{
			return NullOpt;
		}
		FHostAnswer Answer = MoveTemp(State->Queue[Index].Answer);
		State->Queue.RemoveAt(Index);
		return Answer;
	}

	/** Whether the editor may ask at all. */
	bool MayAsk()
	{
		return !FApp::IsUnattended() && !IsRunningCommandlet();
	}

	TOptional<FHostAnswer> FindAnswer(const FHostQuestion& Question, EHostAnswerSource& OutSource)
	{
		if (!MayAsk())
		{
			return NullOpt;
		}
		if (TOptional<FHostAnswer> Queued = TakeQueued(Question.Kind))
		{
			OutSource = EHostAnswerSource::Queue;
			return Queued;
		}
		OutSource = EHostAnswerSource::Responder;
		const TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> Responder = State->Responder; // it may replace itself
		return Responder ? Responder(Question) : TOptional<FHostAnswer>();
	}

	/** Fills in what was left out, and falls back to the default for a choice that was not offered. */
	void Complete(FHostAnswer& Answer, const FHostQuestion& Question)
	{
		const bool bOffered = Question.Choices.Contains(Answer.Choice);
		if (!bOffered && !Answer.Choice.IsEmpty())
		{
			UE_LOG(LogHostQuestions, Warning, TEXT("'%s' is not an answer to the question '%s'; taking '%s'."),
				*Answer.Choice, *Question.Message.ToString(), *Question.DefaultChoice);
		}
		if (!bOffered)
		{
			Answer.Choice = Question.DefaultChoice;
		}
		for (const TPair<FString, FString>& Field : Question.Fields)
		{
			Answer.Fields.FindOrAdd(Field.Key, Field.Value);
		}
	}
}

FHostAnswer HostQuestions::Ask(const FHostQuestion& Question)
{
	FAskedQuestion Asked;
	Asked.Question = Question;
	if (TOptional<FHostAnswer> Answer = HostQuestionsImpl::FindAnswer(Question, Asked.Source))
	{
		Asked.Answer = MoveTemp(Answer.GetValue());
	}
	else
	{
		Asked.Source = EHostAnswerSource::Unattended;
	}
	HostQuestionsImpl::Complete(Asked.Answer, Question);
	HostQuestionsImpl::State->Asked.Add(Asked);
	return Asked.Answer;
}

void HostQuestions::Enqueue(FName Kind, const FHostAnswer& Answer)
{
	HostQuestionsImpl::State->Queue.Add({Kind, Answer});
}

void HostQuestions::SetResponder(TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> Responder)
{
	HostQuestionsImpl::State->Responder = MoveTemp(Responder);
}

const TArray<FAskedQuestion>& HostQuestions::GetAsked()
{
	return HostQuestionsImpl::State->Asked;
}
