// Copyright Velmorant. All Rights Reserved.

#include "PackageFormats.h"

namespace PackageFormats
{
	/** By class path, as text. Lives as long as the process: modules register while they are loaded, also before main(). */
	TMap<FString, FPackageFormat>& GetAll()
	{
		static TMap<FString, FPackageFormat>* const Formats = new TMap<FString, FPackageFormat>();
		return *Formats;
	}
}

const FPackageFormat* FPackageFormat::Find(const FString& ClassPath)
{
	return PackageFormats::GetAll().Find(ClassPath);
}

void HostPackages::RegisterReader(const FTopLevelAssetPath& ClassPath, FReader Reader, FWriter Writer)
{
	PackageFormats::GetAll().Add(ClassPath.ToString(), {MoveTemp(Reader), MoveTemp(Writer)});
}
