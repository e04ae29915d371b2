// Copyright Velmorant. All Rights Reserved.

#include "Styling/SlateStyle.h"

namespace SlateStyle
{
	/** "Key" and ".Specifier" make one key. */
	FName Join(const FName PropertyName, const ANSICHAR* Specifier)
	{
		return Specifier ? FName(*(PropertyName.ToString() + FString(Specifier))) : PropertyName;
	}

	template<typename ValueType>
	const ValueType* Find(const TMap<FName, ValueType>& Values, const FName PropertyName, const ANSICHAR* Specifier)
	{
		return Values.Find(Join(PropertyName, Specifier));
	}

	/** Slate's join: one '/' unless the root ends in a separator or the path begins with one; an empty root adds none. */
	FString JoinPath(const FString& Root, const FString& RelativePath)
	{
		if (Root.IsEmpty() || Root.EndsWith(TEXT("/")) || RelativePath.StartsWith(TEXT("/")))
		{
			return Root + RelativePath;
		}
		return Root + TEXT("/") + RelativePath;
	}
}

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
{
	DefaultBrush.SetResourceName(FName(TEXT("Default")));
}

FSlateStyleSet::~FSlateStyleSet() = default;

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return SlateStyle::JoinPath(ContentRootDir, FString(RelativePath)) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension)
{
	return SlateStyle::JoinPath(ContentRootDir, FString(RelativePath)) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension)
{
	return SlateStyle::JoinPath(ContentRootDir, RelativePath) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath)
{
	return SlateStyle::JoinPath(ContentRootDir, FString(RelativePath));
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath)
{
	return SlateStyle::JoinPath(ContentRootDir, FString(RelativePath));
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath)
{
	return SlateStyle::JoinPath(ContentRootDir, RelativePath);
}

void FSlateStyleSet::SetBrush(FName PropertyName, FSlateBrush* Brush)
{
	FRegisteredBrush& Registered = RegisteredBrushes.AddDefaulted_GetRef();
	Registered.Key = PropertyName;
	Registered.Brush = TUniquePtr<FSlateBrush>(Brush);
	Brushes.Add(PropertyName, Brush);
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier, const ISlateStyle*) const
{
	return GetOptionalBrush(PropertyName, Specifier, &DefaultBrush);
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	const FSlateBrush* const* Brush = SlateStyle::Find(Brushes, PropertyName, Specifier);
	return Brush ? *Brush : InDefaultBrush;
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FSlateFontInfo* Value = SlateStyle::Find(Fonts, PropertyName, Specifier);
	return Value ? *Value : FStyleDefaults::GetFontInfo();
}
