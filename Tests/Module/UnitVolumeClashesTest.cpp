// Copyright Velmorant. All Rights Reserved.

#include "UnitVolumes/UnitVolumeClashes.h"

#include "PairwiseClashes.h"
#include "ToolkitTest.h"

#include <gmock/gmock.h>
#include <random>

namespace UnitVolumeClashesTest
{
	using FVolumes = std::vector<FUnitVolumeUniqueIdentifier>;

	FPairwiseClashes::FIdentifiers IdentifiersOf(const FVolumes& Volumes)
	{
		FPairwiseClashes::FIdentifiers Identifiers;
		for (const FUnitVolumeUniqueIdentifier& Volume : Volumes)
		{
			Identifiers.Add(&Volume);
		}
		return Identifiers;
	}

	using FGroups = std::vector<std::pair<std::string, std::vector<int32>>>;

	FGroups Find(const FVolumes& Volumes)
	{
		FGroups Groups;
		for (const UnitVolumeClashes::FGroup& Group : UnitVolumeClashes::Find(IdentifiersOf(Volumes)))
		{
			Groups.push_back({ToUtf8(Group.Keycode), std::vector<int32>(Group.Volumes.GetData(), Group.Volumes.GetData() + Group.Volumes.Num())});
		}
		return Groups;
	}

	FGroups FindPairwise(const FVolumes& Volumes)
	{
		FGroups Groups;
		const FPairwiseClashes Pairwise(IdentifiersOf(Volumes));
		for (const auto& [Keycode, Members] : Pairwise.GetGroups())
		{
			Groups.push_back({ToUtf8(Keycode), {}});
			for (const FUnitVolumeUniqueIdentifier* Member : Members)
			{
				Groups.back().second.push_back(static_cast<int32>(Member - Volumes.data()));
			}
		}
		return Groups;
	}
}

using namespace UnitVolumeClashesTest;

TEST(UnitVolumeClashes, AreTheSameIntegerAndTheSameKeyCode)
{
	const FString Longest = FString::ChrN(NAME_SIZE - 1, TEXT('x'));
	const struct
	{
		const char* Behaviour;
		FVolumes Volumes;
		FGroups Groups;
	} Cases[] = {
		{"no volumes", {}, {}},
		{"without key code", {{1, TEXT("")}, {1, TEXT("")}}, {}},
		{"key code or integer differs", {{1, TEXT("A1")}, {1, TEXT("A2")}, {2, TEXT("A1")}}, {}},
		{"all that are alike, by the first of them", {{1, TEXT("A1")}, {1, TEXT("B1")}, {1, TEXT("A1")}, {1, TEXT("B1")}, {1, TEXT("A1")}}, {{"A1", {0, 2, 4}}, {"B1", {1, 3}}}},
		{"letter case of the key code does not count", {{1, TEXT("a1")}, {1, TEXT("A1")}, {1, TEXT("\u00D1-Torre")}, {1, TEXT("\u00F1-TORRE")}}, {{"a1", {0, 1}}, {"\u00D1-Torre", {2, 3}}}},
		{"clashes of one key code share a group, one after the other; the third integer clashes with nobody",
			{{1, TEXT("A1")}, {2, TEXT("A1")}, {2, TEXT("a1")}, {1, TEXT("A1")}, {3, TEXT("A1")}}, {{"A1", {0, 3, 1, 2}}}},
		{"a key code may be longer than a name", {{1, Longest}, {1, Longest + TEXT("1")}, {1, Longest + TEXT("2")}, {1, Longest + TEXT("2")}}, {{ToUtf8(Longest), {2, 3}}}},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Find(Case.Volumes), Case.Groups) << Case.Behaviour;
	}
}

TEST(UnitVolumeClashes, AreWhatComparingAllPairsFinds)
{
	const TCHAR* const Keycodes[] = {TEXT(""), TEXT("A1"), TEXT("a1"), TEXT("B"), TEXT("b"), TEXT("C-3"), TEXT("c-3"), TEXT("C_3"), TEXT("\u00C1"), TEXT("\u00E1"), TEXT("D")};
	std::mt19937 Random(20250611);
	for (int32 Level = 0; Level < 300; ++Level)
	{
		FVolumes Volumes(Random() % 40);
		for (FUnitVolumeUniqueIdentifier& Volume : Volumes)
		{
			Volume = {static_cast<int32>(Random() % 3), Keycodes[Random() % std::size(Keycodes)]};
		}
		ASSERT_EQ(Find(Volumes), FindPairwise(Volumes)) << "level " << Level;
	}
}
