// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Icons/FontIconImporter.h"
#include "Icons/PackageIcon.h"

/** The TrueType files of the package. */
namespace WebFontFiles
{
	/**
	 * The file of a style: "<prefix>-<style>-<weight>.ttf", with the family before the style unless it is the classic one.
	 * @param Folder the package's folder of fonts
	 * @return false with OutError when there is none, or when it is no TrueType file
	 */
	bool Find(const FString& Folder, const FPackageStyle& Style, FString& OutFile, FFontIconImportError& OutError);
}
