// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Internationalization/Text.h"
#include "Misc/FeedbackContext.h"

/** A long operation, for the length of a scope. The host opens no progress window; it reports each step to the feedback context. */
class CORE_API FScopedSlowTask
{
public:
	explicit FScopedSlowTask(float InAmountOfWork, const FText& InDefaultMessage = FText(), bool bInEnabled = true, FFeedbackContext& InContext = *GWarn);
	FScopedSlowTask(const FScopedSlowTask&) = delete;
	FScopedSlowTask& operator=(const FScopedSlowTask&) = delete;

	/** Nothing to open here. */
	void MakeDialog(bool bShowCancelButton = false, bool bAllowInPIE = false);

	/** The step before is done; the next one is ExpectedWorkThisFrame of the whole. */
	void EnterProgressFrame(float ExpectedWorkThisFrame = 1.f, const FText& Text = FText());

	float TotalAmountOfWork;
	float CompletedWork = 0.f;

private:
	FText DefaultMessage;
	bool bEnabled;
	FFeedbackContext& Context;
	float CurrentFrameScope = 0.f; // work of the step that runs now
};
