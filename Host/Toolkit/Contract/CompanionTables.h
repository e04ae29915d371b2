// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <set>
#include <string>
#include <vector>

/** A type of a companion, or a member of one, that the module relies on. */
struct FExpectedName
{
	std::string Module; // "VelmorantSDK"
	std::string Header; // "VelmorantUser.h"
	std::string Type; // "UVelmorantUser"
	std::string Member; // "HasValidToken"; empty for the type itself
	std::string Text; // "bool HasValidToken() const": without body, initial value and export macro
	bool bGiven = false; // the toolkit's own name; otherwise the real companions may call it something else
	std::set<std::string> GivenParts; // of the declaration of a given name: "base class", "parameters", "result", "static"
	std::set<std::string> Specifiers; // that the module cannot do without: "EditAnywhere", "Config=Game"

	std::string GetName() const { return Member.empty() ? Type : Type + "::" + Member; }
	bool IsConstructor() const { return Member == Type; }
};

/** The document for people that lists what the module expects of its companions is the list that programs go by, too. */
namespace CompanionTables
{
	/** In the order of the document; a type stands before its members. False, with the reason reported, when there is nothing to read. */
	bool Read(const FString& Document, std::vector<FExpectedName>& OutNames);
}
