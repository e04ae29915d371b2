// Copyright Velmorant. All Rights Reserved.

#include "Icons/WebFontFiles.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace WebFontFiles
{
	const TCHAR* const VersionRemedy = TEXT("import version 6.7.2 of the package: later ones have no TrueType files");

	/** Whether Name is "<prefix>-<Middle>-<weight>.ttf", neither prefix nor weight with a hyphen in it. */
	bool HasMiddle(const FString& Name, const FString& Middle)
	{
		TArray<FString> Parts;
		FPaths::GetBaseFilename(Name).ParseIntoArray(Parts, TEXT("-"), false);
		if (Parts.Num() < 3)
		{
			return false;
		}
		Parts.RemoveAt(0);
		Parts.Pop();
		return FString::Join(Parts, TEXT("-")).Equals(Middle);
	}

	/** Whether the file begins like a single font, with TrueType or PostScript outlines. Collections and web formats are none. */
	bool IsTrueType(const TArray<uint8>& Bytes)
	{
		const uint32 Head = Bytes.Num() < 12 ? 0 : static_cast<uint32>(Bytes[0]) << 24 | static_cast<uint32>(Bytes[1]) << 16 | static_cast<uint32>(Bytes[2]) << 8 | Bytes[3];
		return Head == 0x00010000 || Head == 0x74727565 /* true */ || Head == 0x4F54544F /* OTTO */;
	}

	bool Find(const FString& Folder, const FPackageStyle& Style, FString& OutFile, FFontIconImportError& OutError)
	{
		const FString Middle = Style.Family == TEXT("classic") ? Style.Style : Style.Family + TEXT("-") + Style.Style;
		TArray<FString> Names;
		IFileManager::Get().FindFiles(Names, *Folder, TEXT(".ttf"));
		const FString* Name = Names.FindByPredicate([&Middle](const FString& Candidate) { return HasMiddle(Candidate, Middle); });
		if (Name == nullptr)
		{
			OutError = {Folder, FString::Printf(TEXT("style %s"), *Style.GetName().ToString()), FString::Printf(TEXT("there is no font file fa-%s-<weight>.ttf"), *Middle), VersionRemedy};
			return false;
		}
		OutFile = FPaths::Combine(Folder, *Name);
		TArray<uint8> Bytes;
		if (!FFileHelper::LoadFileToArray(Bytes, *OutFile) || !IsTrueType(Bytes))
		{
			OutError = {OutFile, FString(), TEXT("this is no TrueType font"), TEXT("install the package again")};
			return false;
		}
		return true;
	}
}
