// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/ContainersFwd.h"
#include "Templates/UnrealTemplate.h"

#include <initializer_list>

namespace UE::Core::Private
{
	// Out of line, so that every use of an array does not carry the formatting of the message.
	[[noreturn]] CORE_API void OnArrayIndexOutOfRange(int64 Index, int64 Num);
	[[noreturn]] CORE_API void OnArrayRangeOutOfRange(int64 Index, int64 Count, int64 Num);

	/** Fails a check when Index is not in [0, Num). */
	inline void CheckArrayIndex(int64 Index, int64 Num)
	{
		if (Index < 0 || Index >= Num) [[unlikely]]
		{
			OnArrayIndexOutOfRange(Index, Num);
		}
	}

	/** Fails a check when [Index, Index + Count) is not part of [0, Num]. */
	inline void CheckArrayRange(int64 Index, int64 Count, int64 Num)
	{
		if (Index < 0 || Count < 0 || Index + Count > Num) [[unlikely]]
		{
			OnArrayRangeOutOfRange(Index, Count, Num);
		}
	}
}

/**
 * A run of elements that somebody else owns; good as long as the owner neither goes away nor changes its length.
 * Built from arrays, C arrays and (as a const view) initializer lists.
 */
template<typename InElementType>
class TArrayView
{
public:
	using ElementType = InElementType;
	using SizeType = int32;

	TArrayView() = default;

	TArrayView(ElementType* InData, SizeType InCount)
		: Data(InData)
		, ArrayNum(InCount)
	{
		UE::Core::Private::CheckArrayRange(0, InCount, InCount);
	}

	template<typename ContainerType>
	requires(!std::is_same_v<std::remove_cvref_t<ContainerType>, TArrayView> && requires(ContainerType & C) { ::GetNum(C); requires std::is_convertible_v<std::remove_pointer_t<decltype(::GetData(C))> (*)[], ElementType (*)[]>; })
		TArrayView(ContainerType&& Container)
		: Data(::GetData(Container))
		, ArrayNum(static_cast<SizeType>(::GetNum(Container)))
	{
	}

	TArrayView(std::initializer_list<std::remove_const_t<ElementType>> List) requires(std::is_const_v<ElementType>)
		: Data(List.begin())
		, ArrayNum(static_cast<SizeType>(List.size()))
	{
	}

	SizeType Num() const { return ArrayNum; }
	ElementType* GetData() const { return Data; }

	ElementType& operator[](SizeType Index) const
	{
		UE::Core::Private::CheckArrayIndex(Index, ArrayNum);
		return Data[Index];
	}

	TArrayView RightChop(SizeType Count) const { return TArrayView(Data + ClampCount(Count), ArrayNum - ClampCount(Count)); }

	ElementType* begin() const { return Data; }
	ElementType* end() const { return Data + ArrayNum; }

private:
	SizeType ClampCount(SizeType Count) const
	{
		const SizeType Available = Count < ArrayNum ? Count : ArrayNum;
		return Available < 0 ? 0 : Available;
	}

	ElementType* Data = nullptr;
	SizeType ArrayNum = 0;
};
