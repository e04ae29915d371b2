// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/ISlateStyle.h"
#include "Templates/UniquePtr.h"

#include <type_traits>

/** A style set that is filled by code. Owns its brushes; those that a later one of the same key replaced stay alive with it. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName);
	virtual ~FSlateStyleSet() override;

	FSlateStyleSet(const FSlateStyleSet&) = delete;
	FSlateStyleSet& operator=(const FSlateStyleSet&) = delete;

	virtual const FName& GetStyleSetName() const override { return StyleSetName; }

	virtual void SetContentRoot(const FString& InContentRootDir) { ContentRootDir = InContentRootDir; }

	/** The content root joined with the path, then the extension. One '/' is put between unless either side has it. */
	virtual FString RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const ANSICHAR* RelativePath);
	virtual FString RootToContentDir(const TCHAR* RelativePath);
	virtual FString RootToContentDir(const FString& RelativePath);

	/** Takes ownership of a brush made with `new`. */
	template<typename BrushType>
	requires std::is_base_of_v<FSlateBrush, BrushType>
	void Set(const FName PropertyName, BrushType* InBrush)
	{
		SetBrush(PropertyName, InBrush);
	}
	void Set(const FName PropertyName, const float InFloat) { Floats.Add(PropertyName, InFloat); }
	void Set(const FName PropertyName, const FVector2D& InVector) { Vectors.Add(PropertyName, InVector); }
	void Set(const FName PropertyName, const FLinearColor& InColor) { Colors.Add(PropertyName, FSlateColor(InColor)); }
	void Set(const FName PropertyName, const FSlateColor& InColor) { Colors.Add(PropertyName, InColor); }
	void Set(const FName PropertyName, const FMargin& InMargin) { Margins.Add(PropertyName, InMargin); }
	void Set(const FName PropertyName, const FSlateFontInfo& InFont) { Fonts.Add(PropertyName, InFont); }

	//~ Begin ISlateStyle
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const ISlateStyle* RequestingStyle = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const override;
	virtual const FSlateBrush* GetDefaultBrush() const override { return &DefaultBrush; }
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	//~ End ISlateStyle

private:
	friend class FHostStyleAccess;

	void SetBrush(FName PropertyName, FSlateBrush* Brush);

	FName StyleSetName;
	FString ContentRootDir;
	FSlateBrush DefaultBrush; // what an unknown key gives

	/** Every brush ever set, in order of registration. */
	struct FRegisteredBrush
	{
		FName Key;
		TUniquePtr<FSlateBrush> Brush;
	};
	TArray<FRegisteredBrush> RegisteredBrushes;
	TMap<FName, const FSlateBrush*> Brushes; // the latest of each key

	TMap<FName, float> Floats;
	TMap<FName, FVector2D> Vectors;
	TMap<FName, FSlateColor> Colors;
	TMap<FName, FMargin> Margins;
	TMap<FName, FSlateFontInfo> Fonts;
	FLinearColor ColorScratch; // an FLinearColor by reference for colours that are kept as slate colours
};
