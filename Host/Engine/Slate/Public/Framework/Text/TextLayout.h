// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

namespace ETextJustify
{
	enum Type : int
	{
		Left,
		Center,
		Right,
	};
}
