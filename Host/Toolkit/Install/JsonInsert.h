// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Install/PlacedJson.h"

/** How the objects of a list are written: what stands between their parts is taken over from one that is there. */
struct FObjectStyle
{
	std::string Open; // between brace and first name
	std::string BeforeColon;
	std::string BehindColon;
	std::string Between; // behind a comma
	std::string Close; // before the closing brace
};

/** A name and a value as it is written in JSON. */
struct FJsonMemberText
{
	std::string Name;
	std::string Value;
};

/** Text to be put into JSON that people have written, such that it looks like theirs and all else stays as it is. */
namespace JsonInsert
{
	/** The blanks of a stretch between two parts: the last line break with what follows it, or what stands on the line; no comments. */
	std::string GetGap(std::string_view Text, size_t Begin, size_t End);

	/** The document's line end. */
	std::string GetLineEnd(std::string_view Text);

	FObjectStyle GetStyle(std::string_view Text, const FPlacedJson& Object);
	std::string WriteObject(const FObjectStyle& Style, const std::vector<FJsonMemberText>& Members);
	std::string WriteMember(const FObjectStyle& Style, const FJsonMemberText& Member);

	/** The document with Item behind Last, the last item of an object or array. Comments on Last's line stay with it, a comma behind it, too. */
	std::string Append(std::string Text, const FPlacedJson& Last, const std::string& Gap, const std::string& Item);

	/** The document with Item as the only one of Container. Comments in that stay. */
	std::string Fill(std::string Text, const FPlacedJson& Container, const std::string& Open, const std::string& Item, const std::string& Close);
}
