// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "FontIconData.h"
#include "Fonts/SlateFontInfo.h"
#include "Subsystems/EngineSubsystem.h"
#include "UObject/SoftObjectPtr.h"
#include "VelmorantUISubsystem.generated.h"

class UVelmorantUIStyleConfiguration;
struct FVelmorantColorHandler;

/**
 * Answers what colours and icons the project's user interface can use.
 *
 * Everything comes from UVelmorantProUISettings at the time of the call, so a change of the settings or of an asset shows at once.
 * Assets are loaded when they are first asked for; one that cannot be loaded counts as not set, and the log says so once.
 */
UCLASS()
class VELMORANTPROUI_API UVelmorantUISubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	/** Null before the engine has made its subsystems. */
	static UVelmorantUISubsystem* Get();

	/** The IDs of all icon fonts, in the order of the settings. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	TArray<FName> GetAllFontIconOptions() const;

	/** The styles that icons of the font are drawn in: those of its typefaces first, in their order. Empty for an unknown font. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	TArray<FName> GetAllFontIconsStylesNames(FName FontID) const;

	/** The names of the font's icons, in the order of its table. Empty for an unknown font. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	TArray<FName> GetAllIconsNames(FName FontID) const;

	/** The font's table and font object; data without a table for an unknown font. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	FFontIconData GetFontIconDataByID(FName FontID) const;

	/** The IDs of the palette's simple colours, in its order. Empty without a palette. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	TArray<FName> GetAllColorSimpleOptions() const;

	/** The IDs of the palette's style colours, in its order. Empty without a palette. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	TArray<FName> GetAllColorStyleOptions() const;

	/** A colour of either family, or its contrast variant. An ID that the palette does not have gives opaque magenta. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	FLinearColor GetVelmorantColorByID(FName ID, bool bUseContrast) const;

	/** The colour that the handler stands for, with its opacity. */
	FLinearColor ResolveColor(const FVelmorantColorHandler& Handler) const;

	/** A font style of the project's style configuration. An ID that it does not have gives the app's normal font, and the log says so once. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|UI")
	FSlateFontInfo GetFontStyleByID(FName ID) const;

	/** The palette that the project uses; null when none is set or it cannot be loaded. */
	UVelmorantUIStyleConfiguration* GetStyleConfiguration() const;

private:
	/** Null for a reference that is not set, and, with a warning in the log, for one that cannot be followed. */
	template<typename AssetType>
	AssetType* Load(const TSoftObjectPtr<AssetType>& Asset) const;

	/** Says each thing once: the questions come with every paint. */
	void Complain(const FString& Problem) const;

	mutable TSet<FString> Complaints;
};
