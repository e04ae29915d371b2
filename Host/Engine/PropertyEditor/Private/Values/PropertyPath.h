// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Values/PropertyNode.h"

namespace PropertyPath
{
	/** "Icon.IconName", "Rooms[2].Title", "Prices[Oak]": the node below Root. Null when there is none, and for an empty path. */
	TSharedPtr<FPropertyNode> Find(const TSharedRef<FPropertyNode>& Root, const FString& Path);
}
