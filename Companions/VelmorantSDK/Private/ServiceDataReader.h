// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "ServiceData.h"

namespace ServiceDataReader
{
	/**
	 * Reads and checks a data file.
	 * @param OutError when the result is unset: the file, the path within the document (or the line, when it is no JSON at all)
	 *                 and what is wrong there.
	 */
	TOptional<FServiceData> Read(const FString& Path, FString& OutError);
}
