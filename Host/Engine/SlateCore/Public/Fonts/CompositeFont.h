// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "CompositeFont.generated.h"

/** How a glyph's outline is fitted to the pixels. */
UENUM()
enum class EFontHinting : uint8
{
	Default,
	Auto,
	AutoLight,
	Monochrome,
	None
};

/** When a face's file is read. Host: always when it is first drawn. */
UENUM()
enum class EFontLoadingPolicy : uint8
{
	LazyLoad,
	Stream,
	Inline
};

/** Where the glyphs of one face come from. */
USTRUCT()
struct SLATECORE_API FFontData
{
	GENERATED_BODY()

	FFontData() = default;

	FFontData(FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy)
		: FontFilename(MoveTemp(InFontFilename))
		, Hinting(InHinting)
		, LoadingPolicy(InLoadingPolicy)
	{
	}

	/** Host: a TrueType file; a relative path starts at the project's content folder. */
	const FString& GetFontFilename() const { return FontFilename; }

private:
	UPROPERTY()
	FString FontFilename;

	UPROPERTY()
	EFontHinting Hinting = EFontHinting::Default;

	UPROPERTY()
	EFontLoadingPolicy LoadingPolicy = EFontLoadingPolicy::LazyLoad;
};

/** One face of a font, such as "Bold". */
USTRUCT()
struct SLATECORE_API FTypefaceEntry
{
	GENERATED_BODY()

	FTypefaceEntry() = default;

	explicit FTypefaceEntry(FName InName)
		: Name(InName)
	{
	}

	UPROPERTY()
	FName Name;

	UPROPERTY()
	FFontData Font;
};

/** The faces of one font. */
USTRUCT()
struct SLATECORE_API FTypeface
{
	GENERATED_BODY()

	UPROPERTY()
	TArray<FTypefaceEntry> Fonts;
};

/** A font put together from faces. */
USTRUCT()
struct SLATECORE_API FCompositeFont
{
	GENERATED_BODY()

	UPROPERTY()
	FTypeface DefaultTypeface;
};
