// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Why icons could not be imported: which file, where in it, what is wrong and what to do about it. */
struct FFontIconImportError
{
	FString File;
	FString Place; // the icon and field, or line and byte; empty when the whole file is meant
	FString Reason;
	FString Remedy;

	/** "File: Place: Reason; Remedy" in one line. */
	FString ToString() const;
};

/** What an import brought in, or why it brought in nothing. */
struct FFontIconImportResult
{
	TOptional<FFontIconImportError> Error;

	FName FontID;
	TArray<FName> Styles; // in the order of the font's typefaces
	int32 NumIcons = 0;
	int32 NumIconStyles = 0; // pairs of icon and style
	int32 NumSearchTags = 0;

	bool Succeeded() const { return !Error.IsSet(); }
};

/**
 * Makes an icon font of the project out of a folder of the npm package "@fortawesome/fontawesome-free".
 *
 * Reads metadata/icon-families.json and webfonts/<prefix>-<style>-<weight>.ttf. Makes, below AssetFolder, the icon table
 * "<FontID>Icons" and the font "<FontID>Font", with copies of the font files beside them, and enters both in the project's
 * settings under FontID. Every style of the package's "classic" family is a style of the font ("Solid", "Regular",
 * "Brands"); those of other families bear the family's name before their own ("SharpSolid").
 *
 * Icons keep the order of the file. An import again under the same FontID replaces the icons. All is read and checked before
 * anything is changed: on any problem, which also goes to the log, tables, fonts and settings stay as they were. The assets
 * are left unsaved, like all that is imported; the settings are written.
 */
class FFontIconImporter
{
public:
	/**
	 * @param SourceFolder the package's folder; a relative path starts at the current folder.
	 * @param FontID a name that assets can bear as well.
	 * @param AssetFolder where the assets go, "/Game/FontIcons" for one.
	 */
	static FFontIconImportResult Import(const FString& SourceFolder, FName FontID, const FString& AssetFolder);
};
