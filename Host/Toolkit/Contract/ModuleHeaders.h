// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Contract/DeclaredTypes.h"
#include "Diagnostics.h"
#include "Model.h"

#include <memory>
#include <string>
#include <vector>

/** A header of a companion, as far as it can be read. */
struct FModuleHeader
{
	std::string Path; // full
	std::string WithinModule; // "Public/VelmorantUser.h"
	std::vector<std::string> Lines;
	HeaderTool::FHeader Model; // what is reflected; what could not be read is left out and among Diagnostics
	HeaderTool::FDiagnostics Diagnostics;
	std::vector<FDeclaredType> Types; // reflected or not
	bool bRead = false; // false: not even the words could be told apart

	/** By which path others include it; empty for a header that only its own module can include. */
	std::string GetIncludePath() const;
	std::string GetFileName() const;

	const FDeclaredType* FindType(const std::string& Name) const;

	/** One declaration, from its name's line, without body and initial value. */
	std::string GetDeclaration(int Line) const;
};

/** The headers of one module: those in Public and Classes are for others. */
struct FModuleHeaders
{
	std::string Module;
	FString Folder; // empty when the module is not there
	std::vector<std::unique_ptr<FModuleHeader>> Headers;
};

namespace ModuleHeaders
{
	/** Folder of a module's sources in a plugin; empty when it has none of that name. */
	FString FindModule(const FString& PluginFolder, const std::string& Module);

	/** The plugin whose module it is: one of the folders, or else one that lies beside them. */
	FString FindModule(const TArray<FString>& PluginFolders, const std::string& Module);

	/** Every header below the folder. What cannot be read is told in its diagnostics, or reported. */
	FModuleHeaders Read(const std::string& Module, const FString& Folder);
}
