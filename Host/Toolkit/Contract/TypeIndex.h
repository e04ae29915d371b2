// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Contract/Declaration.h"
#include "Contract/ModuleHeaders.h"

#include <optional>
#include <set>

/** A type and the header that declares it. */
struct FTypePlace
{
	const FModuleHeader* Header = nullptr; // null when no header declares it
	const FDeclaredType* Type = nullptr;
};

/** All types of several modules by name. Points into their headers, which must outlive it. */
class FTypeIndex
{
public:
	void Add(const FModuleHeaders& Module);

	/** Of several, the one that others can include by that path. */
	FTypePlace Find(const std::string& Type, const std::string& IncludePath = std::string()) const;

	/** The type itself or the nearest base that declares the member. */
	FTypePlace FindMember(const FTypePlace& Type, const std::string& Member) const;

	bool DerivesFrom(const FTypePlace& Type, const std::string& Base) const;

	/** Type and its bases, nearest first, as far as headers declare them. */
	std::vector<FTypePlace> GetChain(const FTypePlace& Type) const;

private:
	std::multimap<std::string, FTypePlace> Types;
};
