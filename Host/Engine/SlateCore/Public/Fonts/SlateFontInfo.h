// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"

#include "SlateFontInfo.generated.h"

/** A font for a text: a font object, a face in it and a size. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateFontInfo
{
	GENERATED_BODY()

	FSlateFontInfo() = default;
	FSlateFontInfo(const UObject* InFontObject, const float InSize, const FName& InTypefaceFontName = NAME_None)
		: FontObject(const_cast<UObject*>(InFontObject))
		, TypefaceFontName(InTypefaceFontName)
		, Size(InSize)
	{
	}

	/** Whether there is a font object to draw with. */
	bool HasValidFont() const { return FontObject.Get() != nullptr; }

	bool operator==(const FSlateFontInfo& Other) const
	{
		return FontObject == Other.FontObject && TypefaceFontName == Other.TypefaceFontName && Size == Other.Size;
	}

	/** Null: the style's own font. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	TObjectPtr<UObject> FontObject;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	FName TypefaceFontName;

	/** In points. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SlateStyleRules")
	float Size = 24.0f;
};
