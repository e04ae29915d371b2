// Copyright Velmorant. All Rights Reserved.

#include "Look/Theme.h"

#include "Look/EditorStyle.h"
#include "Look/Fonts.h"

#include <algorithm>
#include <cmath>

namespace Theme
{
	struct FScheme
	{
		QColor Window;
		QColor Base;
		QColor Button;
		QColor Text;
		QColor Disabled;
		QColor Accent;
		QColor OnAccent;
		QColor ToolTip;
		FColors Colors;
	};

	const FScheme& GetScheme(EKind Kind)
	{
		static const FScheme Dark{
			QColor(0x20, 0x22, 0x25), QColor(0x18, 0x1a, 0x1c), QColor(0x35, 0x38, 0x3d), QColor(0xd8, 0xda, 0xdd), QColor(0x6f, 0x74, 0x7a),
			QColor(0x2b, 0x8a, 0x9e), QColor(0xff, 0xff, 0xff), QColor(0x2d, 0x30, 0x34),
			{QColor(0x2a, 0x2c, 0x30), QColor(0x12, 0x13, 0x15), QColor(0x14, 0x15, 0x17), QColor(0x3d, 0x41, 0x46), QColor(0x40, 0x44, 0x4a),
				QColor(0x9b, 0xa0, 0xa6), QColor(0x4c, 0xaf, 0x6e), QColor(0xe0, 0x5a, 0x4e), QColor(0xe0, 0xa4, 0x3c)}};
		static const FScheme Light{
			QColor(0xf2, 0xf3, 0xf4), QColor(0xff, 0xff, 0xff), QColor(0xfa, 0xfb, 0xfc), QColor(0x20, 0x23, 0x27), QColor(0x9a, 0x9f, 0xa5),
			QColor(0x14, 0x7b, 0x91), QColor(0xff, 0xff, 0xff), QColor(0xff, 0xff, 0xff),
			{QColor(0xe4, 0xe6, 0xe9), QColor(0xcd, 0xd1, 0xd5), QColor(0xff, 0xff, 0xff), QColor(0xb9, 0xbe, 0xc4), QColor(0xe7, 0xea, 0xed),
				QColor(0x5c, 0x63, 0x6a), QColor(0x1f, 0x86, 0x46), QColor(0xc0, 0x39, 0x2b), QColor(0xa8, 0x6a, 0x00)}};
		return Kind == EKind::Dark ? Dark : Light;
	}

	static EKind Current = EKind::Dark;
	static const double LeastContrast = 4.5; // of a text and what it stands on, for people to read it with ease

	QPalette MakePalette(const FScheme& Scheme)
	{
		QPalette Palette;
		Palette.setColor(QPalette::Window, Scheme.Window);
		Palette.setColor(QPalette::WindowText, Scheme.Text);
		Palette.setColor(QPalette::Base, Scheme.Base);
		Palette.setColor(QPalette::AlternateBase, Scheme.Colors.Header);
		Palette.setColor(QPalette::Text, Scheme.Text);
		Palette.setColor(QPalette::Button, Scheme.Button);
		Palette.setColor(QPalette::ButtonText, Scheme.Text);
		Palette.setColor(QPalette::BrightText, Scheme.OnAccent);
		Palette.setColor(QPalette::Highlight, Scheme.Accent);
		Palette.setColor(QPalette::HighlightedText, Scheme.OnAccent);
		Palette.setColor(QPalette::Link, Scheme.Accent);
		Palette.setColor(QPalette::ToolTipBase, Scheme.ToolTip);
		Palette.setColor(QPalette::ToolTipText, Scheme.Text);
		Palette.setColor(QPalette::PlaceholderText, Scheme.Disabled);
		Palette.setColor(QPalette::Mid, Scheme.Colors.Line);
		Palette.setColor(QPalette::Dark, Scheme.Colors.Line);
		Palette.setColor(QPalette::Shadow, Scheme.Colors.Line);
		for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
		{
			Palette.setColor(QPalette::Disabled, Role, Scheme.Disabled);
		}
		Palette.setColor(QPalette::Disabled, QPalette::Highlight, Scheme.Button);
		return Palette;
	}

	EKind FindPreferred()
	{
		const QPalette Palette = QApplication::palette();
		return Palette.color(QPalette::Window).lightness() < Palette.color(QPalette::WindowText).lightness() ? EKind::Dark : EKind::Light;
	}

	void Apply(EKind Kind)
	{
		Current = Kind;
		QApplication::setStyle(new FEditorStyle);
		QApplication::setPalette(MakePalette(GetScheme(Kind)));
		QApplication::setFont(Fonts::GetStandard());
	}

	EKind GetKind()
	{
		return Current;
	}

	const FColors& GetColors()
	{
		return GetScheme(Current).Colors;
	}

	/** As seen, from 0 to 1. */
	double GetLuminance(const QColor& Color)
	{
		const FLinearColor Linear(FColor(static_cast<uint8>(Color.red()), static_cast<uint8>(Color.green()), static_cast<uint8>(Color.blue())));
		return 0.2126 * static_cast<double>(Linear.R) + 0.7152 * static_cast<double>(Linear.G) + 0.0722 * static_cast<double>(Linear.B);
	}

	double GetContrast(const QColor& Left, const QColor& Right)
	{
		const double Lighter = std::max(GetLuminance(Left), GetLuminance(Right));
		const double Darker = std::min(GetLuminance(Left), GetLuminance(Right));
		return (Lighter + 0.05) / (Darker + 0.05);
	}

	QColor MakeReadable(const QColor& Color)
	{
		const FScheme& Scheme = GetScheme(Current);
		for (double Share = 0.0; Share < 1.0; Share += 0.1)
		{
			const auto Mix = [Share](int Own, int Text) { return static_cast<int>(std::lround(Own * (1.0 - Share) + Text * Share)); };
			const QColor Mixed(Mix(Color.red(), Scheme.Text.red()), Mix(Color.green(), Scheme.Text.green()), Mix(Color.blue(), Scheme.Text.blue()), Color.alpha());
			if (GetContrast(Mixed, Scheme.Button) >= LeastContrast)
			{
				return Mixed;
			}
		}
		return Scheme.Text;
	}

	QColor ToQt(const FLinearColor& Color)
	{
		const FColor Screen = Color.ToFColor(true);
		return QColor(Screen.R, Screen.G, Screen.B, Screen.A);
	}
}
