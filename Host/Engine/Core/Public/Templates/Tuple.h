// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

namespace UE::Core::Private::Tuple
{
	template<uint32 Index, typename Type>
	struct TElement
	{
		Type Value;
	};

	template<typename Indices, typename... Types>
	struct TStorage;

	template<uint32... Indices>
	struct TIndices
	{
	};

	template<uint32 Num, uint32... Indices>
	struct TMakeIndices : TMakeIndices<Num - 1, Num - 1, Indices...>
	{
	};

	template<uint32... Indices>
	struct TMakeIndices<0, Indices...>
	{
		using Type = TIndices<Indices...>;
	};

	template<uint32... Indices, typename... Types>
	struct TStorage<TIndices<Indices...>, Types...> : TElement<Indices, Types>...
	{
		TStorage() = default;

		template<typename... ArgTypes>
		explicit TStorage(int, ArgTypes&&... Args)
			: TElement<Indices, Types>{Types(::Forward<ArgTypes>(Args))}...
		{
		}

		bool operator==([[maybe_unused]] const TStorage& Other) const
		{
			return (... && (Element<Indices>(*this) == Element<Indices>(Other)));
		}

		uint32 Hash() const
		{
			uint32 Result = 0;
			((Result = HashCombine(Result, GetTypeHash(Element<Indices>(*this)))), ...);
			return Result;
		}

		/** Calls Func with Args first and the elements after them. */
		template<typename FuncType, typename... ArgTypes>
		decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
		{
			return Func(::Forward<ArgTypes>(Args)..., Element<Indices>(*this)...);
		}

		template<typename FuncType, typename... ArgTypes>
		decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args)
		{
			return Func(::Forward<ArgTypes>(Args)..., Element<Indices>(*this)...);
		}

		template<uint32 Index, typename Type>
		static Type& Element(TElement<Index, Type>& Holder)
		{
			return Holder.Value;
		}

		template<uint32 Index, typename Type>
		static const Type& Element(const TElement<Index, Type>& Holder)
		{
			return Holder.Value;
		}
	};

	template<typename... Types>
	using TStorageFor = TStorage<typename TMakeIndices<sizeof...(Types)>::Type, Types...>;
}

/** A row of values of different types, read with Get<Index>(). Two values make a pair: see the specialization below. */
template<typename... Types>
class TTuple
{
public:
	TTuple() = default;

	template<typename... ArgTypes>
	requires(sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) > 0 && (... && std::is_constructible_v<Types, ArgTypes&&>))
		TTuple(ArgTypes&&... Args)
		: Storage(0, ::Forward<ArgTypes>(Args)...)
	{
	}

	template<typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Storage.ApplyAfter(::Forward<FuncType>(Func), ::Forward<ArgTypes>(Args)...);
	}

	template<typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args)
	{
		return Storage.ApplyAfter(::Forward<FuncType>(Func), ::Forward<ArgTypes>(Args)...);
	}

	[[nodiscard]] friend uint32 GetTypeHash(const TTuple& Tuple) { return Tuple.Storage.Hash(); }

private:
	using FStorage = UE::Core::Private::Tuple::TStorageFor<Types...>;

	FStorage Storage;
};

/** A pair: what a map stores. Works with structured bindings. */
template<typename InKeyType, typename InValueType>
class TTuple<InKeyType, InValueType>
{
public:
	using KeyType = InKeyType;
	using ValueType = InValueType;

	InKeyType Key;
	InValueType Value;

	TTuple()
		: Key()
		, Value()
	{
	}

	template<typename ArgKeyType = InKeyType, typename ArgValueType = InValueType>
	requires(std::is_constructible_v<InKeyType, ArgKeyType&&>&& std::is_constructible_v<InValueType, ArgValueType&&>)
		TTuple(ArgKeyType&& InKey, ArgValueType&& InValue)
		: Key(::Forward<ArgKeyType>(InKey))
		, Value(::Forward<ArgValueType>(InValue))
	{
	}

	template<typename OtherKeyType, typename OtherValueType>
	requires(!(std::is_same_v<OtherKeyType, InKeyType> && std::is_same_v<OtherValueType, InValueType>)&&std::is_constructible_v<InKeyType, const OtherKeyType&> && std::is_constructible_v<InValueType, const OtherValueType&>)
		TTuple(const TTuple<OtherKeyType, OtherValueType>& Other)
		: Key(Other.Key)
		, Value(Other.Value)
	{
	}

	template<typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Func(::Forward<ArgTypes>(Args)..., Key, Value);
	}

	template<typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args)
	{
		return Func(::Forward<ArgTypes>(Args)..., Key, Value);
	}

	[[nodiscard]] friend uint32 GetTypeHash(const TTuple& Pair) { return HashCombine(GetTypeHash(Pair.Key), GetTypeHash(Pair.Value)); }
};

template<typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;
