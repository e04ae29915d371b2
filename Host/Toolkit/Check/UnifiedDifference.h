// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace UnifiedDifference
{
	/**
	 * What became of a file, in the form that diff -u prints and patch reads, with three lines around each change; empty when nothing did.
	 * @param Name  as both headers call the file
	 * @param Old, New  UTF-8, line ends as in the file; unset for a file that is not there
	 */
	std::string Make(const std::string& Name, std::optional<std::string_view> Old, std::optional<std::string_view> New);
}
