// Copyright Velmorant. All Rights Reserved.

#include "Icons/ImportedIconFont.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "VelmorantProUISettings.h"

namespace ImportedIconFont
{
	const TCHAR* const ContentRoot = TEXT("/Game/");

	bool Fail(FFontIconImportError& OutError, const FString& File, const FString& Reason, const TCHAR* Remedy)
	{
		OutError = {File, FString(), Reason, Remedy};
		return false;
	}

	/** A folder below /Game, without slash at its end. */
	bool IsContentFolder(const FString& Folder)
	{
		TArray<FString> Parts;
		Folder.RightChop(FString(ContentRoot).Len()).ParseIntoArray(Parts, TEXT("/"), false);
		const auto IsBad = [](const FString& Part) { return !FName::IsValidXName(Part, INVALID_LONGPACKAGE_CHARACTERS); };
		return Folder.StartsWith(ContentRoot) && !Parts.IsEmpty() && !Parts.ContainsByPredicate(IsBad);
	}

	bool CheckNames(FName FontID, const FString& AssetFolder, FFontIconImportError& OutError)
	{
		if (FontID.IsNone() || !FontID.IsValidXName(INVALID_OBJECTNAME_CHARACTERS) || !FontID.IsValidXName(INVALID_LONGPACKAGE_CHARACTERS))
		{
			return Fail(OutError, FString(), FString::Printf(TEXT("\"%s\" cannot name an icon font: assets are named after it"), *FontID.ToString()), TEXT("use letters and digits, such as \"FontAwesome\""));
		}
		return IsContentFolder(AssetFolder) || Fail(OutError, FString(), FString::Printf(TEXT("\"%s\" is no folder for assets of the project"), *AssetFolder), TEXT("give one below /Game, such as \"/Game/FontIcons\""));
	}

	UObject* FindAsset(const FString& PackageName)
	{
		return StaticLoadObject(UObject::StaticClass(), nullptr, *PackageName, nullptr, LOAD_Quiet);
	}

	/** Whether an asset of that class stands there, or none at all. */
	bool CheckTarget(const FString& PackageName, const UClass* Class, FFontIconImportError& OutError)
	{
		const TCHAR* const Remedy = TEXT("move it away, or import under another name or into another folder");
		const FString EngineFile = FPaths::Combine(FPaths::ProjectContentDir(), PackageName.RightChop(FString(ContentRoot).Len())) + TEXT(".uasset");
		const UObject* Asset = FindAsset(PackageName);
		if (Asset == nullptr)
		{
			return !FPaths::FileExists(EngineFile) || Fail(OutError, EngineFile, TEXT("this asset is in the way, and it cannot be loaded"), Remedy);
		}
		const UDataTable* Table = Cast<UDataTable>(Asset);
		const bool bOtherRows = Table != nullptr && Table->GetRowStruct() != FFontIconRow::StaticStruct();
		return (Asset->IsA(Class) && !bOtherRows) || Fail(OutError, PackageName, bOtherRows ? TEXT("this table is in the way: its rows are no icons") : TEXT("an asset of another kind is in the way"), Remedy);
	}

	template<typename AssetType>
	AssetType& FindOrMake(const FString& PackageName)
	{
		if (AssetType* Existing = Cast<AssetType>(FindAsset(PackageName)))
		{
			return *Existing;
		}
		UPackage* Package = CreatePackage(*PackageName);
		Package->MarkAsFullyLoaded();
		AssetType* Made = NewObject<AssetType>(Package, FName(FPaths::GetCleanFilename(PackageName)), RF_Public | RF_Standalone | RF_Transactional);
		FAssetRegistryModule::AssetCreated(Made);
		return *Made;
	}

	FString GetFontFile(const FString& NamesBegin, FName Style)
	{
		return FString::Printf(TEXT("%s-%s.ttf"), *NamesBegin, *Style.ToString());
	}

	/** The path of an asset that may not be there yet. */
	FSoftObjectPath GetObjectPath(const FString& PackageName)
	{
		return FSoftObjectPath(PackageName + TEXT(".") + FPaths::GetCleanFilename(PackageName));
	}

