// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

namespace SurfaceCheck
{
	/** A section of an object file: with -ffunction-sections and -fdata-sections one function, or one variable. */
	struct FSection
	{
		std::string Name;
		std::vector<std::string> GlobalSymbols; // mangled; several when constructors or destructors share their code
		std::vector<std::string> LocalSymbols; // mangled; no other object can mean them
		std::vector<size_t> Sections; // what it refers to in the same file
		std::vector<std::string> Symbols; // what it refers to by name: mangled, in whichever file they are
		bool bShared = false; // may stand in several files and is there for whoever uses it: inline functions, templates, vtables
		bool bRunsAtStart = false; // holds the addresses of what runs before main
	};

	/** Reads the sections and the references between them. Throws std::runtime_error with path and reason. */
	std::vector<FSection> ReadObjectFile(const std::string& Path);
}
