// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HAL/Platform.h"
#include "HAL/PreprocessorHelpers.h"

/** "Not found", "no index", "append". */
enum
{
	INDEX_NONE = -1
};

enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

#define ANONYMOUS_VARIABLE(Name) PREPROCESSOR_JOIN(Name, __LINE__)

#define UE_NONCOPYABLE(TypeName) \
	TypeName(TypeName&&) = delete; \
	TypeName(const TypeName&) = delete; \
	TypeName& operator=(const TypeName&) = delete; \
	TypeName& operator=(TypeName&&) = delete

#define UE_DEPRECATED(Version, Message) [[deprecated(Message " Deprecated since " #Version ".")]]

#define PRAGMA_DISABLE_DEPRECATION_WARNINGS \
	_Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wdeprecated-declarations\"")
#define PRAGMA_ENABLE_DEPRECATION_WARNINGS _Pragma("GCC diagnostic pop")

namespace UE::Assert::Private
{
	[[noreturn]] void PureVirtualCalled(const ANSICHAR* Function);
}

/** The body of a UObject virtual that every subclass must override: UObject classes cannot be abstract to the compiler. Fatal when called. */
#define PURE_VIRTUAL(Function, ...) \
	{ \
		::UE::Assert::Private::PureVirtualCalled(#Function); \
	}