	/** Enters the font in the settings and writes them. False when they cannot be written; they are as before then. */
	bool EnterInSettings(FName FontID, const FString& TablePackage, const FString& FontPackage, FFontIconImportError& OutError)
	{
		UVelmorantProUISettings* Settings = GetMutableDefault<UVelmorantProUISettings>();
		const TArray<FFontIconSource> Before = Settings->FontIcons;
		FFontIconSource* Entry = Settings->FontIcons.FindByPredicate([FontID](const FFontIconSource& Source) { return Source.FontID == FontID; });
		if (Entry == nullptr)
		{
			Entry = &Settings->FontIcons.AddDefaulted_GetRef();
			Entry->FontID = FontID;
		}
		Entry->IconDataTable = GetObjectPath(TablePackage);
		Entry->Font = GetObjectPath(FontPackage);
		if (Settings->TryUpdateDefaultConfigFile(FString(), false))
		{
			return true;
		}
		Settings->FontIcons = Before;
		return Fail(OutError, Settings->GetDefaultConfigFilename(), TEXT("the settings could not be written"), TEXT("make the file writable"));
	}
}

bool FImportedIconFont::PutIntoProject(FName FontID, const FString& AssetFolder, FFontIconImportError& OutError) const
{
	using namespace ImportedIconFont;
	const FString TablePackage = FString::Printf(TEXT("%s/%sIcons"), *AssetFolder, *FontID.ToString());
	const FString FontPackage = FString::Printf(TEXT("%s/%sFont"), *AssetFolder, *FontID.ToString());
	const FString NamesBegin = FPaths::Combine(AssetFolder, FontID.ToString()).RightChop(FString(ContentRoot).Len());

	// Whatever may go wrong comes first; what changes the icons comes last and cannot fail.
	if (!CheckNames(FontID, AssetFolder, OutError) || !CheckTarget(TablePackage, UDataTable::StaticClass(), OutError) || !CheckTarget(FontPackage, UFont::StaticClass(), OutError))
	{
		return false;
	}
	TArray<FString> NewFiles;
	if (!CopyFontFiles(NamesBegin, NewFiles, OutError) || !EnterInSettings(FontID, TablePackage, FontPackage, OutError))
	{
		for (const FString& File : NewFiles)
		{
			IFileManager::Get().Delete(*File);
		}
		return false;
	}
	FillFont(FindOrMake<UFont>(FontPackage), NamesBegin);
	FillTable(FindOrMake<UDataTable>(TablePackage));
	return true;
}

bool FImportedIconFont::CopyFontFiles(const FString& NamesBegin, TArray<FString>& OutNewFiles, FFontIconImportError& OutError) const
{
	for (const FImportedFace& Face : Faces)
	{
		const FString File = FPaths::Combine(FPaths::ProjectContentDir(), ImportedIconFont::GetFontFile(NamesBegin, Face.Style));
		const bool bNew = !IFileManager::Get().FileExists(*File);
		if (IFileManager::Get().Copy(*File, *Face.SourceFile) != COPY_OK)
		{
			return ImportedIconFont::Fail(OutError, File, FString::Printf(TEXT("%s could not be copied there"), *Face.SourceFile), TEXT("make the folder and the file writable"));
		}
		if (bNew)
		{
			OutNewFiles.Add(File);
		}
	}
	return true;
}

void FImportedIconFont::FillTable(UDataTable& Table) const
{
	Table.EmptyTable();
	Table.RowStruct = FFontIconRow::StaticStruct();
	for (const TPair<FName, FFontIconRow>& Row : Rows)
	{
		Table.AddRow(Row.Key, Row.Value);
	}
	Table.MarkPackageDirty();
}

void FImportedIconFont::FillFont(UFont& Font, const FString& NamesBegin) const
{
	TArray<FTypefaceEntry>& Typefaces = Font.CompositeFont.DefaultTypeface.Fonts;
	Typefaces.Reset();
	for (const FImportedFace& Face : Faces)
	{
		FTypefaceEntry& Typeface = Typefaces.Emplace_GetRef(Face.Style);
		Typeface.Font = FFontData(ImportedIconFont::GetFontFile(NamesBegin, Face.Style), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	}
	Font.MarkPackageDirty();
}
