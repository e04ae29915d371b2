// Copyright Velmorant. All Rights Reserved.

#include "HostWidget.h"
#include "Widgets/Images/SThrobber.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

namespace SlateText
{
	/** A face that is not the plain one, with its size; a colour that is not the plain white. */
	EHorizontalAlignment AlignmentOf(ETextJustify::Type Justification)
	{
		switch (Justification)
		{
			case ETextJustify::Center: return HAlign_Center;
			case ETextJustify::Right: return HAlign_Right;
			default: return HAlign_Left;
		}
	}

	TOptional<float> SizeIf(const FOptionalSize& Size)
	{
		return Size.IsSet() ? TOptional<float>(Size.Get()) : TOptional<float>();
	}

	void NoteLook(const FSlateFontInfo& Font, const FSlateColor& Color, TArray<FString>& OutNotes)
	{
		if (!Font.TypefaceFontName.IsNone() && Font.TypefaceFontName != FName(TEXT("Regular")))
		{
			OutNotes.Add(Font.TypefaceFontName.ToString() + TEXT(" ") + FString::SanitizeFloat(Font.Size, 0));
		}
		if (Color.IsColorSpecified() && Color.GetSpecifiedColor() != FLinearColor::White)
		{
			OutNotes.Add(TEXT("#") + Color.GetSpecifiedColor().ToFColor(true).ToHex().Left(6));
		}
	}
}

void STextBlock::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	AutoWrapText = InArgs._AutoWrapText;
	Justification = InArgs._Justification;
	MinDesiredWidth = InArgs._MinDesiredWidth;
}

const FText& STextBlock::GetText() const
{
	LastText = Text.Get(FText::GetEmpty());
	return LastText;
}

void STextBlock::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("text");
	OutDescription.Value = GetText().ToString();
	SlateText::NoteLook(GetFont(), GetColorAndOpacity(), OutDescription.Notes);
}

void STextBlock::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.Font = GetFont();
	OutLook.Color = GetColorAndOpacity();
	OutLook.bWrapsText = AutoWrapText.Get(false);
	OutLook.TextAlignment = SlateText::AlignmentOf(Justification.Get(ETextJustify::Left));
	if (MinDesiredWidth.IsSet())
	{
		OutLook.MinWidth = MinDesiredWidth.Get();
	}
}

void SBox::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.Width = SlateText::SizeIf(WidthOverride.Get());
	OutLook.Height = SlateText::SizeIf(HeightOverride.Get());
	OutLook.MinWidth = SlateText::SizeIf(MinDesiredWidth.Get());
	OutLook.MinHeight = SlateText::SizeIf(MinDesiredHeight.Get());
	OutLook.MaxWidth = SlateText::SizeIf(MaxDesiredWidth.Get());
	OutLook.MaxHeight = SlateText::SizeIf(MaxDesiredHeight.Get());
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	MaxDesiredHeight = InArgs._MaxDesiredHeight;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	SCompoundWidget::DescribeToHost(OutDescription);
	OutDescription.Role = TEXT("box");
	if (WidthOverride.Get().IsSet())
	{
		OutDescription.Notes.Add(FString::SanitizeFloat(WidthOverride.Get().Get(), 0) + TEXT(" wide"));
	}
	if (HeightOverride.Get().IsSet())
	{
		OutDescription.Notes.Add(FString::SanitizeFloat(HeightOverride.Get().Get(), 0) + TEXT(" high"));
	}
}

void SBorder::Construct(const FArguments& InArgs)
{
	BorderImage = InArgs._BorderImage;
	BorderBackgroundColor = InArgs._BorderBackgroundColor;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBorder::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	SCompoundWidget::DescribeToHost(OutDescription);
	OutDescription.Role = TEXT("border");
	if (ChildSlot.GetWidget() == SNullWidget::NullWidget)
	{
		// An empty border shows nothing but its colour: a swatch.
		OutDescription.Role = TEXT("swatch");
		OutDescription.Value = GetBorderBackgroundColor().GetSpecifiedColor().ToString();
		OutDescription.bTransparent = false;
	}
}

void SBorder::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	if (const FSlateBrush* Image = GetBorderImage())
	{
		OutLook.Brush = *Image;
	}
	OutLook.Color = GetBorderBackgroundColor();
}

void SThrobber::Construct(const FArguments&)
{
}

void SThrobber::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("throbber");
	OutDescription.bBusy = true;
}
