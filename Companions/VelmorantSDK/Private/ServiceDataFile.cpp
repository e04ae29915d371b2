// Copyright Velmorant. All Rights Reserved.

#include "ServiceDataFile.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "ServiceDataReader.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

const FServiceData* FServiceDataFile::Read(const FString& Path, FString& OutError)
{
	return ReadData(Path, OutError) && ReadPictures(OutError) ? &Data.GetValue() : nullptr;
}

bool FServiceDataFile::ReadData(const FString& Path, FString& OutError)
{
	TArray<uint8> NewBytes;
	if (!FFileHelper::LoadFileToArray(NewBytes, *Path))
	{
		OutError = FString::Printf(TEXT("%s: the file cannot be read"), *Path);
		return false;
	}
	if (Data.IsSet() && Path == LastPath && NewBytes == Bytes)
	{
		return true;
	}

	FString Problem;
	LastPath = Path;
	Bytes = MoveTemp(NewBytes);
	Data = ServiceDataReader::Read(std::string_view(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num())), FPaths::GetPath(Path), Problem);
	if (!Data.IsSet())
	{
		OutError = FString::Printf(TEXT("%s: %s"), *Path, *Problem);
	}
	return Data.IsSet();
}

namespace ServiceDataFile
{
	std::filesystem::path Resolve(const FString& Path)
	{
		std::error_code Error;
		return std::filesystem::weakly_canonical(std::filesystem::path(std::string(TCHAR_TO_UTF8(*Path))), Error);
	}

	/** Data files come from others, and are not to name any file of this machine. */
	bool IsBeside(const FString& DataFile, const FString& File)
	{
		const std::filesystem::path Folder = Resolve(FPaths::GetPath(DataFile));
		const std::filesystem::path Resolved = Resolve(File);
		return std::mismatch(Folder.begin(), Folder.end(), Resolved.begin(), Resolved.end()).first == Folder.end();
	}
}

bool FServiceDataFile::ReadPictures(FString& OutError)
{
	TArray<FServiceUser>& Users = Data.GetValue().Users;
	for (int32 Index = 0; Index < Users.Num(); ++Index)
	{
		FServiceUser& User = Users[Index];
		if (!User.PictureFile.IsEmpty() && !ServiceDataFile::IsBeside(LastPath, User.PictureFile))
		{
			OutError = FString::Printf(TEXT("%s: /users/%d/picture: the file %s is not in the folder of this data file, nor below it"), *LastPath, Index, *User.PictureFile);
			return false;
		}
		if (!User.PictureFile.IsEmpty() && !FFileHelper::LoadFileToArray(User.LoginInfo.Picture.Data, *User.PictureFile))
		{
			OutError = FString::Printf(TEXT("%s: /users/%d/picture: the file %s cannot be read"), *LastPath, Index, *User.PictureFile);
			return false;
		}
	}
	return true;
}
