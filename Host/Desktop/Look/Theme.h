// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Math/Color.h"

/** The colours of the window. */
namespace Theme
{
	enum class EKind : uint8
	{
		Dark,
		Light,
	};

	/** Colours that no palette has a role for. */
	struct FColors
	{
		QColor Header; // of panels and lists
		QColor Line; // between things
		QColor Field; // to type into
		QColor FieldLine;
		QColor Hover;
		QColor Subtle; // text that matters less
		QColor Good;
		QColor Bad;
		QColor Pending;
	};

	/** Light or dark as the desktop's own palette is. */
	EKind FindPreferred();

	/** Style, palette and font of the whole application. */
	void Apply(EKind Kind);

	EKind GetKind();
	const FColors& GetColors();

	/** The colour of a text, moved towards that of the theme's own texts as far as it takes to be read on a button or a panel. */
	QColor MakeReadable(const QColor& Color);

	/** Into the screen's colour space. */
	QColor ToQt(const FLinearColor& Color);
}
