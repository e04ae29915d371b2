// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

namespace AlgoImpl
{
	template<typename T, typename PredicateType>
	void InsertionSort(T* First, int64 Num, const PredicateType& Less)
	{
		for (int64 Index = 1; Index < Num; ++Index)
		{
			if (!Less(First[Index], First[Index - 1]))
			{
				continue;
			}
			T Value = MoveTemp(First[Index]);
			int64 Hole = Index;
			do
			{
				First[Hole] = MoveTemp(First[Hole - 1]);
				--Hole;
			} while (Hole > 0 && Less(Value, First[Hole - 1]));
			First[Hole] = MoveTemp(Value);
		}
	}

	template<typename T, typename PredicateType>
	void SiftDown(T* Heap, int64 Root, int64 Num, const PredicateType& Less)
	{
		for (int64 Child = Root * 2 + 1; Child < Num; Child = Root * 2 + 1)
		{
			if (Child + 1 < Num && Less(Heap[Child], Heap[Child + 1]))
			{
				++Child;
			}
			if (!Less(Heap[Root], Heap[Child]))
			{
				return;
			}
			Swap(Heap[Root], Heap[Child]);
			Root = Child;
		}
	}

	template<typename T, typename PredicateType>
	void HeapSort(T* First, int64 Num, const PredicateType& Less)
	{
		for (int64 Root = Num / 2 - 1; Root >= 0; --Root)
		{
			SiftDown(First, Root, Num, Less);
		}
		for (int64 Last = Num - 1; Last > 0; --Last)
		{
			Swap(First[0], First[Last]);
			SiftDown(First, 0, Last, Less);
		}
	}

	/** Splits around the median of three; returns how many elements belong to the left part (at least one, fewer than Num). */
	template<typename T, typename PredicateType>
	int64 Partition(T* First, int64 Num, const PredicateType& Less)
	{
		const int64 Middle = (Num - 1) / 2;
		if (Less(First[Middle], First[0]))
		{
			Swap(First[Middle], First[0]);
		}
		if (Less(First[Num - 1], First[0]))
		{
			Swap(First[Num - 1], First[0]);
		}
		if (Less(First[Num - 1], First[Middle]))
		{
			Swap(First[Num - 1], First[Middle]);
		}
		// The pivot stays in the array while it is compared with: elements may be movable only.
		int64 Pivot = Middle;
		int64 Left = 0;
		int64 Right = Num - 1;
		while (true)
		{
			while (Left < Num - 1 && Less(First[Left], First[Pivot]))
			{
				++Left;
			}
			while (Right > 0 && Less(First[Pivot], First[Right]))
			{
				--Right;
			}
			if (Left >= Right)
			{
				return Right + 1 < Num ? Right + 1 : Num - 1;
			}
			Swap(First[Left], First[Right]);
			if (Pivot == Left || Pivot == Right)
			{
				Pivot = Pivot == Left ? Right : Left;
			}
			++Left;
			--Right;
		}
	}

	template<typename T, typename PredicateType>
	void IntroSort(T* First, int64 Num, const PredicateType& Less, int32 DepthLeft)
	{
		constexpr int64 SmallNum = 16;
		while (Num > SmallNum)
		{
			if (DepthLeft-- == 0)
			{
				HeapSort(First, Num, Less);
				return;
			}
			const int64 LeftNum = Partition(First, Num, Less);
			IntroSort(First + LeftNum, Num - LeftNum, Less, DepthLeft);
			Num = LeftNum;
		}
		InsertionSort(First, Num, Less);
	}

	/** Not stable. Quick sort that turns to heap sort when it degenerates, so never worse than n log n. */
	template<typename T, typename PredicateType>
	void Sort(T* First, int64 Num, const PredicateType& Less)
	{
		int32 Depth = 2;
		for (int64 Rest = Num; Rest > 1; Rest /= 2)
		{
			Depth += 2;
		}
		IntroSort(First, Num, Less, Depth);
	}

	/** Bottom-up merge sort; needs room for half the elements. Equal elements keep their order. */
	template<typename T, typename PredicateType>
	void StableSort(T* First, int64 Num, const PredicateType& Less)
	{
		constexpr int64 RunNum = 12;
		if (Num <= RunNum)
		{
			InsertionSort(First, Num, Less);
			return;
		}
		const int64 LeftNum = Num / 2;
		StableSort(First, LeftNum, Less);
		StableSort(First + LeftNum, Num - LeftNum, Less);
		if (!Less(First[LeftNum], First[LeftNum - 1]))
		{
			return;
		}

		T* const Buffer = static_cast<T*>(::operator new(sizeof(T) * static_cast<std::size_t>(LeftNum), std::align_val_t(alignof(T))));
		for (int64 Index = 0; Index < LeftNum; ++Index)
		{
			new (Buffer + Index) T(MoveTemp(First[Index]));
		}
		int64 Left = 0;
		int64 Right = LeftNum;
		int64 Out = 0;
		while (Left < LeftNum)
		{
			const bool bTakeRight = Right < Num && Less(First[Right], Buffer[Left]);
			First[Out++] = bTakeRight ? MoveTemp(First[Right++]) : MoveTemp(Buffer[Left++]);
		}
		for (int64 Index = 0; Index < LeftNum; ++Index)
		{
			Buffer[Index].~T();
		}
		::operator delete(Buffer, std::align_val_t(alignof(T)));
	}
}
