// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Config/IniFile.h"
#include "HostConfig.h"
#include "Misc/ConfigCacheIni.h"

#include <memory>
#include <string>
#include <vector>

/** A section out of the files it is spread over. */
namespace IniMerge
{
	using FLayers = std::vector<std::shared_ptr<const FIniFile>>; // lowest first; those that are not there are left out

	/** Those of the files that are there. */
	FLayers ReadLayers(const TArray<FString>& Files);

	/** The entries as they stand, prefixes being part of the keys. Null when the file has no such section. */
	std::unique_ptr<FConfigSection> ReadAsWritten(const FIniFile& File, const std::string& Section);

	/**
	 * Applies the layers one after another:
	 *   Key=Value   sets the key, whatever it held
	 *   +Key=Value  adds the value unless the key has it already
	 *   .Key=Value  adds the value in any case
	 *   -Key=Value  removes the value
	 *   !Key        removes the key with all values; what stands behind '=' does not count
	 * Lines with the rarer @ and * (arrays of structs with a unique member) count as + without that member; @ only declares it.
	 * Null when no layer has the section.
	 */
	std::unique_ptr<FConfigSection> Merge(const FLayers& Layers, const std::string& Section);

	/** The values that Merge() leaves out because a later line takes them away. */
	TArray<HostConfig::FRemovedValue> FindRemovedValues(const FLayers& Layers, const std::string& Section);
}
