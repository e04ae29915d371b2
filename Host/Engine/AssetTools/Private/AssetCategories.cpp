// Copyright Velmorant. All Rights Reserved.

#include "AssetCategories.h"

#define LOCTEXT_NAMESPACE "AssetTools"

EAssetTypeCategories::Type FAssetCategories::Register(FName Key, const FText& DisplayName)
{
	const EAssetTypeCategories::Type Known = Find(Key);
	if (Known != EAssetTypeCategories::Misc)
	{
		return Known;
	}
	uint32 Bit = EAssetTypeCategories::FirstUser;
	if (!Advanced.IsEmpty())
	{
		if (Advanced.Last().Bit == EAssetTypeCategories::LastUser)
		{
			return EAssetTypeCategories::Misc;
		}
		Bit = static_cast<uint32>(Advanced.Last().Bit) << 1;
	}
	Advanced.Add({Key, DisplayName, static_cast<EAssetTypeCategories::Type>(Bit)});
	return Advanced.Last().Bit;
}

EAssetTypeCategories::Type FAssetCategories::Find(FName Key) const
{
	const HostAssetTools::FAdvancedCategory* Category =
		Advanced.FindByPredicate([Key](const HostAssetTools::FAdvancedCategory& Candidate) { return Candidate.Key == Key; });
	return Category != nullptr ? Category->Bit : EAssetTypeCategories::Misc;
}

TArray<FText> FAssetCategories::GetDisplayNames(uint32 Mask) const
{
	const TPair<uint32, FText> EngineCategories[] = {
		{EAssetTypeCategories::Basic, LOCTEXT("Basic", "Basic")},
		{EAssetTypeCategories::Animation, LOCTEXT("Animation", "Animation")},
		{EAssetTypeCategories::Materials, LOCTEXT("Materials", "Materials")},
		{EAssetTypeCategories::Sounds, LOCTEXT("Sounds", "Sounds")},
		{EAssetTypeCategories::Physics, LOCTEXT("Physics", "Physics")},
		{EAssetTypeCategories::UI, LOCTEXT("UserInterface", "User Interface")},
		{EAssetTypeCategories::Misc, LOCTEXT("Miscellaneous", "Miscellaneous")},
		{EAssetTypeCategories::Gameplay, LOCTEXT("Gameplay", "Gameplay")},
		{EAssetTypeCategories::Blueprint, LOCTEXT("Blueprint", "Blueprint")},
		{EAssetTypeCategories::Media, LOCTEXT("Media", "Media")},
		{EAssetTypeCategories::Textures, LOCTEXT("Textures", "Textures")},
		{EAssetTypeCategories::World, LOCTEXT("World", "World")},
		{EAssetTypeCategories::FX, LOCTEXT("FX", "FX")},
	};
	TArray<FText> Names;
	for (const TPair<uint32, FText>& Category : EngineCategories)
	{
		if ((Mask & Category.Key) != 0)
		{
			Names.Add(Category.Value);
		}
	}
	for (const HostAssetTools::FAdvancedCategory& Category : Advanced)
	{
		if ((Mask & Category.Bit) != 0)
		{
			Names.Add(Category.DisplayName);
		}
	}
	return Names;
}

#undef LOCTEXT_NAMESPACE
