// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/ContainersFwd.h"
#include "Templates/TypeHash.h"

/** How a set finds the key in an element, compares and hashes it. */
template<typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	using KeyType = InKeyType;
	using KeyInitType = const InKeyType&;
	using ElementInitType = const ElementType&;
	static constexpr bool bAllowDuplicateKeys = bInAllowDuplicateKeys;
};

/** The element is its own key; compared with == and hashed with GetTypeHash. */
template<typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>
{
	static const ElementType& GetSetKey(const ElementType& Element) { return Element; }
	static bool Matches(const ElementType& A, const ElementType& B) { return A == B; }
	static uint32 GetKeyHash(const ElementType& Key) { return GetTypeHash(Key); }
};

/** The place of an element in a set: stays the same until that element is removed. */
class FSetElementId
{
public:
	FSetElementId() = default;

	static FSetElementId FromInteger(int32 InIndex)
	{
		FSetElementId Id;
		Id.Index = InIndex;
		return Id;
	}

	int32 AsInteger() const { return Index; }
	bool operator==(const FSetElementId& Other) const = default;

private:
	int32 Index = INDEX_NONE;
};

/**
 * A hash set whose elements sit in numbered slots.
 *
 * Iteration goes by slot: in the order of adding as long as nothing is removed. A removed element leaves its slot free, and the
 * next element added takes the slot that was freed last. Adding an element that equals one in the set replaces that one in place.
 */
template<typename InElementType, typename KeyFuncs>
class TSet
{
	/** Holds an element or is free. */
	struct FSlot
	{
		union
		{
			InElementType Element;
		};
		uint32 Hash = 0;
		int32 Link = INDEX_NONE; // used: next slot of the same bucket; free: next free slot
		bool bUsed = false;

		FSlot() {}

		FSlot(const FSlot& Other)
			: Hash(Other.Hash)
			, Link(Other.Link)
			, bUsed(Other.bUsed)
		{
			if (bUsed)
			{
				new (&Element) InElementType(Other.Element);
			}
		}

		FSlot(FSlot&& Other) noexcept
			: Hash(Other.Hash)
			, Link(Other.Link)
			, bUsed(Other.bUsed)
		{
			if (bUsed)
			{
				new (&Element) InElementType(MoveTemp(Other.Element));
			}
		}

		FSlot& operator=(const FSlot&) = delete;

		~FSlot()
		{
			if (bUsed)
			{
				Element.~InElementType();
			}
		}
	};

	/** For range-for: reports when the set grew or shrank while it is being walked. */
	template<typename SetType, typename ItElementType>
	class TRangedForIterator
	{
	public:
		TRangedForIterator(SetType& InSet, int32 StartIndex)
			: Set(&InSet)
			, Index(InSet.NextUsed(StartIndex))
			, InitialNum(InSet.Num())
		{
		}

		ItElementType& operator*() const { return Set->Slots[Index].Element; }

		TRangedForIterator& operator++()
		{
			Index = Set->NextUsed(Index + 1);
			return *this;
		}

		bool operator!=(const TRangedForIterator& Other) const
		{
			if (Set->Num() != InitialNum) [[unlikely]]
			{
				UE::Core::Private::OnArrayChangedDuringIteration();
			}
			return Index < Other.Index;
		}

	private:
		SetType* Set;
		int32 Index;
		int32 InitialNum;
	};

public:
	using ElementType = InElementType;
	using KeyFuncsType = KeyFuncs;
	using KeyType = typename KeyFuncs::KeyType;

	TSet() = default;
	TSet(const TSet&) = default;
	TSet(std::initializer_list<ElementType> List) { Append(List); }
	explicit TSet(const TArray<ElementType>& Array) { Append(Array); }

	TSet(TSet&& Other) noexcept
		: Slots(MoveTemp(Other.Slots))
		, Buckets(MoveTemp(Other.Buckets))
		, FirstFree(Exchange(Other.FirstFree, INDEX_NONE))
		, NumUsed(Exchange(Other.NumUsed, 0))
	{
	}

	~TSet() = default;

	TSet& operator=(const TSet& Other)
	{
		if (this != &Other)
		{
			TSet Copy(Other);
			*this = MoveTemp(Copy);
		}
		return *this;
	}

