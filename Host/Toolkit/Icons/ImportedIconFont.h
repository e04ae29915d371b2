// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "FontIconData.h"
#include "Icons/FontIconImporter.h"

/** A style of an icon font, and the file that draws it. */
struct FImportedFace
{
	FName Style;
	FString SourceFile;
};

/** An icon font that was read and checked, on its way into the project. */
class FImportedIconFont
{
public:
	TArray<TPair<FName, FFontIconRow>> Rows;
	TArray<FImportedFace> Faces;

	/**
	 * Copies the font files, fills the table and the font below AssetFolder and enters them in the settings under FontID.
	 * The assets are left unsaved, like all that is imported; the settings are written.
	 * @return false with OutError; assets and settings are as before then.
	 */
	bool PutIntoProject(FName FontID, const FString& AssetFolder, FFontIconImportError& OutError) const;

private:
	/** Font files that are there already are replaced, one by one. OutNewFiles: those that were not there before, on failure, too. */
	bool CopyFontFiles(const FString& NamesBegin, TArray<FString>& OutNewFiles, FFontIconImportError& OutError) const;
	void FillTable(UDataTable& Table) const;
	void FillFont(UFont& Font, const FString& NamesBegin) const;
};
