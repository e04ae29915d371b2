// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "GenericPlatform/GenericPlatformMisc.h"

class FText;

/**
 * Asks the person at the editor something that cannot wait.
 *
 * Where nobody is (or nobody answers), the message is logged and the default is returned: the value passed in, or else the
 * cautious one of the type: Ok for Ok, No for the types with Yes and No, Cancel where it can be cancelled.
 */
class CORE_API FMessageDialog
{
public:
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message, const FText& Title);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message, const FText& Title);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message);
	static EAppReturnType::Type Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title);
};
