// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

inline constexpr const char* CompanionModules[] = {"VelmorantSDK", "VelmorantPro", "VelmorantProUI"};

/** Something that a public header of a companion declares: a type, or a member of one. */
struct FCompanionDeclaration
{
	std::string Header; // "VelmorantUser.h"
	std::string Type; // "UVelmorantUser"
	std::string Member; // "HasValidToken"; empty for the type itself
	std::string Text; // "bool HasValidToken() const": without body, initial value and export macro

	std::string GetName() const { return Member.empty() ? Type : Type + "::" + Member; }
};

/**
 * Reads the headers of the companions as they are written here: types at file scope, one declaration to a line.
 * A copy of each goes to MarkedFolder, in which every member is marked as deprecated under its name. A compiler that sees the copies
 * tells each use of a member, and which one of several of the same name it is.
 */
std::vector<FCompanionDeclaration> ReadCompanionHeaders(const std::filesystem::path& MarkedFolder);
