// Copyright Velmorant. All Rights Reserved.

#include "VlmText.h"

#include "VelmorantUISubsystem.h"

void UVlmText::SetFontStyle(FName InFontStyle)
{
	FontStyle = InFontStyle;
	ApplyStyle();
}

void UVlmText::SetColorHandler(const FVelmorantColorHandler& InColorHandler)
{
	ColorHandler = InColorHandler;
	ApplyStyle();
}

TSharedRef<SWidget> UVlmText::RebuildWidget()
{
	ApplyStyle();
	return Super::RebuildWidget();
}

void UVlmText::ApplyStyle()
{
	const UVelmorantUISubsystem* Subsystem = UVelmorantUISubsystem::Get();
	if (!Subsystem)
	{
		return;
	}
	if (!FontStyle.IsNone())
	{
		SetFont(Subsystem->GetFontStyleByID(FontStyle));
	}
	const bool bColored = !ColorHandler.ColorID.IsNone() || ColorHandler.ColorMode == EVelmorantColorMode::Custom;
	SetColorAndOpacity(bColored ? FSlateColor(Subsystem->ResolveColor(ColorHandler)) : FSlateColor(FLinearColor::White));
}
