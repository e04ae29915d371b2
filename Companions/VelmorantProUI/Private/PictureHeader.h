// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Math/Vector2D.h"
#include "Misc/Optional.h"

/** What the first bytes of an encoded picture tell. */
namespace PictureHeader
{
	/** Width and height in pixels; unset for what is neither PNG nor JPEG, or is cut short before its size. */
	TOptional<FVector2D> ReadSize(const TArray<uint8>& Data);
}
