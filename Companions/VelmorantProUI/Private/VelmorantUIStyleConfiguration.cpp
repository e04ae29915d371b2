// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUIStyleConfiguration.h"

const FVelmorantPaletteColor* UVelmorantUIStyleConfiguration::FindColor(FName ID) const
{
	for (const TArray<FVelmorantPaletteColor>* Family : {&SimpleColors, &StyleColors})
	{
		if (const FVelmorantPaletteColor* Found = Family->FindByPredicate([ID](const FVelmorantPaletteColor& Entry) { return Entry.ID == ID; }))
		{
			return Found;
		}
	}
	return nullptr;
}

const FVelmorantFontStyle* UVelmorantUIStyleConfiguration::FindFontStyle(FName ID) const
{
	return FontStyles.FindByPredicate([ID](const FVelmorantFontStyle& Entry) { return Entry.ID == ID; });
}
