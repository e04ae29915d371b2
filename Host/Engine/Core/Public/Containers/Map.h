// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Set.h"
#include "Templates/Tuple.h"

/** Pairs are found by their key, which is compared with == and hashed with GetTypeHash. Derive and hide Matches and GetKeyHash for other rules. */
template<typename InKeyType, typename InValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : BaseKeyFuncs<TPair<InKeyType, InValueType>, InKeyType, bInAllowDuplicateKeys>
{
	static const InKeyType& GetSetKey(const TPair<InKeyType, InValueType>& Element) { return Element.Key; }
	static bool Matches(const InKeyType& A, const InKeyType& B) { return A == B; }
	static uint32 GetKeyHash(const InKeyType& Key) { return GetTypeHash(Key); }
};

/** What TMap and TMultiMap share. Iteration yields pairs in the order described at TSet. */
template<typename InKeyType, typename InValueType, typename KeyFuncs>
class TMapBase
{
public:
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = TPair<InKeyType, InValueType>;

	int32 Num() const { return Pairs.Num(); }
	void Empty(int32 Slack = 0) { Pairs.Empty(Slack); }
	void Reset() { Pairs.Reset(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }

	/** A map replaces an equal key with its value; a multi map adds another pair. */
	ValueType& Add(const KeyType& Key, const ValueType& Value) { return Emplace(Key, Value); }
	ValueType& Add(const KeyType& Key, ValueType&& Value) { return Emplace(Key, MoveTempIfPossible(Value)); }
	ValueType& Add(KeyType&& Key, const ValueType& Value) { return Emplace(MoveTempIfPossible(Key), Value); }
	ValueType& Add(KeyType&& Key, ValueType&& Value) { return Emplace(MoveTempIfPossible(Key), MoveTempIfPossible(Value)); }

	/** With a default constructed value. */
	ValueType& Add(const KeyType& Key) { return Emplace(Key, ValueType()); }
	ValueType& Add(KeyType&& Key) { return Emplace(MoveTempIfPossible(Key), ValueType()); }

	template<typename ArgKeyType, typename ArgValueType>
	ValueType& Emplace(ArgKeyType&& Key, ArgValueType&& Value)
	{
		return Pairs[Pairs.Emplace(ElementType(Forward<ArgKeyType>(Key), Forward<ArgValueType>(Value)))].Value;
	}

	bool Contains(const KeyType& Key) const { return Pairs.Contains(Key); }

	/** Null when there is none; the value added last when a multi map has several. */
	ValueType* Find(const KeyType& Key)
	{
		ElementType* const Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}

	const ValueType* Find(const KeyType& Key) const { return const_cast<TMapBase*>(this)->Find(Key); }

	/** A copy of the value, or a default constructed one. */
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* const Value = Find(Key);
		return Value ? *Value : ValueType();
	}
	ValueType& FindChecked(const KeyType& Key)
	{
		ValueType* const Value = Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	const ValueType& FindChecked(const KeyType& Key) const { return const_cast<TMapBase*>(this)->FindChecked(Key); }

	/** The value of Key, which is added with a default constructed one when it is missing. */
	ValueType& FindOrAdd(const KeyType& Key)
	{
		ValueType* const Value = Find(Key);
		return Value ? *Value : Add(Key);
	}

	ValueType& FindOrAdd(KeyType&& Key)
	{
		ValueType* const Value = Find(Key);
		return Value ? *Value : Add(MoveTemp(Key));
	}

	template<typename ArgValueType>
	ValueType& FindOrAdd(const KeyType& Key, ArgValueType&& NewValue)
	{
		ValueType* const Value = Find(Key);
		return Value ? *Value : Emplace(Key, Forward<ArgValueType>(NewValue));
	}

	/** Removes every pair with this key; returns how many. */
	int32 Remove(const KeyType& Key) { return Pairs.Remove(Key); }

	/** Each key once, in iteration order; what OutKeys held is gone. */
	int32 GetKeys(TArray<KeyType>& OutKeys) const
	{
		TSet<KeyType> Seen; // a multi map can meet a key again
		OutKeys.Empty(Num());
		for (const ElementType& Pair : Pairs)
		{
			bool bSeen = false;
			if constexpr (KeyFuncs::bAllowDuplicateKeys)
			{
				Seen.Add(Pair.Key, &bSeen);
			}
			if (!bSeen)
			{
				OutKeys.Add(Pair.Key);
			}
		}
		return OutKeys.Num();
	}

	int32 GetKeys(TSet<KeyType>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	// Sorting changes the iteration order; keys and values that are pointers are compared by what they point to.

	auto begin() { return Pairs.begin(); }
	auto end() { return Pairs.end(); }
	auto begin() const { return Pairs.begin(); }
	auto end() const { return Pairs.end(); }

protected:
	TSet<ElementType, KeyFuncs> Pairs;
};

/** One value per key. */
template<typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
class TMap : public TMapBase<KeyType, ValueType, KeyFuncs>
{
	using Super = TMapBase<KeyType, ValueType, KeyFuncs>;

public:
	using typename Super::ElementType;

	TMap() = default;

	TMap(std::initializer_list<ElementType> List)
	{
		this->Reserve(static_cast<int32>(List.size()));
		Append(List);
	}

	TMap& operator=(std::initializer_list<ElementType> List)
	{
		this->Reset();
		Append(List);
		return *this;
	}

	/** The value of Key, which must be there. */
	ValueType& operator[](const KeyType& Key) { return this->FindChecked(Key); }
	const ValueType& operator[](const KeyType& Key) const { return this->FindChecked(Key); }

	/** Adds all pairs; equal keys are replaced. */
	void Append(const TMap& Other)
	{
		for (const ElementType& Pair : Other)
		{
			this->Add(Pair.Key, Pair.Value);
		}
	}

	/** Leaves Other empty. */
	void Append(TMap&& Other)
	{
		for (ElementType& Pair : Other)
		{
			this->Add(MoveTemp(Pair.Key), MoveTemp(Pair.Value));
		}
		Other.Reset();
	}

	void Append(std::initializer_list<ElementType> List)
	{
		for (const ElementType& Pair : List)
		{
			this->Add(Pair.Key, Pair.Value);
		}
	}
};

/** Any number of values per key. */
template<typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
class TMultiMap : public TMapBase<KeyType, ValueType, KeyFuncs>
{
	using Super = TMapBase<KeyType, ValueType, KeyFuncs>;

public:
	using Super::Num;
	using Super::Remove;
	using typename Super::ElementType;

	TMultiMap() = default;

	/** Appends the values of Key to OutValues: the one added last first, or in the order of adding. */
	void MultiFind(const KeyType& Key, TArray<ValueType>& OutValues, bool bMaintainOrder = false) const
	{
		const int32 Start = OutValues.Num();
		this->Pairs.VisitMatches(Key, [this, &OutValues](FSetElementId Id) {
			OutValues.Add(this->Pairs[Id].Value);
			return true;
		});
		for (int32 First = Start, Last = OutValues.Num() - 1; bMaintainOrder && First < Last; ++First, --Last)
		{
			OutValues.Swap(First, Last);
		}
	}
};
