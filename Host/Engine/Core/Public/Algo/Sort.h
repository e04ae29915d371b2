// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Algo/IntroSort.h"
#include "Templates/Invoke.h"
#include "Templates/Less.h"

namespace Algo
{
	/** By operator<, or by a predicate that sees the elements as they are (pointers are not followed). Not stable. */
	template<typename RangeType>
	void Sort(RangeType&& Range)
	{
		AlgoImpl::Sort(::GetData(Range), ::GetNum(Range), TLess<>());
	}

	template<typename RangeType, typename PredicateType>
	void Sort(RangeType&& Range, PredicateType Predicate)
	{
		AlgoImpl::Sort(::GetData(Range), ::GetNum(Range), Predicate);
	}

	/** By what Projection (a functor, data member or method) makes of each element. Not stable. */
	template<typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
	void SortBy(RangeType&& Range, ProjectionType Projection, PredicateType Predicate = PredicateType())
	{
		AlgoImpl::Sort(::GetData(Range), ::GetNum(Range), [&](const auto& A, const auto& B) { return Predicate(Invoke(Projection, A), Invoke(Projection, B)); });
	}
}
