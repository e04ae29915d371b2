// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Package.h"

/**
 * A folder of assets below /Temp, in memory only, for the length of a test. What was made in it is taken out of the asset registry and given
 * up at the end; nothing of it was ever saved.
 */
class FVelmorantTestContent
{
public:
	FVelmorantTestContent();
	~FVelmorantTestContent();
	FVelmorantTestContent(const FVelmorantTestContent&) = delete;
	FVelmorantTestContent& operator=(const FVelmorantTestContent&) = delete;

	/** "/Temp/VelmorantTests<Number>", of its own for each object. */
	const FString& GetFolder() const { return Folder; }

	/** "/Temp/VelmorantTests<Number>/<Name>" */
	FString GetPackageName(const TCHAR* Name) const { return Folder + TEXT("/") + Name; }

	/** A new asset in a clean package of its own, as the asset tools would make it, and known to the asset registry. */
	template<typename AssetType>
	AssetType* Make(const TCHAR* Name) const
	{
		return CastChecked<AssetType>(Make(AssetType::StaticClass(), Name));
	}

private:
	UObject* Make(UClass* Class, const TCHAR* Name) const;

	FString Folder;
};
