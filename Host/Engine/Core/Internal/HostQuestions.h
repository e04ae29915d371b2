// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"
#include "UObject/NameTypes.h"

/** Something the editor wants to know before it goes on. */
struct FHostQuestion
{
	FName Kind; // "Message", "SaveAsset", "ReplaceAsset", "DeleteAssets", "ReadOnlyFile": what the choices and fields mean
	FText Title;
	FText Message;
	TArray<FString> Choices; // as on the buttons, first one first
	FString DefaultChoice; // taken when nobody answers; one of Choices
	TMap<FString, FString> Fields; // what else is asked or told, with the proposed values
};

struct FHostAnswer
{
	FString Choice; // one of the question's choices; empty for the default
	TMap<FString, FString> Fields; // fields that are left out keep the proposed values
};

/** Who an answer came from. */
enum class EHostAnswerSource : uint8
{
	Unattended, // nobody: the default
	Queue,
	Responder
};

struct FAskedQuestion
{
	FHostQuestion Question;
	FHostAnswer Answer; // as it was given to the editor: with a choice and all fields
	EHostAnswerSource Source = EHostAnswerSource::Unattended;
};

/**
 * The questions of the running editor, and who answers them.
 *
 * Answers that were put in the queue for the question's kind come first, then a responder (the person at the window), then the
 * default. An unattended editor and a commandlet ask nobody: the default is taken at once. No question ever waits.
 */
namespace HostQuestions
{
	CORE_API FHostAnswer Ask(const FHostQuestion& Question);

	/** Answers the next question of this kind that has no answer in the queue yet. */
	CORE_API void Enqueue(FName Kind, const FHostAnswer& Answer);

	/** Asked when the queue has no answer; may leave a question unanswered. Replaces the previous one; null for none. */
	CORE_API void SetResponder(TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> Responder);

	/** All questions since the editor came up, the first one first. */
	CORE_API const TArray<FAskedQuestion>& GetAsked();
}
