// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"
#include "Types/SlateVector2.h"

namespace ESlateBrushDrawType
{
	enum Type : int
	{
		NoDrawType,
		Box,
		Border,
		Image,
		RoundedBox,
	};
}

namespace ESlateBrushTileType
{
	enum Type : int
	{
		NoTile,
		Horizontal,
		Vertical,
		Both,
	};
}

namespace ESlateBrushImageType
{
	enum Type : int
	{
		NoImage,
		FullColor,
		Linear,
		Vector,
	};
}

/** How a rectangle is filled: an image by name, its size in Slate units, and a tint. The image is not looked at before it is drawn. */
struct SLATECORE_API FSlateBrush
{
	FSlateBrush() = default;
	virtual ~FSlateBrush() = default;

	/** File path of the image, or the name under which a resource is known. */
	const FName GetResourceName() const { return ResourceName; }
	void SetResourceName(const FName InName) { ResourceName = InName; }

	UE::Slate::FDeprecateVector2DResult GetImageSize() const { return ImageSize; }

	FDeprecateSlateVector2D ImageSize{32.0f, 32.0f};
	FMargin Margin;
	FSlateColor TintColor = FLinearColor::White;
	ESlateBrushDrawType::Type DrawAs = ESlateBrushDrawType::Image;
	ESlateBrushTileType::Type Tiling = ESlateBrushTileType::NoTile;
	ESlateBrushImageType::Type ImageType = ESlateBrushImageType::NoImage;

protected:
	FName ResourceName;
};

/** Draws nothing. */
struct SLATECORE_API FSlateNoResource : public FSlateBrush
{
	FSlateNoResource() { DrawAs = ESlateBrushDrawType::NoDrawType; }
};
