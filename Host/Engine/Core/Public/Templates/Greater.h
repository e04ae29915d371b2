// Copyright Velmorant. All Rights Reserved.

#pragma once

/** B < A as a functor, so that a type needs operator< only; TGreater<> takes the types from each call. */
template<typename T = void>
struct TGreater
{
	constexpr bool operator()(const T& A, const T& B) const { return B < A; }
};

template<>
struct TGreater<void>
{
	template<typename T, typename U>
	constexpr bool operator()(const T& A, const U& B) const
	{
		return B < A;
	}
};
