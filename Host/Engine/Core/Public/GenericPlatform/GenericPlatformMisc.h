// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** The buttons of a message dialog. */
namespace EAppMsgType
{
	enum Type
	{
		Ok,
		YesNo,
		OkCancel,
		YesNoCancel,
		CancelRetryContinue,
		YesNoYesAllNoAll,
		YesNoYesAllNoAllCancel,
		YesNoYesAll
	};
}

/** Which button closed it. */
namespace EAppReturnType
{
	enum Type
	{
		No,
		Yes,
		YesAll,
		NoAll,
		Cancel,
		Ok,
		Retry,
		Continue
	};
}

/** "Ok", "YesAll", ... */
CORE_API const TCHAR* LexToString(EAppReturnType::Type Value);

/** What a message is about; it chooses the dialog's title and icon. */
enum class EAppMsgCategory : uint8
{
	Warning,
	Error,
	Success,
	Info
};
