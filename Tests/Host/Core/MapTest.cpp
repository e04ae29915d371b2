// Copyright Velmorant. All Rights Reserved.

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "HostAssertions.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <vector>

namespace MapTest
{
	template<typename MapType>
	std::vector<int32> KeysOf(const MapType& Map)
	{
		std::vector<int32> Keys;
		for (const auto& [Key, Value] : Map)
		{
			Keys.push_back(Key);
		}
		return Keys;
	}

	/** Tells the cases of letters apart and counts how often it is asked. */
	struct FCaseSensitiveKeys : TDefaultMapHashableKeyFuncs<FString, int32, false>
	{
		static inline int64 NumCompared = 0;

		static bool Matches(const FString& A, const FString& B)
		{
			++NumCompared;
			return A.Equals(B);
		}

		static uint32 GetKeyHash(const FString& Key)
		{
			uint32 Hash = 0;
			for (const TCHAR Char : Key)
			{
				Hash = HashCombine(Hash, GetTypeHash(Char));
			}
			return Hash;
		}
	};

	TMap<int32, int32> MakeMap(std::initializer_list<int32> Keys)
	{
		TMap<int32, int32> Map;
		for (const int32 Key : Keys)
		{
			Map.Add(Key, Key * 10);
		}
		return Map;
	}
}

using namespace MapTest;

TEST(Map, IteratesInTheOrderOfAdding)
{
	TMap<int32, int32> Map;
	std::vector<int32> Expected;
	for (int32 Index = 0; Index < 500; ++Index)
	{
		const int32 Key = (Index * 7919) % 1009;
		Map.Add(Key, Index);
		Expected.push_back(Key);
	}
	EXPECT_EQ(KeysOf(Map), Expected);
	const TMap<int32, int32> Copy = Map;
	EXPECT_EQ(KeysOf(Copy), Expected);
}

TEST(Map, ReusesTheSlotThatWasFreedLast)
{
	TMap<int32, int32> Map = MakeMap({1, 2, 3, 4});
	Map.Remove(2);
	Map.Remove(4);
	Map.Remove(1);
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{3}));
	Map.Add(10, 0);
	Map.Add(11, 0);
	Map.Add(12, 0);
	Map.Add(13, 0);
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{10, 12, 3, 11, 13}));
}

TEST(Map, ACopyKeepsTheFreeSlots)
{
	TMap<int32, int32> Map = MakeMap({1, 2, 3});
	Map.Remove(2);
	TMap<int32, int32> Copy = Map;
	Copy.Add(5, 0);
	EXPECT_EQ(KeysOf(Copy), (std::vector<int32>{1, 5, 3}));
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{1, 3}));
}

TEST(Map, StartsOverAfterReset)
{
	TMap<int32, int32> Map = MakeMap({1, 2, 3});
	Map.Remove(2);
	Map.Reset();
	EXPECT_FALSE(Map.Contains(1));
	Map.Append(MakeMap({7, 8, 9}));
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{7, 8, 9}));
}

TEST(Map, AddReplacesTheValueInItsPlace)
{
	TMap<int32, int32> Map = MakeMap({1, 2, 3});
	Map.Add(2, 99);
	EXPECT_EQ(Map.Num(), 3);
	EXPECT_EQ(KeysOf(Map), (std::vector<int32>{1, 2, 3}));
	EXPECT_EQ(Map[2], 99);
}

TEST(Map, StringKeysIgnoreCase)
{
	TMap<FString, int32> Map = {{TEXT("Lobby"), 1}};
	Map.Add(TEXT("LOBBY"), 2);
	EXPECT_EQ(Map.Num(), 1);
	EXPECT_EQ(Map.FindRef(TEXT("lobby")), 2);
}

TEST(Map, FollowsTheRulesOfItsKeyFuncs)
{
	TMap<FString, int32, FDefaultSetAllocator, FCaseSensitiveKeys> Map;
	Map.Add(TEXT("Lobby"), 1);
	Map.Add(TEXT("LOBBY"), 2);
	EXPECT_EQ(Map.FindRef(TEXT("Lobby")), 1);
	EXPECT_FALSE(Map.Contains(TEXT("lobby")));
}

