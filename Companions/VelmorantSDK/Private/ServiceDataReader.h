// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "ServiceData.h"

#include <string_view>

namespace ServiceDataReader
{
	/**
	 * Checks and takes over what a data file says. Pictures are named only, not read.
	 * @param Folder that names of files in it are relative to
	 * @param OutError when the result is unset: the path within the document (or the line, when it is no JSON at all) and what is
	 *                 wrong there.
	 */
	TOptional<FServiceData> Read(std::string_view Json, const FString& Folder, FString& OutError);
}
