// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostProblems.h"

/** What a person would see the editor do. */
struct FStepEvents
{
	struct FNotification
	{
		FString Title;
		FString SubText;
		FString State; // "none", "pending", "success", "fail"
		float Seconds = 0.0f;
		TArray<FString> Buttons; // those that show
	};

	struct FQuestion
	{
		FString Kind;
		FString Message;
		FString Choice;
		TArray<FString> Fields; // "Name=Value"
		bool bUnattended = false;
	};

	TArray<FNotification> Notifications;
	TArray<FQuestion> Questions;
	TArray<FString> Log; // warnings, errors, and what the program's extension shows
	TArray<FString> Urls; // web pages that were opened
	TArray<FHostProblem> Problems;
	TArray<FHostProblem> NotWritten; // the work that was not kept; also where it stands among the problems from an earlier step
};

/** Notes what is new in the running editor since it was last asked. */
class FEventWatch
{
public:
	/** Adds what is new. */
	void Collect();

	/** The same for the log alone, which outlives its editor. */
	void CollectLog();

	/** Hands over what was collected. */
	FStepEvents Take();

	/** Another editor came up: everything in it is new. */
	void StartAnew();

private:
	void CollectNotifications();
	void CollectQuestions();
	void CollectUrls();
	void ReportTrouble() const;
	void CollectProblems();
	void CollectNotWritten();

	FStepEvents Events;
	int32 NumNotifications = 0;
	int32 NumQuestions = 0;
	int32 NumUrls = 0;
	int32 NumLogLines = 0;
	int32 NumProblems = 0;
	int32 NumNotWritten = 0;
};

namespace StepEvents
{
	/** "none", "pending", "success", "fail". */
	const TCHAR* GetStateWord(int32 CompletionState);
}
