// Copyright Velmorant. All Rights Reserved.

#include "FontIconHandler.h"

#include "Styling/AppStyle.h"
#include "VelmorantUISubsystem.h"

FSlateFontInfo FFontIconHandler::GenerateFontSlate(float Size) const
{
	const UVelmorantUISubsystem* Subsystem = UVelmorantUISubsystem::Get();
	const UFont* Font = Subsystem != nullptr ? Subsystem->GetFontIconDataByID(FontIconName).Font.Get() : nullptr;
	if (Font != nullptr)
	{
		return FSlateFontInfo(Font, Size, IconStyle);
	}
	FSlateFontInfo Info = FAppStyle::GetFontStyle("NormalFont");
	Info.Size = Size;
	return Info;
}
