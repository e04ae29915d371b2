// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct FPlacedMember;

/** A JSON value and where it stands in its text: [Begin, End). */
struct FPlacedJson
{
	enum class EKind
	{
		Object,
		Array,
		Text,
		Other // number, true, false, null
	};

	static constexpr size_t Nowhere = std::string_view::npos;

	EKind Kind = EKind::Other;
	size_t Begin = 0;
	size_t End = 0;
	size_t Comma = Nowhere; // behind it, in the object or array that it is in
	std::string Value; // of a text what it means, of another simple value as it is written
	std::vector<FPlacedMember> Members;
	std::vector<FPlacedJson> Elements;

	/** Names compare without regard to case, as the engine's do. Null when there is none. */
	const FPlacedMember* Find(std::string_view Name) const;
	size_t Count(std::string_view Name) const;
};

struct FPlacedMember
{
	std::string Name;
	size_t Begin = 0; // of the name
	size_t Colon = 0;
	FPlacedJson Value;
};

namespace PlacedJson
{
	/**
	 * Reads JSON as people write it: comments of both kinds and a comma behind the last item are passed over.
	 * @param OutOffset where it is no JSON any more
	 * @param OutReason why, half a sentence
	 */
	std::optional<FPlacedJson> Parse(std::string_view Text, size_t& OutOffset, std::string& OutReason);

	bool EqualsIgnoringCase(std::string_view A, std::string_view B);
}
