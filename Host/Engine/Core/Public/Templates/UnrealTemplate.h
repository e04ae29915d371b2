// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <cstddef>
#include <new>
#include <type_traits>

/** Turns an lvalue into an rvalue. Refuses const objects and rvalues: both would copy behind the reader's back. */
template<typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp called on an rvalue");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp called on a const object");
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

/** MoveTemp for generic code: const objects and rvalues pass, too. */
template<typename T>
constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Object) noexcept
{
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

template<typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template<typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template<typename T>
constexpr void Swap(T& A, T& B)
{
	T Temp = MoveTemp(A);
	A = MoveTemp(B);
	B = MoveTemp(Temp);
}

/** Stores NewValue in Object and returns what Object held. */
template<typename T, typename U = T>
T Exchange(T& Object, U&& NewValue)
{
	T Old = MoveTemp(Object);
	Object = Forward<U>(NewValue);
	return Old;
}

/** Base of types that must not be copied. */
class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

public:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

/** Sets a variable for the length of a scope and then puts the old value back. */
template<typename RefType, typename AssignedType = RefType>
class TGuardValue : private FNoncopyable
{
public:
	[[nodiscard]] TGuardValue(RefType& InReference, const AssignedType& NewValue)
		: Reference(InReference)
		, OldValue(InReference)
	{
		Reference = NewValue;
	}

	~TGuardValue()
	{
		Reference = OldValue;
	}

private:
	RefType& Reference;
	AssignedType OldValue;
};

/** Names a type in a place where the compiler must not deduce it. */
template<typename T>
struct TIdentity
{
	using Type = T;
};

template<typename T>
using TIdentity_T = typename TIdentity<T>::Type;

/** GetData and GetNum work on containers and on C arrays, which is what lets array views take either. */
template<typename ContainerType>
auto GetData(ContainerType&& Container) -> decltype(Container.GetData())
{
	return Container.GetData();
}

template<typename T, std::size_t N>
constexpr T* GetData(T (&Array)[N])
{
	return Array;
}

template<typename ContainerType>
auto GetNum(ContainerType&& Container) -> decltype(Container.Num())
{
	return Container.Num();
}

template<typename T, std::size_t N>
constexpr std::size_t GetNum(T (&)[N])
{
	return N;
}
