// Copyright Velmorant. All Rights Reserved.

#include "Icons/FontIconImporter.h"

#include "Icons/IconFamiliesReader.h"
#include "Icons/ImportedIconFont.h"
#include "Icons/WebFontFiles.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogVelmorantFontIcons, Log, All);

namespace FontIconImporter
{
	const TCHAR* const FolderRemedy = TEXT("give the folder of the npm package @fortawesome/fontawesome-free, which has \"metadata\" and \"webfonts\" in it");

	bool ReadIcons(const FString& File, TArray<FPackageIcon>& OutIcons, FFontIconImportError& OutError)
	{
		OutError.File = File;
		if (!FPaths::FileExists(File))
		{
			OutError.Reason = TEXT("there is no such file");
			OutError.Remedy = FolderRemedy;
			return false;
		}
		TArray<uint8> Bytes;
		if (!FFileHelper::LoadFileToArray(Bytes, *File))
		{
			OutError.Reason = TEXT("the file cannot be read");
			OutError.Remedy = TEXT("check its permissions");
			return false;
		}
		return FIconFamiliesReader::Read(std::string_view(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num())), OutIcons, OutError);
	}

	/** The styles of the icons in the order in which they first occur, each with its font file. */
	bool FindFaces(const FString& Folder, const TArray<FPackageIcon>& Icons, TArray<FImportedFace>& OutFaces, FFontIconImportError& OutError)
	{
		TArray<FPackageStyle> Styles;
		for (const FPackageIcon& Icon : Icons)
		{
			for (const FPackageStyle& Style : Icon.Styles)
			{
				Styles.AddUnique(Style);
			}
		}
		for (const FPackageStyle& Style : Styles)
		{
			FImportedFace& Face = OutFaces.AddDefaulted_GetRef();
			Face.Style = Style.GetName();
			if (!WebFontFiles::Find(Folder, Style, Face.SourceFile, OutError))
			{
				return false;
			}
		}
		return true;
	}

	TArray<TPair<FName, FFontIconRow>> MakeRows(TArray<FPackageIcon>& Icons)
	{
		TArray<TPair<FName, FFontIconRow>> Rows;
		Rows.Reserve(Icons.Num());
		for (FPackageIcon& Icon : Icons)
		{
			FFontIconRow Row;
			Row.Label = MoveTemp(Icon.Label);
			Row.Character = MoveTemp(Icon.Character);
			Row.SearchTags = MoveTemp(Icon.SearchTags);
			for (const FPackageStyle& Style : Icon.Styles)
			{
				Row.IconStyles.Add(Style.GetName());
			}
			Rows.Emplace(FName(Icon.Name), MoveTemp(Row));
		}
		return Rows;
	}

	FFontIconImportResult Fail(FFontIconImportError&& Error)
	{
		UE_LOG(LogVelmorantFontIcons, Error, TEXT("No icons were imported: %s"), *Error.ToString());
		FFontIconImportResult Result;
		Result.Error = MoveTemp(Error);
		return Result;
	}

	FFontIconImportResult Describe(FName FontID, const FImportedIconFont& Font)
	{
		FFontIconImportResult Result;
		Result.FontID = FontID;
		for (const FImportedFace& Face : Font.Faces)
		{
			Result.Styles.Add(Face.Style);
		}
		for (const TPair<FName, FFontIconRow>& Row : Font.Rows)
		{
			Result.NumIconStyles += Row.Value.IconStyles.Num();
			Result.NumSearchTags += Row.Value.SearchTags.Num();
		}
		Result.NumIcons = Font.Rows.Num();
		return Result;
	}
}

FString FFontIconImportError::ToString() const
{
	TArray<FString> Parts;
	for (const FString& Part : {File, Place, Reason})
	{
		if (!Part.IsEmpty())
		{
			Parts.Add(Part);
		}
	}
	return FString::Join(Parts, TEXT(": ")) + (Remedy.IsEmpty() ? FString() : TEXT("; ") + Remedy);
}

FFontIconImportResult FFontIconImporter::Import(const FString& SourceFolder, FName FontID, const FString& AssetFolder)
{
	using namespace FontIconImporter;
	const FString Folder = FPaths::ConvertRelativePathToFull(SourceFolder);
	FFontIconImportError Error;
	TArray<FPackageIcon> Icons;
	if (!ReadIcons(FPaths::Combine(Folder, TEXT("metadata/icon-families.json")), Icons, Error))
	{
		return Fail(MoveTemp(Error));
	}
	FImportedIconFont Font;
	if (!FindFaces(FPaths::Combine(Folder, TEXT("webfonts")), Icons, Font.Faces, Error))
	{
		return Fail(MoveTemp(Error));
	}
	Font.Rows = MakeRows(Icons);
	if (!Font.PutIntoProject(FontID, AssetFolder, Error))
	{
		return Fail(MoveTemp(Error));
	}
	return Describe(FontID, Font);
}
