// Copyright Velmorant. All Rights Reserved.

#include "Misc/FeedbackContext.h"

namespace FeedbackContext
{
	constinit FFeedbackContext Instance;
}

FFeedbackContext* GWarn = &FeedbackContext::Instance;
