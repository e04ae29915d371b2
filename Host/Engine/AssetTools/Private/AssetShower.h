// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UObject;

/** Brings new assets before the user's eyes. */
namespace AssetShower
{
	/** Starts the content browser when it is part of this program; without one nothing is shown. */
	void Show(const TArray<UObject*>& Assets);
}
