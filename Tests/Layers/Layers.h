// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

/** The build's targets as the build itself wrote them down, and what their sources include. */
namespace Layers
{
	/** A module or a program. */
	struct FLayer
	{
		std::string Name;
		bool bProgram = false;
		bool bFlat = false; // a part of programs, without folders for who may see what
		std::filesystem::path Folder;

		/** The modules that it names: for its users as well, and for itself. */
		std::set<std::string> Public, Private;

		/** Where the compiler looks for what it includes. */
		std::vector<std::filesystem::path> IncludeFolders;

		/** What it compiles, and all headers of a module. */
		std::vector<std::filesystem::path> Sources;

		bool Names(const std::string& Module) const
		{
			return Public.count(Module) + Private.count(Module) > 0;
		}

		/** Whether the file is one that users of the module include. */
		bool IsForUsers(const std::filesystem::path& File) const;
	};

	/** A header that a module offers others. */
	struct FOffer
	{
		std::string Module;
		std::filesystem::path File;
	};

	const std::vector<FLayer>& All();

	/** Fails the test if there is none of that name. */
	const FLayer& Find(const std::string& Name);

	/** Include paths of all headers in Public, Detail and Internal folders. */
	const std::map<std::string, FOffer>& Offers();

	/** As they are written between quotation marks, those of generated headers left out. */
	const std::vector<std::string>& IncludesOf(const std::filesystem::path& File);

	/** The layer's sources, and the headers beside them that belong to no module. */
	std::vector<std::filesystem::path> FilesOf(const FLayer& Layer);

	bool IsBelow(const std::filesystem::path& File, const std::filesystem::path& Folder);
}
