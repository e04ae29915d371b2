// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <cstddef>
#include <cstdint>

// The platform as the engine describes it. The host builds for one: Linux, 64 bit, with the editor.

#ifndef PLATFORM_LINUX
#define PLATFORM_LINUX 1
#endif
#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_ANDROID 0
#define PLATFORM_IOS 0
#define PLATFORM_UNIX 1
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1

#define FORCEINLINE inline
#define FORCENOINLINE __attribute__((noinline))
#define RESTRICT __restrict
#define UE_NODISCARD [[nodiscard]]
#define UE_FORCEINLINE_HINT inline
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)

using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = unsigned long long; // not unsigned long: formats say %llu on every platform
using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = long long;

using ANSICHAR = char;
using WIDECHAR = char16_t; // a 16-bit code unit, as on the desktop platform that the editor ships for
using TCHAR = WIDECHAR;
using UTF8CHAR = char8_t;
using UTF16CHAR = char16_t;
using UTF32CHAR = char32_t;

using UPTRINT = std::uintptr_t;
using PTRINT = std::intptr_t;
using SIZE_T = std::size_t;
using SSIZE_T = std::ptrdiff_t;
using TYPE_OF_NULLPTR = decltype(nullptr);

static_assert(sizeof(TCHAR) == 2 && sizeof(int64) == 8 && sizeof(void*) == 8, "The host supports 64-bit platforms with 16-bit TCHAR only.");

#define TEXT_PASTE(x) u##x
#define TEXT(x) TEXT_PASTE(x)

#define LINE_TERMINATOR TEXT("\n")
#define LINE_TERMINATOR_ANSI "\n"
