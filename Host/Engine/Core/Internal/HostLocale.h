// Copyright Velmorant. All Rights Reserved.

#pragma once

/** What the C library's wide functions (iswalnum and friends) answer to code that calls them directly. */
namespace HostLocale
{
	/**
	 * Sets LC_CTYPE of the process to a UTF-8 locale, so that a name such as "Türmchen Ñ" keeps its letters. Other categories keep
	 * the C locale: numbers are always written with a point. To be called before an editor boots; calling it again is cheap.
	 * @return false when the system has no such locale; then only ASCII letters count.
	 */
	bool UseUnicodeCharacterClasses();
}
