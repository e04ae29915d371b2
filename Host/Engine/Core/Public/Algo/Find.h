// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** The first element for which Projection gives Value; null when there is none. */
	template<typename RangeType, typename ValueType, typename ProjectionType>
	auto FindBy(RangeType&& Range, const ValueType& Value, ProjectionType Projection) -> decltype(&*Range.begin())
	{
		for (auto&& Element : Range)
		{
			if (Invoke(Projection, Element) == Value)
			{
				return &Element;
			}
		}
		return nullptr;
	}

	template<typename RangeType, typename ValueType>
	auto Find(RangeType&& Range, const ValueType& Value) -> decltype(&*Range.begin())
	{
		return FindBy(
			Range, Value, [](const auto& Element) -> const auto& { return Element; });
	}

	template<typename RangeType, typename PredicateType>
	auto FindByPredicate(RangeType&& Range, PredicateType Predicate) -> decltype(&*Range.begin())
	{
		return FindBy(Range, true, [&Predicate](const auto& Element) { return static_cast<bool>(Invoke(Predicate, Element)); });
	}
}
