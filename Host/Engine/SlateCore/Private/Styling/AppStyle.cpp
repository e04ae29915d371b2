// Copyright Velmorant. All Rights Reserved.

#include "Styling/AppStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "HostState.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace AppStyle
{
	/** A built-in style set, registered for as long as the editor runs. */
	struct FBuiltInStyle
	{
		explicit FBuiltInStyle(const TCHAR* Name)
			: Style(FName(Name))
		{
			FSlateStyleRegistry::RegisterSlateStyle(Style);
		}
		~FBuiltInStyle() { FSlateStyleRegistry::UnRegisterSlateStyle(Style); }

		FSlateStyleSet Style;
	};

	struct FAppStyleSet : public FBuiltInStyle
	{
		FAppStyleSet()
			: FBuiltInStyle(TEXT("EditorStyle"))
		{
			static const TCHAR* const Icons[] = {
				TEXT("Icons.Settings"), TEXT("Icons.Help"), TEXT("Icons.Documentation"), TEXT("Icons.MakeStaticMesh"), TEXT("Icons.Refresh"),
				TEXT("Icons.Info"), TEXT("Icons.Warning"), TEXT("Icons.Error"), TEXT("MainFrame.OpenProject"), TEXT("ShowFlagsMenu.SubMenu.Developer"),
				TEXT("WhiteBrush"), TEXT("ColorPicker.RoundedSolidBackground")};
			for (const TCHAR* Icon : Icons)
			{
				Style.Set(FName(Icon), new FSlateImageBrush(Icon, FVector2D(16.0, 16.0)));
			}
			Style.Set(FName(TEXT("PropertyWindow.NormalFont")), FSlateFontInfo(nullptr, 8.0f, FName(TEXT("Regular"))));
			Style.Set(FName(TEXT("PropertyWindow.BoldFont")), FSlateFontInfo(nullptr, 8.0f, FName(TEXT("Bold"))));
			Style.Set(FName(TEXT("NormalFont")), FSlateFontInfo(nullptr, 9.0f, FName(TEXT("Regular"))));
		}
	};

	struct FCoreStyleSet : public FBuiltInStyle
	{
		FCoreStyleSet()
			: FBuiltInStyle(TEXT("CoreStyle"))
		{
			for (const TCHAR* Brush : {TEXT("Border"), TEXT("WhiteBrush"), TEXT("GenericWhiteBox")})
			{
				Style.Set(FName(Brush), new FSlateImageBrush(Brush, FVector2D(16.0, 16.0)));
			}
			Style.Set(FName(TEXT("NormalFont")), FSlateFontInfo(nullptr, 9.0f, FName(TEXT("Regular"))));
		}
	};
}

const FSlateBrush* FStyleDefaults::GetNoBrush()
{
	static const FSlateNoResource NoBrush;
	return &NoBrush;
}

const ISlateStyle& FCoreStyle::Get()
{
	static THostState<AppStyle::FCoreStyleSet> State;
	return State.Get().Style;
}

const ISlateStyle& FAppStyle::Get()
{
	static THostState<AppStyle::FAppStyleSet> State;
	return State.Get().Style;
}

const FName FAppStyle::GetAppStyleSetName()
{
	return Get().GetStyleSetName();
}

const FSlateBrush* FAppStyle::GetBrush(FName PropertyName, const ANSICHAR* Specifier)
{
	return Get().GetBrush(PropertyName, Specifier);
}

FSlateFontInfo FAppStyle::GetFontStyle(FName PropertyName, const ANSICHAR* Specifier)
{
	return Get().GetFontStyle(PropertyName, Specifier);
}
