// Copyright Velmorant. All Rights Reserved.

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostAssertions.h"
#include "HostLog.h"
#include "HostState.h"
#include "Templates/SharedPointer.h"
#include "Templates/Tuple.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace ArrayTest
{
	std::vector<int32> Items(const TArray<int32>& Array)
	{
		return std::vector<int32>(Array.GetData(), Array.GetData() + Array.Num());
	}

	TArray<int32> RandomArray(int32 Num, int32 Range, uint32 Seed)
	{
		std::mt19937 Random(Seed);
		TArray<int32> Result;
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Result.Add(static_cast<int32>(Random() % static_cast<uint32>(Range)));
		}
		return Result;
	}

	/** Counts the living ones, so that lost and doubled destructor calls show. */
	struct FCounted
	{
		static inline int32 NumAlive = 0;

		explicit FCounted(int32 InValue)
			: Value(InValue)
		{
			++NumAlive;
		}

		FCounted(const FCounted& Other)
			: Value(Other.Value)
		{
			++NumAlive;
		}

		FCounted& operator=(const FCounted&) = default;
		~FCounted() { --NumAlive; }

		int32 Value;
	};
}

using namespace ArrayTest;

TEST(Array, RemovesEveryEqualElementButRemoveSingleOnlyTheFirst)
{
	TArray<int32> Array = {1, 2, 1, 3, 1};
	EXPECT_EQ(Array.RemoveSingle(1), 1);
	EXPECT_EQ(Items(Array), (std::vector<int32>{2, 1, 3, 1}));
	EXPECT_EQ(Array.Remove(1), 2);
	EXPECT_EQ(Items(Array), (std::vector<int32>{2, 3}));
	EXPECT_EQ(Array.Remove(7), 0);
}

TEST(Array, RemoveAtKeepsTheOrder)
{
	TArray<int32> Array = {0, 1, 2, 3, 4, 5};
	Array.RemoveAt(1, 2);
	EXPECT_EQ(Items(Array), (std::vector<int32>{0, 3, 4, 5}));
}

TEST(Array, InsertsBeforeAnIndexAndAtTheEnd)
{
	TArray<int32> Array = {1, 2};
	Array.Insert(0, 0);
	Array.Insert(3, Array.Num());
	EXPECT_EQ(Items(Array), (std::vector<int32>{0, 1, 2, 3}));
	EXPECT_THROW(Array.Insert(9, 7), FHostAssertionFailure);
}

TEST(Array, RefusesEveryIndexOutsideItsElements)
{
	TArray<int32> Array = {1, 2, 3};
	const TArray<int32> Empty;
	EXPECT_THROW(Array[3], FHostAssertionFailure);
	EXPECT_THROW(Array[-1], FHostAssertionFailure);
	EXPECT_THROW(Empty.Last(), FHostAssertionFailure);
	EXPECT_THROW(Array.RemoveAt(2, 2), FHostAssertionFailure);
	EXPECT_THROW(TArray<int32>().Pop(), FHostAssertionFailure);
	EXPECT_EQ(Items(Array), (std::vector<int32>{1, 2, 3}));
}

TEST(Array, RefusesToAddItsOwnElement)
{
	TArray<int32> Array = {1, 2, 3};
	EXPECT_THROW(Array.Add(Array[0]), FHostAssertionFailure);
	EXPECT_THROW(Array.Append(Array), FHostAssertionFailure);
	EXPECT_EQ(Array.Num(), 3);
}

TEST(Array, ReportsThatItsLengthChangedDuringRangeFor)
{
	HostState::DestroyAll(); // reported once per editor
	HostLog::Clear();
	TArray<int32> Array = {1, 2, 3};
	for (const int32 Item : Array)
	{
		if (Item == 1)
		{
			Array.Reserve(8);
			EXPECT_TRUE(HostLog::GetLines().IsEmpty()) << "room is not length";
			Array.Add(4);
			break;
		}
	}
	Array.Reset(16);
	Array.Append({1, 2, 3});
	for (const int32 Item : Array)
	{
		if (Item == 3)
		{
			Array.Add(4);
		}
	}
	EXPECT_TRUE(HostLog::GetLines().ContainsByPredicate([](const FHostLogLine& Line) { return Line.Text.Contains(TEXT("Array has changed during ranged-for iteration!")); }));
}

