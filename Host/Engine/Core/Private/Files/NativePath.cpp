// Copyright Velmorant. All Rights Reserved.

#include "Files/NativePath.h"

#include "Files/TextCoding.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <unistd.h>

namespace NativePath
{
	constexpr int32 MaxLinks = 40; // what the kernel itself follows

	std::string WorkingDirectory()
	{
		char Buffer[PATH_MAX];
		return getcwd(Buffer, sizeof(Buffer)) != nullptr ? std::string(Buffer) : std::string("/");
	}

	bool HasWorkingDirectory()
	{
		char Buffer[PATH_MAX];
		return getcwd(Buffer, sizeof(Buffer)) != nullptr;
	}

	std::string MakeFullNative(std::string_view Path)
	{
		const std::string Absolute = Path.starts_with('/') ? std::string(Path) : WorkingDirectory() + "/" + std::string(Path);
		std::string Result;
		Result.reserve(Absolute.size());
		for (size_t Start = 0; Start < Absolute.size();)
		{
			size_t End = Absolute.find('/', Start);
			End = End == std::string::npos ? Absolute.size() : End;
			const std::string_view Part(Absolute.data() + Start, End - Start);
			if (Part == "..")
			{
				const size_t Last = Result.rfind('/');
				Result.resize(Last == std::string::npos ? 0 : Last);
			}
			else if (!Part.empty() && Part != ".")
			{
				Result += '/';
				Result += Part;
			}
			Start = End + 1;
		}
		return Result.empty() ? std::string("/") : Result;
	}

	bool GetRealPath(const std::string& Path, std::string& OutPath)
	{
		char Buffer[PATH_MAX];
		if (realpath(Path.c_str(), Buffer) == nullptr)
		{
			return false;
		}
		OutPath = Buffer;
		return true;
	}

	/** Path with its folders resolved as far as they exist; its last part is taken as it is. */
	std::string ResolveFolder(const std::string& Path)
	{
		std::string Existing = FolderOf(Path);
		std::string Real;
		while (!GetRealPath(Existing, Real) && Existing != "/")
		{
			Existing = FolderOf(Existing);
		}
		if (Real.empty())
		{
			return Path;
		}
		const std::string Rest = Existing == "/" ? Path : Path.substr(Existing.size());
		return Real == "/" ? Rest : Real + Rest;
	}

	std::string FromString(const FString& Path)
	{
		std::string Result;
		if (!TextCoding::EncodeUtf8(std::u16string_view(*Path, static_cast<size_t>(Path.Len())), Result))
		{
			return std::string(); // no file can have this name; half of it might be another file's
		}
		for (char& Character : Result)
		{
			Character = Character == '\\' ? '/' : Character;
		}
		return Result;
	}

	FString ToString(std::string_view Path)
	{
		return TextCoding::ToFString(Path);
	}

	std::string MakeFull(const FString& Path)
	{
		return MakeFullNative(FromString(Path));
	}

	std::string Resolve(const FString& Path)
	{
		std::string Current = MakeFull(Path);
		std::string Real;
		if (GetRealPath(Current, Real))
		{
			return Real;
		}
		for (int32 Link = 0; Link < MaxLinks; ++Link)
		{
			Current = ResolveFolder(Current);
			char Target[PATH_MAX];
			const ssize_t Length = readlink(Current.c_str(), Target, sizeof(Target));
			if (Length <= 0)
			{
				break;
			}
			const std::string_view TargetPath(Target, static_cast<size_t>(Length));
			Current = MakeFullNative(TargetPath.starts_with('/') ? std::string(TargetPath) : FolderOf(Current) + "/" + std::string(TargetPath));
		}
		return Current;
	}

	std::string FolderOf(const std::string& FullPath)
	{
		return FullPath.substr(0, std::max<size_t>(FullPath.rfind('/'), 1));
	}
}
