// Copyright Velmorant. All Rights Reserved.

#include "VlmImage.h"

#include "Brushes/SlateImageBrush.h"
#include "PictureHeader.h"

namespace VlmImage
{
	/** Pixels of the longer side; 0 for no limit. */
	double GetLimit(EImageRequestSize Size)
	{
		switch (Size)
		{
			case EImageRequestSize::Thumbnail:
				return 64.0;
			case EImageRequestSize::Medium:
				return 256.0;
			default:
				return 0.0;
		}
	}

	FVector2D Fit(const FVector2D& PictureSize, EImageRequestSize Size)
	{
		const double Limit = GetLimit(Size);
		const double Longer = FMath::Max(PictureSize.X, PictureSize.Y);
		return Limit > 0.0 && Longer > Limit ? PictureSize * (Limit / Longer) : PictureSize;
	}

	/** The picture is not decoded here; a name made of its bytes tells one from another. */
	FString MakeName(const TArray<uint8>& Data)
	{
		uint32 Hash = 2166136261u; // FNV-1a
		for (const uint8 Byte : Data)
		{
			Hash = (Hash ^ Byte) * 16777619u;
		}
		return FString::Printf(TEXT("Picture_%08x"), Hash);
	}
}

void UVlmImage::SetImageFromData(const FImageObjectData& Image, EImageRequestSize Size)
{
	const TOptional<FVector2D> PictureSize = PictureHeader::ReadSize(Image.Data);
	if (PictureSize.IsSet())
	{
		PictureFile = Image.Data;
		SetBrush(FSlateImageBrush(VlmImage::MakeName(Image.Data), VlmImage::Fit(PictureSize.GetValue(), Size)));
	}
}

void UVlmImage::ClearImage()
{
	PictureFile.Empty();
	SetBrush(FSlateBrush());
}
