// Copyright Velmorant. All Rights Reserved.

#pragma once

/** operator< as a functor; TLess<> takes the types from each call. */
template<typename T = void>
struct TLess
{
	constexpr bool operator()(const T& A, const T& B) const { return A < B; }
};

template<>
struct TLess<void>
{
	template<typename T, typename U>
	constexpr bool operator()(const T& A, const U& B) const
	{
		return A < B;
	}
};