TEST(Array, DestroysEachElementOnce)
{
	FCounted::NumAlive = 0;
	{
		TArray<FCounted> Array;
		for (int32 Value = 0; Value < 100; ++Value)
		{
			Array.Emplace(Value);
		}
		Array.RemoveAll([](const FCounted& Each) { return Each.Value % 3 == 0; });
		Array.RemoveAt(0, 5);
		Array.Insert(FCounted(1000), 3);
		TArray<FCounted> Copy = Array;
		TArray<FCounted> Moved = MoveTemp(Array);
		Copy.Append(MoveTemp(Moved));
		Array = Copy;
		Array.StableSort([](const FCounted& A, const FCounted& B) { return A.Value < B.Value; });
		EXPECT_EQ(FCounted::NumAlive, Array.Num() + Copy.Num() + Moved.Num());
		EXPECT_EQ(Array.Last().Value, 1000);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Array, SortsLikeTheStandardLibrary)
{
	for (const int32 Num : {0, 1, 2, 12, 13, 16, 17, 100, 1000, 5000})
	{
		for (const int32 Range : {1, 2, 7, 1000000})
		{
			SCOPED_TRACE(testing::Message() << Num << " values below " << Range);
			TArray<int32> Array = RandomArray(Num, Range, 7u + static_cast<uint32>(Num));
			std::vector<int32> Expected = Items(Array);
			std::sort(Expected.begin(), Expected.end(), [](int32 A, int32 B) { return A > B; });
			Array.Sort([](int32 A, int32 B) { return A > B; });
			EXPECT_EQ(Items(Array), Expected);
			Array.Sort([](int32 A, int32 B) { return A < B; });
			std::reverse(Expected.begin(), Expected.end());
			EXPECT_EQ(Items(Array), Expected);
		}
	}
}

TEST(Array, SortsAwkwardOrdersWithoutComparingTooOften)
{
	constexpr int32 Num = 20000;
	TArray<int32> Ascending;
	TArray<int32> OrganPipe;
	TArray<int32> Equal;
	TArray<int32> MedianKiller; // the middle of every part is one of its smallest
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Ascending.Add(Index);
		OrganPipe.Add(Index < Num / 2 ? Index : Num - Index);
		Equal.Add(1);
		MedianKiller.Add(Index % 2 == 0 ? Index : Num / 2 + Index / 2);
	}
	for (const TArray<int32>* const Order : {&Ascending, &OrganPipe, &Equal, &MedianKiller})
	{
		int64 NumCompared = 0;
		TArray<int32> Array = *Order;
		Array.Sort([&NumCompared](int32 A, int32 B) {
			++NumCompared;
			return A < B;
		});
		EXPECT_LT(NumCompared, 60 * Num) << "20000 has 15 bits; order that begins with " << (*Order)[0] << ", " << (*Order)[1];
		EXPECT_TRUE(std::is_sorted(Array.GetData(), Array.GetData() + Num));
	}
}

TEST(Array, StableSortKeepsTheOrderOfEqualElements)
{
	const TArray<int32> Keys = RandomArray(1000, 10, 3);
	TArray<TPair<int32, int32>> Array;
	for (const int32 Key : Keys)
	{
		Array.Emplace(Key, Array.Num());
	}
	Array.StableSort([](const TPair<int32, int32>& A, const TPair<int32, int32>& B) { return A.Key < B.Key; });
	for (int32 Index = 1; Index < Array.Num(); ++Index)
	{
		ASSERT_TRUE(Array[Index - 1].Key < Array[Index].Key || Array[Index - 1].Value < Array[Index].Value) << "at " << Index;
	}
}

TEST(Array, GivesSortPredicatesWhatPointersPointTo)
{
	int32 Values[] = {3, 1, 2};
	TArray<int32*> Pointers = {&Values[0], &Values[1], &Values[2]};
	Pointers.Sort([](const int32& A, const int32& B) { return A < B; });
	EXPECT_EQ(*Pointers[0], 1);

	struct FItem
	{
		int32 Rank;
	};
	TArray<TSharedPtr<FItem>> Shared = {MakeShared<FItem>(FItem{2}), MakeShared<FItem>(FItem{1})};
	Shared.Sort([](const TSharedPtr<FItem>& A, const TSharedPtr<FItem>& B) { return A->Rank < B->Rank; });
	EXPECT_EQ(Shared[0]->Rank, 1);
}

TEST(ArrayView, SeesPartsOfWhatSomebodyElseOwns)
{
	TArray<int32> Array = {1, 2, 3, 4};
	TArrayView<int32> View = Array;
	View[0] = 10;
	const TConstArrayView<int32> Middle = TConstArrayView<int32>(Array.GetData() + 1, 2);
	EXPECT_EQ(Array[0], 10);
	EXPECT_EQ(Middle.Num(), 2);
	EXPECT_EQ(Middle[1], 3);
	EXPECT_THROW(Middle[2], FHostAssertionFailure);
	EXPECT_EQ(Items(TArray<int32>(Middle)), (std::vector<int32>{2, 3}));
}
