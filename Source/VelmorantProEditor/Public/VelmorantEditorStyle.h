// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class FSlateStyleSet;
class ISlateStyle;

/** The logos, banner, class icons and class thumbnails of the toolkit's editor tools. Lives from module start-up to shut-down. */
class VELMORANTPROEDITOR_API FVelmorantEditorStyle
{
public:
	/** Makes and registers the style set; does nothing when that has been done. */
	static void Initialize();

	/** Unregisters and releases the style set. Nobody else may hold it then. */
	static void Shutdown();

	/** Has the renderer read all textures anew; does nothing without a Slate application. */
	static void ReloadTextures();

	/** Valid between Initialize() and Shutdown() only. */
	static const ISlateStyle& Get();

	static FName GetStyleSetName();

private:
	static TSharedRef<FSlateStyleSet> Create();

	static TSharedPtr<FSlateStyleSet> VelmorantEditorStyleInstance;
};
