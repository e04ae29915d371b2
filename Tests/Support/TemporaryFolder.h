// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "FileBytes.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

/** A fresh folder on disk that goes with this object. Reads and writes past the host, so that tests see what really is on disk. */
class FTemporaryFolder
{
public:
	FTemporaryFolder()
	{
		std::string Template = (std::filesystem::temp_directory_path() / "velmorant-test-XXXXXX").string();
		if (mkdtemp(Template.data()) == nullptr)
		{
			throw std::runtime_error("no temporary folder could be made");
		}
		Root = std::filesystem::canonical(Template);
	}

	~FTemporaryFolder()
	{
		std::error_code Ignored;
		std::filesystem::remove_all(Root, Ignored);
	}

	FTemporaryFolder(const FTemporaryFolder&) = delete;
	FTemporaryFolder& operator=(const FTemporaryFolder&) = delete;

	std::filesystem::path GetNative(std::string_view Relative = {}) const { return Relative.empty() ? Root : Root / Relative; }

	/** Full path, as the editor writes it. */
	FString Get(std::string_view Relative = {}) const { return FString(UTF8_TO_TCHAR(GetNative(Relative).c_str())); }

	/** Creates missing folders. */
	void Write(std::string_view Relative, std::string_view Bytes) const
	{
		std::filesystem::create_directories(GetNative(Relative).parent_path());
		std::ofstream Stream(GetNative(Relative), std::ios::binary);
		Stream.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
	}

	/** Empty for a missing file. */
	std::string Read(std::string_view Relative) const
	{
		return ReadBytes(GetNative(Relative));
	}

	bool Exists(std::string_view Relative) const { return std::filesystem::exists(GetNative(Relative)); }

	/** Number of files and folders directly in it. */
	size_t Count(std::string_view Relative = {}) const
	{
		return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(GetNative(Relative)), std::filesystem::directory_iterator()));
	}

private:
	std::filesystem::path Root;
};
