// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/SlateBrush.h"

/** An image of a given size, tinted, by file path or resource name. */
struct SLATECORE_API FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FName& InImageName, const UE::Slate::FDeprecateVector2DParameter& InImageSize, const FLinearColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
	{
		ResourceName = InImageName;
		ImageSize = InImageSize;
		TintColor = InTint;
		Tiling = InTiling;
		ImageType = InImageType;
	}

	FSlateImageBrush(const FString& InImageName, const UE::Slate::FDeprecateVector2DParameter& InImageSize, const FLinearColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(*InImageName), InImageSize, InTint, InTiling, InImageType)
	{
	}

	FSlateImageBrush(const ANSICHAR* InImageName, const UE::Slate::FDeprecateVector2DParameter& InImageSize, const FLinearColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(InImageName), InImageSize, InTint, InTiling, InImageType)
	{
	}

	FSlateImageBrush(const TCHAR* InImageName, const UE::Slate::FDeprecateVector2DParameter& InImageSize, const FLinearColor& InTint = FLinearColor::White,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(InImageName), InImageSize, InTint, InTiling, InImageType)
	{
	}

	FSlateImageBrush(const FString& InImageName, const UE::Slate::FDeprecateVector2DParameter& InImageSize, const FSlateColor& InTint,
		ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateImageBrush(FName(*InImageName), InImageSize, FLinearColor::White, InTiling, InImageType)
	{
		TintColor = InTint;
	}
};
