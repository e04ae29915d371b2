// Copyright Velmorant. All Rights Reserved.

#include "Look/Fonts.h"

#include <algorithm>
#include <cmath>

namespace Fonts
{
	static const int StandardPixels = 13;

	static int ToPixels(float Points)
	{
		return std::max(1, static_cast<int>(std::lround(Points * 96.0f / 72.0f)));
	}

	QFont GetStandard()
	{
		QFont Font = QApplication::font();
		Font.setPixelSize(StandardPixels);
		return Font;
	}

	QFont ToQt(const FSlateFontInfo& Font)
	{
		QFont Result = GetStandard();
		if (Font.TypefaceFontName.IsNone() && !Font.HasValidFont())
		{
			return Result;
		}
		Result.setPixelSize(std::max(ToPixels(Font.Size), StandardPixels - 1)); // smaller ones are hard to read
		Result.setBold(Font.TypefaceFontName == FName(TEXT("Bold")));
		return Result;
	}
}
