// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"
#include "Misc/AssertionMacros.h"
#include "String/FormatStringSan.h"

#include <type_traits>

namespace UE::Logging::Private
{
	void LogFormatted(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format, const UE::Core::FFormatArgument* Args);
	[[noreturn]] void LogFatalFormatted(const FLogCategoryBase& Category, const ANSICHAR* File, int32 Line, const TCHAR* Format, const UE::Core::FFormatArgument* Args);

	template<typename... Types>
	FORCENOINLINE void Log(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		LogFormatted(Category, Verbosity, Format.Format, Arguments);
	}

	template<typename... Types>
	[[noreturn]] FORCENOINLINE void LogFatal(const FLogCategoryBase& Category, const ANSICHAR* File, int32 Line, UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		LogFatalFormatted(Category, File, Line, Format.Format, Arguments);
	}
}

/** In a header; MODULE_API may stand before it. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern class FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
	public: \
		FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

/** In exactly one .cpp. */
#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

/** A category of one .cpp. */
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static class FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
	public: \
		FLogCategory##CategoryName() \
			: FLogCategory(TEXT(#CategoryName)) \
		{ \
		} \
	} CategoryName

#define UE_LOG_ACTIVE(CategoryName, Verbosity) (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

#define UE_PRIVATE_LOG(Condition, CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if constexpr (ELogVerbosity::Verbosity == ELogVerbosity::Fatal) \
		{ \
			if (Condition) \
			{ \
				::UE::Logging::Private::LogFatal(CategoryName, __FILE__, __LINE__, Format __VA_OPT__(, ) __VA_ARGS__); \
			} \
		} \
		else if constexpr (ELogVerbosity::Verbosity <= std::remove_cvref_t<decltype(CategoryName)>::CompileTimeVerbosity) \
		{ \
			if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity) && (Condition)) \
			{ \
				::UE::Logging::Private::Log(CategoryName, ELogVerbosity::Verbosity, Format __VA_OPT__(, ) __VA_ARGS__); \
			} \
		} \
	} while (0)

/** One line of the log. Format is a literal that must fit the arguments, which are evaluated only when the line is written. */
#define UE_LOG(CategoryName, Verbosity, Format, ...) UE_PRIVATE_LOG(true, CategoryName, Verbosity, Format __VA_OPT__(, ) __VA_ARGS__)
#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) UE_PRIVATE_LOG(Condition, CategoryName, Verbosity, Format __VA_OPT__(, ) __VA_ARGS__)
