// Copyright Velmorant. All Rights Reserved.

#include "Collision/UnitVolumeCollisionLines.h"

#include "CollisionIni.h"
#include "ToolkitTest.h"

#include <gmock/gmock.h>

using CollisionIni::Channel;
using CollisionIni::Glass;
using CollisionIni::Profile;
using CollisionIni::Replace;

namespace UnitVolumeCollisionLinesTest
{
	using FLines = std::vector<std::string>;

	TArray<FString> MakeLines(const FLines& Texts)
	{
		TArray<FString> Lines;
		for (const std::string& Text : Texts)
		{
			Lines.Add(UTF8_TO_TCHAR(Text.c_str()));
		}
		return Lines;
	}
}

using namespace UnitVolumeCollisionLinesTest;

TEST(UnitVolumeCollisionLines, GoBehindTheLastProfileLine)
{
	const struct
	{
		const char* Behaviour;
		FLines Before;
		FLines After;
	} Cases[] = {
		{"one profile line", {"[A]", Glass, "B=1"}, {"[A]", Glass, Profile, Channel, "B=1"}},
		{"the last of several counts, in whatever section", {Glass, "[A]", Glass, "", "B=1"}, {Glass, "[A]", Glass, Profile, Channel, "", "B=1"}},
		{"letter case does not count", {Replace(Glass, "+Profiles", "+pROFILES"), "B=1"}, {Replace(Glass, "+Profiles", "+pROFILES"), Profile, Channel, "B=1"}},
		{"a prefix is enough", {"+Profiles=", "B=1"}, {"+Profiles=", Profile, Channel, "B=1"}},
		{"last line of the file", {"[A]", Glass}, {"[A]", Glass, Profile, Channel}},
		{"those that are there do not count", {Profile, Channel}, {Profile, Profile, Channel, Channel}},
		{"other prefixes are no profile lines", {"-Profiles=(A)", ".Profiles=(B)", "Profiles=(C)", " +Profiles=(D)", ";+Profiles=(E)", "+Profile=(F)"},
			{"-Profiles=(A)", ".Profiles=(B)", "Profiles=(C)", " +Profiles=(D)", ";+Profiles=(E)", "+Profile=(F)"}},
		{"no lines", {}, {}},
	};
	for (const auto& Case : Cases)
	{
		TArray<FString> Lines = MakeLines(Case.Before);
		UnitVolumeCollisionLines::Insert(Lines);
		EXPECT_EQ(ToUtf8(Lines), Case.After) << Case.Behaviour;
	}
}

TEST(UnitVolumeCollisionLines, HaveTheChannelOnlyAsItIsWritten)
{
	const struct
	{
		const char* Behaviour;
		FLines Lines;
		bool bFound;
	} Cases[] = {
		{"among others", {Glass, Channel, "B=1"}, true},
		{"letter case does not count", {Replace(Channel, "DefaultChannelResponses=(Channel", "defaultchannelresponses=(CHANNEL")}, true},
		{"without blanks after commas", {Replace(Channel, ", ", ",")}, false},
		{"with one blank more", {Replace(Channel, ", ", ",  ")}, false},
		{"with something behind it", {Channel + ";"}, false},
		{"only the profile", {Profile}, false},
		{"no lines", {}, false},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(UnitVolumeCollisionLines::HaveChannel(MakeLines(Case.Lines)), Case.bFound) << Case.Behaviour;
	}
}
