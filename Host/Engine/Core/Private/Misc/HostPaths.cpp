// Copyright Velmorant. All Rights Reserved.

#include "HostPaths.h"

#include "Files/NativePath.h"
#include "HostState.h"
#include "Misc/Paths.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <string>
#include <unistd.h>

namespace HostPaths
{
	struct FState
	{
		FString ProjectFile;
		FString ProjectDir;
		FString EngineDir;
		FString UserSettingsDir;
		FString UserStateDir;
		TArray<FString> PluginDirs;
	};

	THostState<FState> State;

	FString MakeFolder(const FString& Directory)
	{
		const FString Full = FPaths::ConvertRelativePathToFull(Directory);
		return Full.EndsWith(TEXT("/")) ? Full : Full + TEXT("/");
	}

	std::string GetHome()
	{
		const char* Home = std::getenv("HOME");
		if (Home != nullptr && *Home != '\0')
		{
			return Home;
		}
		const passwd* User = getpwuid(getuid()); // services and containers come without HOME
		return User != nullptr && User->pw_dir != nullptr ? std::string(User->pw_dir) : std::string("/");
	}

	/** The program's own folder below the one that a variable names, or else below a folder of the user's home. */
	FString MakeUserDir(const char* Variable, const char* FolderInHome)
	{
		const char* Configured = std::getenv(Variable);
		const bool bUsable = Configured != nullptr && *Configured == '/'; // relative ones are to be ignored
		return MakeFolder(NativePath::ToString((bUsable ? std::string(Configured) : GetHome() + FolderInHome) + "/velmorant"));
	}

	FString FindProgramData(const TCHAR* Path)
	{
		std::error_code Ignored;
		const std::filesystem::path Program = std::filesystem::read_symlink("/proc/self/exe", Ignored);
		const std::filesystem::path Data = Program.parent_path().parent_path() / "share/velmorant" / NativePath::FromString(Path);
		return NativePath::ToString(NativePath::Resolve(NativePath::ToString(Data.string())));
	}

	FString FindMissingProgramData()
	{
		for (const TCHAR* Needed : {TEXT("Engine/Config/BaseEngine.ini"), TEXT("Plugins")})
		{
			const FString Full = FindProgramData(Needed);
			std::error_code Ignored;
			if (!std::filesystem::exists(NativePath::FromString(Full), Ignored))
			{
				return Full;
			}
		}
		return FString();
	}

	void SetProjectFile(const FString& File)
	{
		State.Get().ProjectFile = FPaths::ConvertRelativePathToFull(File);
		SetProjectDir(FPaths::GetPath(State.Get().ProjectFile));
	}

	void SetProjectDir(const FString& Directory)
	{
		State.Get().ProjectDir = MakeFolder(Directory);
	}

	const FString& GetProjectFile()
	{
		return State.Get().ProjectFile;
	}

	const FString& GetProjectDir()
	{
		return State.Get().ProjectDir.IsEmpty() ? GetEngineDir() : State.Get().ProjectDir;
	}

	void SetEngineDir(const FString& Directory)
	{
		State.Get().EngineDir = MakeFolder(Directory);
	}

	const FString& GetEngineDir()
	{
		FString& EngineDir = State.Get().EngineDir;
		if (EngineDir.IsEmpty())
		{
			EngineDir = MakeFolder(FindProgramData(TEXT("Engine")));
		}
		return EngineDir;
	}

	void SetUserSettingsDir(const FString& Directory)
	{
		State.Get().UserSettingsDir = MakeFolder(Directory);
	}

	const FString& GetUserSettingsDir()
	{
		FString& Directory = State.Get().UserSettingsDir;
		if (Directory.IsEmpty())
		{
			Directory = MakeUserDir("XDG_CONFIG_HOME", "/.config");
		}
		return Directory;
	}

	const FString& GetUserStateDir()
	{
		FString& Directory = State.Get().UserStateDir;
		if (Directory.IsEmpty())
		{
			Directory = MakeUserDir("XDG_STATE_HOME", "/.local/state");
		}
		return Directory;
	}

	void SetPluginDirs(const TArray<FString>& Directories)
	{
		TArray<FString> Full;
		for (const FString& Directory : Directories)
		{
			Full.Add(MakeFolder(Directory));
		}
		State.Get().PluginDirs = MoveTemp(Full);
	}

	TArray<FString> GetPluginDirs()
	{
		TArray<FString> Result = State.Get().PluginDirs;
		Result.AddUnique(FPaths::ProjectPluginsDir());
		return Result;
	}
}
