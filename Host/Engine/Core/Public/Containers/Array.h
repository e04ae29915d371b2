// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Algo/IntroSort.h"
#include "Containers/AllowShrinking.h"
#include "Containers/ArrayView.h"
#include "Containers/ContainersFwd.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Less.h"
#include "Templates/Sorting.h"
#include "Templates/UnrealTemplate.h"

#include <initializer_list>
#include <new>
#include <type_traits>

namespace UE::Core::Private
{
	CORE_API void OnArrayChangedDuringIteration();
	[[noreturn]] CORE_API void OnElementOfSameContainer(const void* Element);
	[[noreturn]] CORE_API void OnContainerTooLarge(int64 Num);

	/** Room for Num elements of the given size and alignment; null for none. */
	CORE_API void* AllocateElements(int64 Num, std::size_t Size, std::size_t Alignment);
	/** Null is ignored. The numbers must be those of the allocation. */
	CORE_API void FreeElements(void* Elements, int64 Num, std::size_t Size, std::size_t Alignment);

	/** Iterator of range-for: reports when the container grew or shrank while it is being walked. */
	template<typename ElementType>
	struct TCheckedPointerIterator
	{
		const int32& CurrentNum;
		ElementType* Element;
		int32 InitialNum;

		ElementType& operator*() const { return *Element; }

		TCheckedPointerIterator& operator++()
		{
			++Element;
			return *this;
		}

		bool operator!=(const TCheckedPointerIterator& Other) const
		{
			if (CurrentNum != InitialNum) [[unlikely]]
			{
				OnArrayChangedDuringIteration();
			}
			return Element != Other.Element;
		}
	};
}

/**
 * A growable array. Access is range-checked; elements are moved, not copied, when it grows.
 * Growth is by half, so adding is constant on average. References to elements are good until the next change of length.
 */
template<typename InElementType>
class TArray
{
public:
	using ElementType = InElementType;
	using SizeType = int32;
	using RangedForIteratorType = UE::Core::Private::TCheckedPointerIterator<ElementType>;
	using RangedForConstIteratorType = UE::Core::Private::TCheckedPointerIterator<const ElementType>;

	TArray() = default;

	TArray(const ElementType* Ptr, SizeType Count) { Append(Ptr, Count); }
	TArray(std::initializer_list<ElementType> List) { Append(List.begin(), static_cast<SizeType>(List.size())); }
	TArray(const TArray& Other) { Append(Other.Data, Other.ArrayNum); }

	TArray(TArray&& Other) noexcept
		: Data(Exchange(Other.Data, nullptr))
		, ArrayNum(Exchange(Other.ArrayNum, 0))
		, ArrayMax(Exchange(Other.ArrayMax, 0))
	{
	}

	/** Converts element by element. */
	template<typename OtherElementType>
	requires(!std::is_same_v<std::remove_const_t<OtherElementType>, ElementType>) explicit TArray(const TArray<OtherElementType>& Other)
	{
		AppendConverted(Other.GetData(), Other.Num());
	}

	template<typename OtherElementType>
	explicit TArray(const TArrayView<OtherElementType>& Other)
	{
		AppendConverted(Other.GetData(), Other.Num());
	}

