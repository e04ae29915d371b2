// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "String/FormatStringSan.h"

/**
 * What may not happen. A failed check is fatal: it is printed and logged, then leaves through an exception that only the host's
 * programs and tests catch. A failed ensure is logged as an error once per place and running editor, and the program goes on.
 */
namespace UE::Assert::Private
{
	[[noreturn]] void CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);
	[[noreturn]] void CheckFailedFormatted(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args);

	/** Remembers for one ensure in which editor it reported last. */
	bool ShouldReport(uint32& LastReported);
	void EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line);
	void EnsureFailedFormatted(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args);

	template<typename... Types>
	[[noreturn]] FORCENOINLINE void CheckFailedf(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		CheckFailedFormatted(Expression, File, Line, Format.Format, Arguments);
	}

	template<typename... Types>
	FORCENOINLINE void EnsureFailedf(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		EnsureFailedFormatted(Expression, File, Line, Format.Format, Arguments);
	}
}

#define UE_PRIVATE_CHECK(Expression, Report) \
	do \
	{ \
		if (UNLIKELY(!(Expression))) \
		{ \
			Report; \
		} \
	} while (0)

#define check(...) UE_PRIVATE_CHECK((__VA_ARGS__), ::UE::Assert::Private::CheckFailed(#__VA_ARGS__, __FILE__, __LINE__))
#define checkf(Expression, Format, ...) \
	UE_PRIVATE_CHECK(Expression, ::UE::Assert::Private::CheckFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__))
#define verify(...) check(__VA_ARGS__)
#define verifyf(Expression, Format, ...) checkf(Expression, Format __VA_OPT__(, ) __VA_ARGS__)
#define checkNoEntry() ::UE::Assert::Private::CheckFailed("Enclosing block should never be called", __FILE__, __LINE__)
#define unimplemented() ::UE::Assert::Private::CheckFailed("Unimplemented function called", __FILE__, __LINE__)

// Left out of this build, as in the engine's development build.
#define checkSlow(...) static_cast<void>(0)
#define checkfSlow(...) static_cast<void>(0)

// An expression of type bool: the value of the condition.
#define UE_PRIVATE_ENSURE(bAlways, Expression, ...) \
	(LIKELY(!!(Expression)) || ([&]() -> bool {                                            \
		static uint32 UE_PrivateLastReported = 0;                                          \
		if (bAlways || ::UE::Assert::Private::ShouldReport(UE_PrivateLastReported))        \
		{                                                                                  \
			__VA_ARGS__;                                                                   \
		}                                                                                  \
		return false; }()))

#define ensure(Expression) \
	UE_PRIVATE_ENSURE(false, Expression, ::UE::Assert::Private::EnsureFailed(#Expression, __FILE__, __LINE__))
#define ensureAlways(Expression) \
	UE_PRIVATE_ENSURE(true, Expression, ::UE::Assert::Private::EnsureFailed(#Expression, __FILE__, __LINE__))
#define ensureMsgf(Expression, Format, ...) \
	UE_PRIVATE_ENSURE(false, Expression, ::UE::Assert::Private::EnsureFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__))
#define ensureAlwaysMsgf(Expression, Format, ...) \
	UE_PRIVATE_ENSURE(true, Expression, ::UE::Assert::Private::EnsureFailedf(#Expression, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__))
