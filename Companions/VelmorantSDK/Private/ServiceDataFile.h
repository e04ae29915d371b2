// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "ServiceData.h"

/**
 * A data file that is read anew each time, so that an edit shows at once. Only when it has the very bytes that it had before is it not
 * taken apart once more: that is what takes long with a large file.
 */
class FServiceDataFile
{
public:
	/**
	 * The data is good until the next call.
	 * @param Path the file; another one than the last time is read as it is.
	 * @return null when the file, or a picture that it names, cannot be used; OutError then says which file, where in it, and why.
	 */
	const FServiceData* Read(const FString& Path, FString& OutError);

private:
	bool ReadData(const FString& Path, FString& OutError);
	bool ReadPictures(FString& OutError);

	FString LastPath;
	TArray<uint8> Bytes; // that Data was made of
	TOptional<FServiceData> Data;
};
