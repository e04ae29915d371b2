// Copyright Velmorant. All Rights Reserved.

#include "Misc/Paths.h"

#include "Files/NativePath.h"
#include "HostFiles.h"
#include "HostPaths.h"
#include "HostState.h"

namespace Paths
{
	/** For functions that hand out references. */
	struct FKeptPaths
	{
		FString SourceConfigDir;
	};

	THostState<FKeptPaths> KeptPaths;

	bool IsSeparator(TCHAR Character)
	{
		return Character == TEXT('/') || Character == TEXT('\\');
	}

	/** INDEX_NONE when there is none. */
	int32 FindLastSeparator(const FString& Path)
	{
		int32 Index = Path.Len() - 1;
		while (Index >= 0 && !IsSeparator(Path[Index]))
		{
			--Index;
		}
		return Index;
	}

	/** Position of the dot before the extension, or INDEX_NONE; dots of folders do not count. */
	int32 FindExtension(const FString& Path)
	{
		int32 Dot = INDEX_NONE;
		return Path.FindLastChar(TEXT('.'), Dot) && Dot > FindLastSeparator(Path) ? Dot : INDEX_NONE;
	}
}

FString FPaths::EngineDir()
{
	return HostPaths::GetEngineDir();
}

FString FPaths::EngineConfigDir()
{
	return EngineDir() + TEXT("Config/");
}

FString FPaths::ProjectDir()
{
	return HostPaths::GetProjectDir();
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

const FString& FPaths::SourceConfigDir()
{
	FString& Kept = Paths::KeptPaths.Get().SourceConfigDir;
	Kept = ProjectConfigDir();
	return Kept;
}

FString FPaths::GeneratedConfigDir()
{
	return ProjectSavedDir() + TEXT("Config/");
}

FString FPaths::GetProjectFilePath()
{
	return HostPaths::GetProjectFile();
}

void FPaths::Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart)
{
	const FString Whole = InPath; // the outputs may be the input
	PathPart = GetPath(Whole);
	FilenamePart = GetBaseFilename(Whole);
	ExtensionPart = GetExtension(Whole);
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Separator = Paths::FindLastSeparator(InPath);
	return Separator != INDEX_NONE ? InPath.Left(Separator) : FString();
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const int32 Extension = Paths::FindExtension(InPath);
	const FString WithoutExtension = Extension != INDEX_NONE ? InPath.Left(Extension) : InPath;
	return bRemovePath ? GetCleanFilename(WithoutExtension) : WithoutExtension;
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.RightChop(Paths::FindLastSeparator(InPath) + 1);
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Extension = Paths::FindExtension(InPath);
	return Extension != INDEX_NONE ? InPath.RightChop(Extension + (bIncludeDot ? 0 : 1)) : FString();
}

bool FPaths::IsRelative(const FString& InPath)
{
	return InPath.IsEmpty() || !Paths::IsSeparator(InPath[0]);
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	const bool bFolder = !InPath.IsEmpty() && Paths::IsSeparator(InPath[InPath.Len() - 1]);
	FString Result = NativePath::ToString(NativePath::MakeFull(InPath));
	return bFolder && Result.Len() > 1 ? Result + TEXT("/") : Result;
}

bool FPaths::FileExists(const FString& InPath)
{
	return HostFiles::FileExists(InPath);
}

FString FPaths::CombineParts(const FStringView* Parts, int32 Num)
{
	FString Result;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		FStringView Part = Parts[Index];
		if (Part.IsEmpty())
		{
			continue;
		}
		if (!Result.IsEmpty())
		{
			const bool bEnds = Paths::IsSeparator(Result[Result.Len() - 1]);
			const bool bBegins = Paths::IsSeparator(Part[0]);
			Part.RemovePrefix(bEnds && bBegins ? 1 : 0);
			Result += bEnds || bBegins ? TEXT("") : TEXT("/");
		}
		Result += Part;
	}
	return Result;
}
