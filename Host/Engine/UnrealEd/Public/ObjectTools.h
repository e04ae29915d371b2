// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

namespace ObjectTools
{
	/**
	 * Deletes assets with their files. What still refers to them is named first, and refers to nothing afterwards. Undo forgets its steps.
	 * The open level is not deleted.
	 * @param bShowConfirmation asks the user; nothing is deleted unless they say so
	 * @return how many were deleted
	 */
	UNREALED_API int32 DeleteAssets(const TArray<FAssetData>& AssetsToDelete, bool bShowConfirmation = true);
}