	TSet& operator=(TSet&& Other) noexcept
	{
		if (this != &Other)
		{
			TSet Old(MoveTemp(*this)); // goes last: destroying old elements may come back to this set
			Slots = MoveTemp(Other.Slots);
			Buckets = MoveTemp(Other.Buckets);
			FirstFree = Exchange(Other.FirstFree, INDEX_NONE);
			NumUsed = Exchange(Other.NumUsed, 0);
		}
		return *this;
	}

	TSet& operator=(std::initializer_list<ElementType> List)
	{
		Reset();
		Append(List);
		return *this;
	}

	int32 Num() const { return NumUsed; }
	bool IsEmpty() const { return NumUsed == 0; }
	bool IsValidId(FSetElementId Id) const { return Slots.IsValidIndex(Id.AsInteger()) && Slots[Id.AsInteger()].bUsed; }

	ElementType& operator[](FSetElementId Id)
	{
		check(IsValidId(Id));
		return Slots[Id.AsInteger()].Element;
	}

	const ElementType& operator[](FSetElementId Id) const
	{
		check(IsValidId(Id));
		return Slots[Id.AsInteger()].Element;
	}

	FSetElementId Add(const ElementType& Element, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(Element, bIsAlreadyInSetPtr); }
	FSetElementId Add(ElementType&& Element, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(MoveTemp(Element), bIsAlreadyInSetPtr); }

	template<typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		ElementType New(Forward<ArgType>(Arg)); // before any slot moves: the argument may live in this set
		const uint32 Hash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(New));
		const int32 Existing = KeyFuncs::bAllowDuplicateKeys ? INDEX_NONE : FindSlot(KeyFuncs::GetSetKey(New), Hash);
		if (bIsAlreadyInSetPtr)
		{
			*bIsAlreadyInSetPtr = Existing != INDEX_NONE;
		}
		if (Existing != INDEX_NONE)
		{
			[[maybe_unused]] const ElementType Old(MoveTemp(Slots[Existing].Element));
			Slots[Existing].Element.~ElementType();
			new (&Slots[Existing].Element) ElementType(MoveTemp(New));
			return FSetElementId::FromInteger(Existing);
		}
		return FSetElementId::FromInteger(AddSlot(MoveTemp(New), Hash));
	}

	template<typename ContainerType>
	void Append(const ContainerType& Elements)
	{
		for (const ElementType& Element : Elements)
		{
			Add(Element);
		}
	}

	void Append(std::initializer_list<ElementType> List)
	{
		Reserve(Num() + static_cast<int32>(List.size()));
		for (const ElementType& Element : List)
		{
			Add(Element);
		}
	}

	bool Contains(const KeyType& Key) const { return FindSlot(Key) != INDEX_NONE; }

	/** Null when there is none. */
	ElementType* Find(const KeyType& Key)
	{
		const int32 Index = FindSlot(Key);
		return Index == INDEX_NONE ? nullptr : &Slots[Index].Element;
	}

	const ElementType* Find(const KeyType& Key) const { return const_cast<TSet*>(this)->Find(Key); }

	/** Where keys may be equal: visits the elements with this key, the one added last first, until Visitor returns false. */
	template<typename VisitorType>
	void VisitMatches(const KeyType& Key, const VisitorType& Visitor) const
	{
		const uint32 Hash = KeyFuncs::GetKeyHash(Key);
		for (int32 Index = FirstOfBucket(Hash); Index != INDEX_NONE;)
		{
			const int32 Next = Slots[Index].Link;
			if (IsMatch(Index, Key, Hash) && !Visitor(FSetElementId::FromInteger(Index)))
			{
				return;
			}
			Index = Next;
		}
	}

	/** Removes all elements with this key; returns how many. */
	int32 Remove(const KeyType& Key)
	{
		const KeyType KeyCopy(Key); // Key may be part of an element that goes
		const int32 OldNum = NumUsed;
		for (int32 Index = FindSlot(KeyCopy); Index != INDEX_NONE; Index = KeyFuncs::bAllowDuplicateKeys ? FindSlot(KeyCopy) : INDEX_NONE)
		{
			RemoveSlot(Index);
		}
		return OldNum - NumUsed;
	}

	void Remove(FSetElementId Id)
	{
		check(IsValidId(Id));
		RemoveSlot(Id.AsInteger());
	}

	/** Removes everything and gives the memory back, except for Slack elements. */
	void Empty(int32 Slack = 0)
	{
		Reset();
		Slots.Empty(Slack);
		Buckets.Empty();
	}

	/** Removes everything and keeps the memory. */
	void Reset()
	{
		for (int32& Bucket : Buckets)
		{
			Bucket = INDEX_NONE;
		}
		FirstFree = INDEX_NONE;
		NumUsed = 0;
		Slots.Reset();
	}

	void Reserve(int32 Number)
	{
		Slots.Reserve(Number);
		if (Number > Buckets.Num())
		{
			Rehash(Number);
		}
	}

	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(NumUsed);
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	auto begin() { return TRangedForIterator<TSet, ElementType>(*this, 0); }
	auto end() { return TRangedForIterator<TSet, ElementType>(*this, Slots.Num()); }
	auto begin() const { return TRangedForIterator<const TSet, const ElementType>(*this, 0); }
	auto end() const { return TRangedForIterator<const TSet, const ElementType>(*this, Slots.Num()); }

