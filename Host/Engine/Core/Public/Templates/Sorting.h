// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

/** Hands the elements of an array to a sort predicate; when they are pointers, the predicate sees what they point to. */
template<typename T, typename PredicateType>
struct TDereferenceWrapper
{
	const PredicateType& Predicate;

	explicit TDereferenceWrapper(const PredicateType& InPredicate)
		: Predicate(InPredicate)
	{
	}

	bool operator()(const T& A, const T& B) const { return Predicate(A, B); }
};

template<typename T, typename PredicateType>
struct TDereferenceWrapper<T*, PredicateType>
{
	const PredicateType& Predicate;

	explicit TDereferenceWrapper(const PredicateType& InPredicate)
		: Predicate(InPredicate)
	{
	}

	bool operator()(T* A, T* B) const { return Predicate(*A, *B); }
};
