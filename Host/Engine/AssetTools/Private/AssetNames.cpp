// Copyright Velmorant. All Rights Reserved.

#include "AssetNames.h"

#include "HostPackages.h"
#include "Misc/CString.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace AssetNames
{
	/** An empty package is what a refused or failed creation leaves behind; its name is free again. */
	bool HoldsObjects(UPackage* Package)
	{
		bool bHolds = false;
		ForEachObjectWithOuter(
			Package, [&bHolds](UObject* Inner) { bHolds |= IsValid(Inner); }, false);
		return bHolds;
	}

	int32 CountTrailingDigits(const FString& Name)
	{
		int32 Count = 0;
		while (Count < Name.Len() && Name[Name.Len() - 1 - Count] >= TEXT('0') && Name[Name.Len() - 1 - Count] <= TEXT('9'))
		{
			++Count;
		}
		return Count;
	}
}

FString AssetNames::Increment(const FString& Name)
{
	const int32 Width = CountTrailingDigits(Name);
	FString Digits = Name.Right(Width);
	int32 Index = Width - 1;
	for (; Index >= 0 && Digits[Index] == TEXT('9'); --Index)
	{
		Digits[Index] = TEXT('0');
	}
	if (Index >= 0)
	{
		Digits[Index] = static_cast<TCHAR>(Digits[Index] + 1);
	}
	else
	{
		Digits = FString(TEXT("1")) + Digits; // no digits at all, or a carry out of the first one
	}
	return Name.LeftChop(Width) + Digits;
}

bool AssetNames::IsTaken(const FString& PackageName)
{
	if (HostPackages::GetStored(PackageName) != HostPackages::EStored::Nothing)
	{
		return true;
	}
	UPackage* Package = FindPackage(nullptr, *PackageName);
	return Package != nullptr && IsValid(Package) && HoldsObjects(Package);
}

void AssetNames::Split(const FString& PackageName, FString& OutFolder, FString& OutShortName)
{
	OutFolder.Empty();
	OutShortName = PackageName;
	PackageName.Split(TEXT("/"), &OutFolder, &OutShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
}
