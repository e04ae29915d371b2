// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

/** All that stands in a file, some of which are large; empty for a missing one. */
inline std::string ReadBytes(const std::filesystem::path& File)
{
	std::ostringstream Bytes;
	Bytes << std::ifstream(File, std::ios::binary).rdbuf();
	return std::move(Bytes).str();
}
