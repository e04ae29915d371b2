// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <tuple>
#include <type_traits>
#include <utility>

namespace UE::Reflection
{
	/**
	 * The parameters of one call, laid out like a struct with these members in this order, the result last.
	 * References are stored as values; CopyBack() hands non-const ones back to the caller.
	 */
	template<typename TResult, typename... TParams>
	class TParameterBlock
	{
		static constexpr bool bHasResult = !std::is_void_v<TResult>;
		struct FNothing
		{
		};
		template<typename T>
		using TStored = std::remove_const_t<std::remove_reference_t<T>>;
		using FResultSlot = std::conditional_t<bHasResult, TStored<TResult>, FNothing>;
		using FSlots = std::tuple<TStored<TParams>..., FResultSlot>;

		static constexpr std::size_t NumParams = sizeof...(TParams);
		static constexpr std::size_t NumSlots = NumParams + (bHasResult ? 1 : 0);

		struct FLayout
		{
			std::array<std::size_t, NumParams + 1> Offsets{};
			std::size_t Size = 0;
			std::size_t Align = 1;
		};

		static constexpr FLayout MakeLayout()
		{
			constexpr std::size_t Sizes[] = {sizeof(TStored<TParams>)..., sizeof(FResultSlot)};
			constexpr std::size_t Aligns[] = {alignof(TStored<TParams>)..., alignof(FResultSlot)};
			FLayout Result;
			for (std::size_t Slot = 0; Slot < NumSlots; ++Slot)
			{
				Result.Size = (Result.Size + Aligns[Slot] - 1) / Aligns[Slot] * Aligns[Slot];
				Result.Offsets[Slot] = Result.Size;
				Result.Size += Sizes[Slot];
				Result.Align = Aligns[Slot] > Result.Align ? Aligns[Slot] : Result.Align;
			}
			Result.Size = (Result.Size + Result.Align - 1) / Result.Align * Result.Align;
			return Result;
		}

		static constexpr FLayout Layout = MakeLayout();

	public:
		/** Bytes; 0 without parameters and result. */
		static constexpr int32 Size = static_cast<int32>(Layout.Size);

		/** Where a parameter lies in the block. */
		static constexpr uint32 OffsetOf(std::size_t Index) { return static_cast<uint32>(Layout.Offsets[Index]); }

		template<typename... TArgs>
		explicit TParameterBlock(const TArgs&... Args)
		{
			ConstructParams(std::index_sequence_for<TParams...>(), Args...);
			if constexpr (bHasResult)
			{
				::new (At(NumParams)) FResultSlot();
			}
		}
		TParameterBlock(const TParameterBlock&) = delete;
		TParameterBlock& operator=(const TParameterBlock&) = delete;
		~TParameterBlock() { Destroy(std::make_index_sequence<NumSlots>()); }

		void* GetData() { return Memory; }

		TResult GetResult()
		{
			if constexpr (bHasResult)
			{
				return Slot<NumParams>();
			}
		}

		template<typename... TArgs>
		void CopyBack(TArgs&... Args)
		{
			CopyBackParams(std::index_sequence_for<TParams...>(), Args...);
		}

	private:
		uint8* At(std::size_t Index) { return Memory + Layout.Offsets[Index]; }

		template<std::size_t Index>
		std::tuple_element_t<Index, FSlots>& Slot()
		{
			return *std::launder(reinterpret_cast<std::tuple_element_t<Index, FSlots>*>(At(Index)));
		}

		template<std::size_t... Indices, typename... TArgs>
		void ConstructParams(std::index_sequence<Indices...>, const TArgs&... Args)
		{
			(::new (At(Indices)) TStored<TParams>(Args), ...);
		}

		template<std::size_t... Indices>
		void Destroy(std::index_sequence<Indices...>)
		{
			(std::destroy_at(&Slot<Indices>()), ...);
		}

		template<typename TParam, std::size_t Index, typename TArg>
		void CopyBackOne([[maybe_unused]] TArg& Arg)
		{
			if constexpr (std::is_lvalue_reference_v<TParam> && !std::is_const_v<std::remove_reference_t<TParam>>)
			{
				Arg = Slot<Index>();
			}
		}

		template<std::size_t... Indices, typename... TArgs>
		void CopyBackParams(std::index_sequence<Indices...>, TArgs&... Args)
		{
			(CopyBackOne<TParams, Indices>(Args), ...);
		}

		alignas(Layout.Align) uint8 Memory[Layout.Size > 0 ? Layout.Size : 1];
	};
}