	~TArray()
	{
		DestroyRange(0, ArrayNum);
		UE::Core::Private::FreeElements(Data, ArrayMax, sizeof(ElementType), alignof(ElementType));
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			Reset(Other.ArrayNum);
			Append(Other.Data, Other.ArrayNum);
		}
		return *this;
	}

	TArray& operator=(TArray&& Other) noexcept
	{
		if (this != &Other)
		{
			TArray Old(MoveTemp(*this)); // goes last: destroying old elements may come back to this array
			Data = Exchange(Other.Data, nullptr);
			ArrayNum = Exchange(Other.ArrayNum, 0);
			ArrayMax = Exchange(Other.ArrayMax, 0);
		}
		return *this;
	}

	TArray& operator=(std::initializer_list<ElementType> List)
	{
		TArray Copy(List);
		return *this = MoveTemp(Copy);
	}

	TArray& operator=(const TArrayView<const ElementType>& Other)
	{
		TArray Copy(Other);
		return *this = MoveTemp(Copy);
	}

	// Reading

	SizeType Num() const { return ArrayNum; }
	SizeType GetSlack() const { return ArrayMax - ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }
	void RangeCheck(SizeType Index) const { UE::Core::Private::CheckArrayIndex(Index, ArrayNum); }
	ElementType* GetData() { return Data; }
	const ElementType* GetData() const { return Data; }

	ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return Data[Index];
	}

	const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return Data[Index];
	}

	ElementType& Last(SizeType IndexFromTheEnd = 0) { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }
	const ElementType& Last(SizeType IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }

	bool operator==(const TArray& Other) const
	{
		if (ArrayNum != Other.ArrayNum)
		{
			return false;
		}
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (!(Data[Index] == Other.Data[Index]))
			{
				return false;
			}
		}
		return true;
	}

	// Searching: the first match counts, INDEX_NONE or null when there is none

	SizeType Find(const ElementType& Item) const { return IndexOfByKey(Item); }

	template<typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template<typename PredicateType>
	SizeType IndexOfByPredicate(PredicateType Predicate) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Predicate(static_cast<const ElementType&>(Data[Index])))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template<typename PredicateType>
	SizeType FindLastByPredicate(PredicateType Predicate) const
	{
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Predicate(static_cast<const ElementType&>(Data[Index])))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template<typename PredicateType>
	ElementType* FindByPredicate(PredicateType Predicate)
	{
		return PointerTo(IndexOfByPredicate(MoveTemp(Predicate)));
	}

	template<typename PredicateType>
	const ElementType* FindByPredicate(PredicateType Predicate) const
	{
		return PointerTo(IndexOfByPredicate(MoveTemp(Predicate)));
	}

	template<typename PredicateType>
	TArray FilterByPredicate(PredicateType Predicate) const
	{
		TArray Result;
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Predicate(static_cast<const ElementType&>(Data[Index])))
			{
				Result.Add(Data[Index]);
			}
		}
		return Result;
	}

	template<typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}

	template<typename PredicateType>
	bool ContainsByPredicate(PredicateType Predicate) const
	{
		return IndexOfByPredicate(MoveTemp(Predicate)) != INDEX_NONE;
	}

	// Adding: Item must not be an element of this same array

	SizeType Add(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace(Item);
	}

	SizeType Add(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace(MoveTemp(Item));
	}

	ElementType& Add_GetRef(const ElementType& Item)
	{
		const SizeType Index = Add(Item); // first: it may move Data
		return Data[Index];
	}
	ElementType& Add_GetRef(ElementType&& Item)
	{
		const SizeType Index = Add(MoveTemp(Item)); // first: it may move Data
		return Data[Index];
	}

	template<typename... ArgTypes>
	SizeType Emplace(ArgTypes&&... Args)
	{
		MakeRoom(1);
		new (Data + ArrayNum) ElementType(Forward<ArgTypes>(Args)...);
		return ArrayNum++;
	}

	template<typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgTypes>(Args)...); // first: it may move Data
		return Data[Index];
	}

	/** Adds Item unless an equal one is there; returns the index of either. */
	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTemp(Item));
	}

	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		DefaultConstructRange(Index, Count);
		return Index;
	}

	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted(); // first: it may move Data
		return Data[Index];
	}

	/** For plain data only: the new elements are all zero bytes. */
	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		ZeroRange(Index, Count);
		return Index;
	}

	/** Makes room at the end without constructing; the caller does that at once. */
	SizeType AddUninitialized(SizeType Count = 1)
	{
		MakeRoom(Count);
		const SizeType OldNum = ArrayNum;
		ArrayNum += Count;
		return OldNum;
	}

	void Append(const TArray& Source)
	{
		checkf(this != &Source, TEXT("An array cannot be appended to itself"));
		Append(Source.Data, Source.ArrayNum);
	}

	/** Leaves Source empty. */
	void Append(TArray&& Source)
	{
		checkf(this != &Source, TEXT("An array cannot be appended to itself"));
		const SizeType Index = AddUninitialized(Source.ArrayNum);
		RelocateRange(Data + Index, Source.Data, Source.ArrayNum);
		Source.ArrayNum = 0;
	}

	template<typename ContainerType>
	requires(requires(const ContainerType& C) { ::GetData(C); ::GetNum(C); }) void Append(const ContainerType& Source)
	{
		AppendConverted(::GetData(Source), static_cast<SizeType>(::GetNum(Source)));
	}

	void Append(std::initializer_list<ElementType> List) { Append(List.begin(), static_cast<SizeType>(List.size())); }

	void Append(const ElementType* Ptr, SizeType Count)
	{
		if (Count > 0)
		{
			CheckAddress(Ptr);
			AppendConverted(Ptr, Count);
		}
	}

	/** Before the element at Index; Index may be Num(). */
	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		CheckAddress(&Item);
		return EmplaceAt(Index, Item);
	}

	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		CheckAddress(&Item);
		return EmplaceAt(Index, MoveTemp(Item));
	}

	template<typename... ArgTypes>
	SizeType EmplaceAt(SizeType Index, ArgTypes&&... Args)
	{
		InsertUninitialized(Index, 1);
		new (Data + Index) ElementType(Forward<ArgTypes>(Args)...);
		return Index;
	}

	// Removing: the rest keeps its order, except with ...Swap, which moves elements from the end into the gap

	void RemoveAt(SizeType Index, SizeType Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		UE::Core::Private::CheckArrayRange(Index, Count, ArrayNum);
		DestroyRange(Index, Count);
		RelocateRange(Data + Index, Data + Index + Count, ArrayNum - Index - Count);
		ArrayNum -= Count;
		ShrinkIf(AllowShrinking);
	}

	/** Removes every element equal to Item; returns how many. */
	SizeType Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}

	SizeType RemoveSingle(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index);
		return 1;
	}

	template<typename PredicateType>
	SizeType RemoveAll(const PredicateType& Predicate)
	{
		const SizeType OldNum = ArrayNum;
		SizeType Write = 0;
		for (SizeType Read = 0; Read < OldNum; ++Read)
		{
			if (Predicate(Data[Read]))
			{
				DestroyRange(Read, 1);
				continue;
			}
			if (Write != Read)
			{
				RelocateRange(Data + Write, Data + Read, 1);
			}
			++Write;
		}
		ArrayNum = Write;
		return OldNum - Write;
	}

	/** Takes the last element out; there must be one. */
	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(ArrayNum - 1);
		ElementType Result = MoveTempIfPossible(Data[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}

	/** Removes everything and keeps memory for Slack elements. */
	void Empty(SizeType Slack = 0)
	{
		DestroyAll();
		if (ArrayMax != Slack)
		{
			Reallocate(Slack);
		}
	}

	/** Removes everything and keeps the memory. */
	void Reset(SizeType NewSize = 0)
	{
		DestroyAll();
		Reserve(NewSize);
	}

	void Reserve(SizeType Number)
	{
		if (Number > ArrayMax)
		{
			Reallocate(Number);
		}
	}

	/** New elements are default constructed. */
	void SetNum(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddDefaulted(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNumZeroed(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddZeroed(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void Init(const ElementType& Element, SizeType Number)
	{
		Empty(Number);
		for (SizeType Index = 0; Index < Number; ++Index)
		{
			Add(Element);
		}
	}

	// Order

	void Swap(SizeType FirstIndex, SizeType SecondIndex)
	{
		RangeCheck(FirstIndex);
		RangeCheck(SecondIndex);
		if (FirstIndex != SecondIndex)
		{
			::Swap(Data[FirstIndex], Data[SecondIndex]);
		}
	}

	/** By operator<, not stable. Elements that are pointers are compared by what they point to; so in all three. */
	void Sort() { Sort(TLess<>()); }

	template<typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		AlgoImpl::Sort(Data, ArrayNum, TDereferenceWrapper<ElementType, PredicateType>(Predicate));
	}

	template<typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		AlgoImpl::StableSort(Data, ArrayNum, TDereferenceWrapper<ElementType, PredicateType>(Predicate));
	}

	// Iteration

	RangedForIteratorType begin() { return {ArrayNum, Data, ArrayNum}; }
	RangedForIteratorType end() { return {ArrayNum, Data + ArrayNum, ArrayNum}; }
	RangedForConstIteratorType begin() const { return {ArrayNum, Data, ArrayNum}; }
	RangedForConstIteratorType end() const { return {ArrayNum, Data + ArrayNum, ArrayNum}; }

private:
	ElementType* PointerTo(SizeType Index) { return Index == INDEX_NONE ? nullptr : Data + Index; }
	const ElementType* PointerTo(SizeType Index) const { return Index == INDEX_NONE ? nullptr : Data + Index; }

	void CheckAddress(const ElementType* Address) const
	{
		if (Address >= Data && Address < Data + ArrayMax) [[unlikely]]
		{
			UE::Core::Private::OnElementOfSameContainer(Address);
		}
	}

	template<typename OtherElementType>
	void AppendConverted(const OtherElementType* Ptr, SizeType Count)
	{
		MakeRoom(Count);
		if constexpr (std::is_same_v<OtherElementType, ElementType> && std::is_trivially_copyable_v<ElementType>)
		{
			if (Count == 0)
			{
				return; // there may be no memory to copy to
			}
			__builtin_memcpy(static_cast<void*>(Data + ArrayNum), static_cast<const void*>(Ptr), sizeof(ElementType) * static_cast<std::size_t>(Count));
			ArrayNum += Count;
			return;
		}
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			new (Data + ArrayNum) ElementType(Ptr[Index]);
			++ArrayNum;
		}
	}

	/** Makes room for Count more elements after the last. */
	void MakeRoom(SizeType Count)
	{
		UE::Core::Private::CheckArrayRange(0, Count, Count);
		const int64 NewNum = static_cast<int64>(ArrayNum) + Count;
		if (NewNum > ArrayMax)
		{
			Reallocate(GrownMax(NewNum));
		}
	}

	void InsertUninitialized(SizeType Index, SizeType Count)
	{
		UE::Core::Private::CheckArrayRange(Index, 0, ArrayNum);
		const SizeType OldNum = AddUninitialized(Count);
		RelocateRange(Data + Index + Count, Data + Index, OldNum - Index);
	}

	void DestroyAll()
	{
		const SizeType OldNum = ArrayNum;
		ArrayNum = 0; // first: a destructor that looks at this array finds it empty
		DestroyRange(0, OldNum);
	}

	void DestroyRange(SizeType Index, SizeType Count)
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (SizeType Offset = 0; Offset < Count; ++Offset)
			{
				Data[Index + Offset].~ElementType();
			}
		}
	}

	void DefaultConstructRange(SizeType Index, SizeType Count)
	{
		for (SizeType Offset = 0; Offset < Count; ++Offset)
		{
			new (Data + Index + Offset) ElementType();
		}
	}

	void ZeroRange(SizeType Index, SizeType Count)
	{
		__builtin_memset(static_cast<void*>(Data + Index), 0, sizeof(ElementType) * static_cast<std::size_t>(Count));
	}

	/** Moves elements to raw memory and leaves raw memory behind; the two ranges may overlap. */
	static void RelocateRange(ElementType* Target, ElementType* Source, SizeType Count)
	{
		if (Count <= 0 || Target == Source)
		{
			return;
		}
		if constexpr (std::is_trivially_copyable_v<ElementType>)
		{
			__builtin_memmove(static_cast<void*>(Target), static_cast<const void*>(Source), sizeof(ElementType) * static_cast<std::size_t>(Count));
		}
		else if (Target < Source)
		{
			for (SizeType Index = 0; Index < Count; ++Index)
			{
				RelocateOne(Target + Index, Source + Index);
			}
		}
		else
		{
			for (SizeType Index = Count - 1; Index >= 0; --Index)
			{
				RelocateOne(Target + Index, Source + Index);
			}
		}
	}

	static void RelocateOne(ElementType* Target, ElementType* Source)
	{
		new (Target) ElementType(MoveTempIfPossible(*Source));
		Source->~ElementType();
	}

	SizeType GrownMax(int64 NewNum) const
	{
		const int64 Grown = static_cast<int64>(ArrayMax) + ArrayMax / 2 + 4;
		const int64 NewMax = Grown > NewNum ? Grown : NewNum;
		if (NewNum > MAX_int32) [[unlikely]]
		{
			UE::Core::Private::OnContainerTooLarge(NewNum);
		}
		return static_cast<SizeType>(NewMax < MAX_int32 ? NewMax : MAX_int32);
	}

	void ShrinkIf(EAllowShrinking AllowShrinking)
	{
		// Memory goes back only when most of it is unused, so that a stack does not reallocate at every step.
		if (AllowShrinking == EAllowShrinking::Yes && ArrayMax > 64 && ArrayNum < ArrayMax / 4)
		{
			Reallocate(ArrayNum * 2);
		}
	}

	void Reallocate(SizeType NewMax)
	{
		ElementType* const NewData = static_cast<ElementType*>(UE::Core::Private::AllocateElements(NewMax, sizeof(ElementType), alignof(ElementType)));
		if (NewMax > 0) // else there is no memory, and the compiler warns of copying there
		{
			RelocateRange(NewData, Data, ArrayNum);
		}
		UE::Core::Private::FreeElements(Data, ArrayMax, sizeof(ElementType), alignof(ElementType));
		Data = NewData;
		ArrayMax = NewMax;
	}

	ElementType* Data = nullptr; // ArrayNum living elements, then room for ArrayMax - ArrayNum more
	SizeType ArrayNum = 0;
	SizeType ArrayMax = 0;
};
