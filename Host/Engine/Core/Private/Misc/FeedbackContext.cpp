// Copyright Velmorant. All Rights Reserved.

#include "Misc/FeedbackContext.h"

#include "Internationalization/Text.h"
#include "Logging/LogMacros.h"
#include "Misc/ScopedSlowTask.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlowTask, Log, All);

namespace FeedbackContext
{
	constinit FFeedbackContext Instance;
}

FFeedbackContext* GWarn = &FeedbackContext::Instance;

void FFeedbackContext::StatusUpdate(int32 Numerator, int32 Denominator, const FText& StatusText)
{
	UE_LOG(LogSlowTask, Verbose, TEXT("%s (%d of %d)"), *StatusText.ToString(), Numerator, Denominator);
}

FScopedSlowTask::FScopedSlowTask(float InAmountOfWork, const FText& InDefaultMessage, bool bInEnabled, FFeedbackContext& InContext)
	: TotalAmountOfWork(InAmountOfWork)
	, DefaultMessage(InDefaultMessage)
	, bEnabled(bInEnabled)
	, Context(InContext)
{
}

void FScopedSlowTask::MakeDialog(bool /*bShowCancelButton*/, bool /*bAllowInPIE*/)
{
}

void FScopedSlowTask::EnterProgressFrame(float ExpectedWorkThisFrame, const FText& Text)
{
	CompletedWork += CurrentFrameScope;
	CurrentFrameScope = ExpectedWorkThisFrame;
	if (bEnabled)
	{
		Context.StatusUpdate(static_cast<int32>(CompletedWork), static_cast<int32>(TotalAmountOfWork), Text.IsEmpty() ? DefaultMessage : Text);
	}
}
