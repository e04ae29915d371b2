// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

namespace UE::Slate
{
	/** A size in Slate units, as an argument: takes either vector type. */
	struct FDeprecateVector2DParameter
	{
		FDeprecateVector2DParameter() = default;
		FDeprecateVector2DParameter(const FVector2D& Value)
			: X(static_cast<float>(Value.X))
			, Y(static_cast<float>(Value.Y))
		{
		}
		FDeprecateVector2DParameter(const FVector2f& Value)
			: X(Value.X)
			, Y(Value.Y)
		{
		}

		float X = 0.0f;
		float Y = 0.0f;
	};

	/** A size in Slate units, as a result: converts to either vector type. */
	struct FDeprecateVector2DResult
	{
		FDeprecateVector2DResult() = default;
		FDeprecateVector2DResult(float InX, float InY)
			: X(InX)
			, Y(InY)
		{
		}
		FDeprecateVector2DResult(const FDeprecateVector2DParameter& Value)
			: X(Value.X)
			, Y(Value.Y)
		{
		}
		FDeprecateVector2DResult(const FVector2D& Value)
			: X(static_cast<float>(Value.X))
			, Y(static_cast<float>(Value.Y))
		{
		}

		operator FVector2D() const { return FVector2D(X, Y); }
		operator FVector2f() const { return FVector2f(X, Y); }

		float X = 0.0f;
		float Y = 0.0f;
	};
}

using FDeprecateSlateVector2D = UE::Slate::FDeprecateVector2DResult;
