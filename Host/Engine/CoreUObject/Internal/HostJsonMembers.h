// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostJson.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

/**
 * The members of one object of an FHostJson, with as much of a map's interface as documents need that are read whole or written whole:
 * they grow, and shrink rarely. Few members are searched one by one; more have a hash table beside them.
 */
template<class Key, class T, class IgnoredLess, class Allocator>
class THostJsonMembers
{
public:
	using key_type = Key;
	using mapped_type = T;
	using value_type = std::pair<Key, T>; // unlike a map's, it moves when the members do
	using container_type = std::vector<value_type>;
	using iterator = typename container_type::iterator;
	using const_iterator = typename container_type::const_iterator;
	using size_type = typename container_type::size_type;
	using difference_type = typename container_type::difference_type;
	using key_compare = std::equal_to<>;

	iterator begin() { return Members.begin(); }
	iterator end() { return Members.end(); }
	const_iterator begin() const { return Members.begin(); }
	const_iterator end() const { return Members.end(); }
	const_iterator cbegin() const { return Members.begin(); }
	const_iterator cend() const { return Members.end(); }
	bool empty() const { return Members.empty(); }
	size_type size() const { return Members.size(); }
	size_type max_size() const { return Members.max_size(); }

	iterator find(std::string_view Name) { return begin() + static_cast<difference_type>(IndexOf(Name)); }
	const_iterator find(std::string_view Name) const { return begin() + static_cast<difference_type>(IndexOf(Name)); }

	/** What is there already stays. */
	template<class KeyType>
	std::pair<iterator, bool> emplace(KeyType&& Name, T&& Value)
	{
		const iterator Known = find(Name);
		if (Known != end())
		{
			return {Known, false};
		}
		Members.emplace_back(std::forward<KeyType>(Name), std::move(Value));
		EnterLast();
		return {std::prev(end()), true};
	}
	template<class KeyType>
	T& operator[](KeyType&& Name)
	{
		return emplace(std::forward<KeyType>(Name), T()).first->second;
	}

	/** Takes as long as the object is large. */
	iterator erase(iterator Member)
	{
		const iterator Next = Members.erase(Member);
		EnterAll();
		return Next;
	}

	void clear()
	{
		Members.clear();
		Slots.clear();
	}

	bool operator==(const THostJsonMembers& Other) const { return Members == Other.Members; }

private:
	static constexpr size_type MaxPlain = 16; // so many are as quickly compared as one is hashed

	/** Of the member, or their number. */
	size_type IndexOf(std::string_view Name) const
	{
		if (Slots.empty())
		{
			size_type Index = 0;
			while (Index < Members.size() && Members[Index].first != Name)
			{
				++Index;
			}
			return Index;
		}
		const size_type Mask = Slots.size() - 1;
		for (size_type Slot = std::hash<std::string_view>()(Name) & Mask; Slots[Slot] != FreeSlot; Slot = (Slot + 1) & Mask)
		{
			if (Members[Slots[Slot]].first == Name)
			{
				return Slots[Slot];
			}
		}
		return Members.size();
	}

	/** Brings the table in step with one more member. */
	void EnterLast()
	{
		if (Members.size() * 2 > Slots.size())
		{
			EnterAll();
			return;
		}
		Enter(Members.size() - 1);
	}

	void EnterAll()
	{
		Slots.clear();
		if (Members.size() > MaxPlain)
		{
			Slots.assign(std::bit_ceil(Members.size() * 4), FreeSlot);
			for (size_type Index = 0; Index < Members.size(); ++Index)
			{
				Enter(Index);
			}
		}
	}

	void Enter(size_type Index)
	{
		const size_type Mask = Slots.size() - 1;
		size_type Slot = std::hash<std::string_view>()(Members[Index].first) & Mask;
		while (Slots[Slot] != FreeSlot)
		{
			Slot = (Slot + 1) & Mask;
		}
		Slots[Slot] = static_cast<std::uint32_t>(Index);
	}

	static constexpr std::uint32_t FreeSlot = UINT32_MAX;

	container_type Members;
	std::vector<std::uint32_t> Slots; // indices of members by hash; a power of two, at most half full; empty while there are few
};