TEST(Map, ComparesAboutOneKeyPerLookUp)
{
	TMap<FString, int32, FDefaultSetAllocator, FCaseSensitiveKeys> Map;
	constexpr int32 Num = 10000;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Map.Add(FString::FromInt(Index), Index);
	}
	FCaseSensitiveKeys::NumCompared = 0;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		ASSERT_EQ(Map.FindRef(FString::FromInt(Index)), Index);
	}
	EXPECT_LT(FCaseSensitiveKeys::NumCompared, 2 * Num);
}

TEST(Map, LookUpsOfAMissingKey)
{
	TMap<int32, TArray<int32>> Map;
	EXPECT_EQ(Map.Find(1), nullptr);
	EXPECT_TRUE(Map.FindRef(1).IsEmpty());
	EXPECT_EQ(Map.Num(), 0);
	EXPECT_THROW(Map[1], FHostAssertionFailure);
	Map.FindOrAdd(1).Add(5);
	Map.FindOrAdd(1).Add(6);
	EXPECT_EQ(Map[1].Num(), 2);
}

TEST(Map, TakesItsOwnPartsAsArguments)
{
	TMap<FString, FString> Map;
	Map.Add(TEXT("0"), TEXT("a value that is too long for any small buffer"));
	for (int32 Index = 1; Index < 40; ++Index)
	{
		Map.Add(FString::FromInt(Index), *Map.Find(TEXT("0"))); // growing moves the value that is being copied
	}
	EXPECT_EQ(*Map.Find(TEXT("39")), *Map.Find(TEXT("0")));
	while (Map.Num() > 0)
	{
		Map.Remove((*Map.begin()).Key);
	}
}

TEST(Map, AgreesWithAnOrderedMapAfterManyChanges)
{
	std::mt19937 Random(11);
	TMap<int32, int32> Map;
	std::map<int32, int32> Expected;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Key = static_cast<int32>(Random() % 700u);
		if (Random() % 3u == 0)
		{
			ASSERT_EQ(Map.Remove(Key), static_cast<int32>(Expected.erase(Key)));
		}
		else
		{
			Map.Add(Key, Step);
			Expected[Key] = Step;
		}
	}
	ASSERT_EQ(Map.Num(), static_cast<int32>(Expected.size()));
	for (const auto& [Key, Value] : Expected)
	{
		ASSERT_EQ(Map.FindRef(Key), Value) << "key " << Key;
	}
}

TEST(MultiMap, KeepsEveryValueOfAKey)
{
	TMultiMap<FString, int32> Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("b"), 2);
	Map.Add(TEXT("A"), 3);
	TArray<int32> Values;
	Map.MultiFind(TEXT("a"), Values, true);
	EXPECT_EQ(Values, (TArray<int32>{1, 3}));
	Values.Reset();
	Map.MultiFind(TEXT("a"), Values);
	EXPECT_EQ(Values, (TArray<int32>{3, 1}));
	TArray<FString> Keys;
	EXPECT_EQ(Map.GetKeys(Keys), 2);
	EXPECT_EQ(Map.Num(), 3);
	EXPECT_EQ(Map.Remove(TEXT("a")), 2);
	EXPECT_EQ(Map.Num(), 1);
}

TEST(Set, SaysWhetherAnElementWasThere)
{
	TSet<int32> Set = {1, 2};
	bool bThere = false;
	Set.Add(2, &bThere);
	EXPECT_TRUE(bThere) << "2 was in the set already";
	Set.Add(3, &bThere);
	EXPECT_FALSE(bThere) << "3 is new";
	EXPECT_EQ(Set.Array(), (TArray<int32>{1, 2, 3}));
	EXPECT_EQ(Set.Remove(2), 1);
	EXPECT_EQ(Set.Remove(2), 0);
	EXPECT_EQ(Set.Array(), (TArray<int32>{1, 3}));
}
