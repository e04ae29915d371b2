// Copyright Velmorant. All Rights Reserved.

#include "Containers/Array.h"

#include "HAL/SmallBlocks.h"

namespace UE::Core::Private
{
	void OnArrayIndexOutOfRange(int64 Index, int64 Num)
	{
		checkf(false, TEXT("Array index out of bounds: %lld into an array of size %lld"), Index, Num);
	}

	void OnArrayRangeOutOfRange(int64 Index, int64 Count, int64 Num)
	{
		checkf(false, TEXT("Array range out of bounds: %lld elements from index %lld in an array of size %lld"), Count, Index, Num);
	}

	void OnArrayChangedDuringIteration()
	{
		ensureMsgf(false, TEXT("Array has changed during ranged-for iteration!"));
	}

	void OnElementOfSameContainer(const void* Element)
	{
		checkf(false, TEXT("Attempting to use a container element (%p) which already comes from the container being modified"), Element);
	}

	void OnContainerTooLarge(int64 Num)
	{
		checkf(false, TEXT("Trying to resize a container to an invalid size of %lld"), Num);
	}

	bool IsSmall(std::size_t AllSize, std::size_t Alignment)
	{
		return AllSize <= SmallBlocks::MaxSize && Alignment <= SmallBlocks::Alignment;
	}

	void* AllocateElements(int64 Num, std::size_t Size, std::size_t Alignment)
	{
		if (Num == 0)
		{
			return nullptr;
		}
		const std::size_t AllSize = static_cast<std::size_t>(Num) * Size;
		return IsSmall(AllSize, Alignment) ? SmallBlocks::Allocate(AllSize) : ::operator new(AllSize, std::align_val_t(Alignment));
	}

	void FreeElements(void* Elements, int64 Num, std::size_t Size, std::size_t Alignment)
	{
		if (Elements == nullptr)
		{
			return;
		}
		const std::size_t AllSize = static_cast<std::size_t>(Num) * Size;
		if (IsSmall(AllSize, Alignment))
		{
			SmallBlocks::Free(Elements, AllSize);
		}
		else
		{
			::operator delete(Elements, std::align_val_t(Alignment));
		}
	}
}
