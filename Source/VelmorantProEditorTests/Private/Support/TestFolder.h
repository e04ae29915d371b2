// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"

/** A folder of files beside the system's other temporary ones, for the length of a test. */
class FVelmorantTestFolder
{
public:
	FVelmorantTestFolder()
		: Folder(FPaths::Combine(FPlatformProcess::UserTempDir(), TEXT("VelmorantTests-") + FGuid::NewGuid().ToString()))
	{
	}

	~FVelmorantTestFolder() { IFileManager::Get().DeleteDirectory(*Folder, false, true); }
	FVelmorantTestFolder(const FVelmorantTestFolder&) = delete;
	FVelmorantTestFolder& operator=(const FVelmorantTestFolder&) = delete;

	FString GetFile(const TCHAR* Name) const { return FPaths::Combine(Folder, Name); }

	/** Writes the bytes of the text, which must be ASCII, as they are. */
	FString Write(const TCHAR* Name, const ANSICHAR* Text) const
	{
		const FString File = GetFile(Name);
		FFileHelper::SaveArrayToFile(TArrayView<const uint8>(reinterpret_cast<const uint8*>(Text), FCStringAnsi::Strlen(Text)), *File);
		return File;
	}

	/** The file's bytes in hexadecimal digits, "FF FE 41 00". */
	FString ReadBytes(const TCHAR* Name) const
	{
		TArray<uint8> Bytes;
		FFileHelper::LoadFileToArray(Bytes, *GetFile(Name));
		TArray<FString> Digits;
		for (const uint8 Byte : Bytes)
		{
			Digits.Add(FString::Printf(TEXT("%02X"), Byte));
		}
		return FString::Join(Digits, TEXT(" "));
	}

private:
	FString Folder;
};
