// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <filesystem>

/** Where ./velmorant puts the icon font that it downloads with npm. */
inline const std::filesystem::path FontPackage = VELMORANT_SOURCE_DIR "/build/npm/node_modules/@fortawesome/fontawesome-free";

inline bool HasFontPackage()
{
	return std::filesystem::exists(FontPackage / "metadata" / "icon-families.json");
}

/** Skips a test, with a word about it, on machines without the downloaded icon font. */
#define SKIP_WITHOUT_FONT_PACKAGE() \
	if (!HasFontPackage()) \
	{ \
		GTEST_SKIP() << FontPackage << " is not there: ./velmorant setup downloads it with npm"; \
	}