private:
	int32 FirstOfBucket(uint32 Hash) const { return Buckets.IsEmpty() ? INDEX_NONE : Buckets.GetData()[BucketOf(Hash)]; }
	int32 BucketOf(uint32 Hash) const { return static_cast<int32>((Hash * 0x9e3779b1u >> 7) & static_cast<uint32>(Buckets.Num() - 1)); }

	bool IsMatch(int32 Index, const KeyType& Key, uint32 Hash) const
	{
		const FSlot& Slot = Slots.GetData()[Index];
		return Slot.Hash == Hash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Slot.Element), Key);
	}

	int32 FindSlot(const KeyType& Key) const { return NumUsed == 0 ? INDEX_NONE : FindSlot(Key, KeyFuncs::GetKeyHash(Key)); }

	int32 FindSlot(const KeyType& Key, uint32 Hash) const
	{
		int32 Index = FirstOfBucket(Hash);
		while (Index != INDEX_NONE && !IsMatch(Index, Key, Hash))
		{
			Index = Slots.GetData()[Index].Link;
		}
		return Index;
	}

	int32 NextUsed(int32 Index) const
	{
		while (Index < Slots.Num() && !Slots.GetData()[Index].bUsed)
		{
			++Index;
		}
		return Index;
	}

	int32 AddSlot(ElementType&& Element, uint32 Hash)
	{
		int32 Index = FirstFree;
		if (Index != INDEX_NONE)
		{
			FirstFree = Slots[Index].Link;
		}
		else
		{
			Index = Slots.AddDefaulted();
			if (Slots.Num() > Buckets.Num())
			{
				Rehash(Slots.Num());
			}
		}
		FSlot& Slot = Slots[Index];
		new (&Slot.Element) ElementType(MoveTemp(Element));
		Slot.bUsed = true;
		Slot.Hash = Hash;
		LinkToBucket(Index);
		++NumUsed;
		return Index;
	}

	void LinkToBucket(int32 Index)
	{
		int32& First = Buckets[BucketOf(Slots[Index].Hash)];
		Slots[Index].Link = First;
		First = Index;
	}

	void RemoveSlot(int32 Index)
	{
		FSlot& Slot = Slots[Index];
		int32* Link = &Buckets[BucketOf(Slot.Hash)];
		while (*Link != Index)
		{
			Link = &Slots[*Link].Link;
		}
		*Link = Slot.Link;

		[[maybe_unused]] const ElementType Removed(MoveTemp(Slot.Element)); // goes last: its destructor may come back to this set
		Slot.Element.~ElementType();
		Slot.bUsed = false;
		Slot.Link = FirstFree;
		FirstFree = Index;
		--NumUsed;
	}

	/** Buckets are a power of two and at least as many as the slots. */
	void Rehash(int32 NumSlots)
	{
		int32 NumBuckets = 4;
		while (NumBuckets < NumSlots)
		{
			NumBuckets *= 2;
		}
		Buckets.Init(INDEX_NONE, NumBuckets);
		for (int32 Index = NextUsed(0); Index < Slots.Num(); Index = NextUsed(Index + 1))
		{
			LinkToBucket(Index);
		}
	}

	TArray<FSlot> Slots;
	TArray<int32> Buckets; // first slot of each bucket
	int32 FirstFree = INDEX_NONE;
	int32 NumUsed = 0;
};
