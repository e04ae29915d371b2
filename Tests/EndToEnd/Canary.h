// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "FileBytes.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

/**
 * A password and an API key that every run of these tests has in its environment, the key in its project as well, and the places where they
 * may be found when all is over.
 */
namespace Canary
{
	inline const std::string Password = "harbor-2026"; // of the sample's user
	inline const std::string Key = "ht-7f3c-91d2-demo"; // of the sample's project

	/** What the test itself wrote: scripts that type the password, the service's data, and what an installed program brings. */
	inline bool IsInput(const std::string& File)
	{
		return File.find("/share/") != std::string::npos || File.ends_with(".velscript") || File.ends_with("Service.json") || File.ends_with("Data.json");
	}

	/** Whether a script asks for the key: by the name of the setting, of the files or of the clipboard, or by itself. */
	inline bool AsksForKey(const std::string& Script)
	{
		const auto IsNamed = [&Script](const char* Name) { return Script.find(Name) != std::string::npos; };
		return IsNamed("ApiKey") || IsNamed("ApyKey") || IsNamed("lipboard") || IsNamed("DefaultGame.ini") || IsNamed("Saved/Config") || IsNamed("print changes") || IsNamed(Key.c_str());
	}

	/** What gives a secret away of all that a run printed. @param Script of a run, else empty */
	inline std::vector<std::string> FindLeaks(const std::string& Printed, const std::string& Script)
	{
		std::vector<std::string> Leaks;
		if (Printed.find(Password) != std::string::npos)
		{
			Leaks.push_back("the password is printed");
		}
		if (Printed.find(Key) != std::string::npos && !AsksForKey(Script))
		{
			Leaks.push_back("the API key is printed, and nobody asked for it");
		}
		return Leaks;
	}

	/** Files below a folder that hold a secret and should not. */
	inline std::vector<std::string> FindLeaksIn(const std::filesystem::path& Folder)
	{
		std::vector<std::string> Leaks;
		std::error_code Unreadable;
		const auto Options = std::filesystem::directory_options::skip_permission_denied;
		for (std::filesystem::recursive_directory_iterator Entry(Folder, Options, Unreadable), End; !Unreadable && Entry != End; Entry.increment(Unreadable))
		{
			std::error_code NoFile;
			const std::string Path = Entry->path().string();
			if (!Entry->is_regular_file(NoFile) || IsInput(Path))
			{
				continue;
			}
			const std::string Bytes = ReadBytes(Path);
			const auto IsIn = [&Path](const char* Part) { return Path.find(Part) != std::string::npos; };
			if (Bytes.find(Password) != std::string::npos && !IsIn("/VelmorantUser"))
			{
				Leaks.push_back(Path + " holds the password");
			}
			if (Bytes.find(Key) != std::string::npos && !IsIn("/Config/DefaultGame.ini") && !IsIn("/Saved/Config/"))
			{
				Leaks.push_back(Path + " holds the API key");
			}
		}
		return Leaks;
	}
}
