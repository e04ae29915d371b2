// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Adds what Trans makes of each element of Input to Output. */
	template<typename InputType, typename OutputType, typename TransformType>
	void Transform(const InputType& Input, OutputType&& Output, TransformType Trans)
	{
		for (const auto& Element : Input)
		{
			Output.Add(Invoke(Trans, Element));
		}
	}

	/** Only of the elements that fit Predicate. */
	template<typename InputType, typename OutputType, typename PredicateType, typename TransformType>
	void TransformIf(const InputType& Input, OutputType&& Output, PredicateType Predicate, TransformType Trans)
	{
		for (const auto& Element : Input)
		{
			if (Invoke(Predicate, Element))
			{
				Output.Add(Invoke(Trans, Element));
			}
		}
	}
}
