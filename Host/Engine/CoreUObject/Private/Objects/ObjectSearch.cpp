// Copyright Velmorant. All Rights Reserved.
// Finding objects by path, and loading them.

#include "Logging/LogMacros.h"
#include "Misc/AssertionMacros.h"
#include "Objects/EditorPackages.h"
#include "Objects/ObjectNameTable.h"
#include "Properties/PropertyText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

DEFINE_LOG_CATEGORY_STATIC(LogUObjectGlobals, Log, All);

namespace ObjectSearch
{
	/** Where the first part of a path ends: at a dot or colon behind the last slash. */
	int32 FindPartEnd(const FString& Path, int32 Start)
	{
		int32 Index = Start;
		for (; Index < Path.Len() && Path[Index] != TEXT('.') && Path[Index] != TEXT(':'); ++Index)
		{
		}
		return Index;
	}

	/** Follows "A.B:C" from Outer; null Outer starts with a package. Class counts for the last part only. */
	UObject* Follow(UClass* Class, UObject* Outer, const FString& Path, bool bExactClass)
	{
		FObjectNameTable& Names = FObjectNameTable::Get();
		int32 Start = 0;
		for (;;)
		{
			const int32 End = FindPartEnd(Path, Start);
			const FName Part = End - Start < NAME_SIZE ? FName(*Path.Mid(Start, End - Start), FNAME_Find) : FName();
			if (Part.IsNone())
			{
				return nullptr; // a name that nobody made has no object
			}
			if (End >= Path.Len())
			{
				return Names.Find(Class, Outer, Part, bExactClass);
			}
			Outer = Names.Find(nullptr, Outer, Part);
			if (!Outer)
			{
				return nullptr;
			}
			Start = End + 1;
		}
	}

	bool IsPackagePath(const FString& Path)
	{
		return Path.StartsWith(TEXT("/"));
	}
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool bExactClass)
{
	const FString Path = PropertyText::StripClass(FString(Name));
	if (Path.IsEmpty())
	{
		return nullptr;
	}
	return ObjectSearch::Follow(Class, ObjectSearch::IsPackagePath(Path) ? nullptr : InOuter, Path, bExactClass);
}

UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool bExactClass)
{
	FObjectNameTable& Names = FObjectNameTable::Get();
	UObject* Package = Names.Find(nullptr, nullptr, ObjectPath.GetPackageName());
	if (!Package || ObjectPath.GetAssetName().IsNone())
	{
		return Package && (!Class || Package->IsA(Class)) ? Package : nullptr;
	}
	return Names.Find(Class, Package, ObjectPath.GetAssetName(), bExactClass);
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName Name, bool bExactClass)
{
	return FObjectNameTable::Get().Find(Class, InOuter, Name, bExactClass);
}

UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options)
{
	const FName Wanted = FCString::Strlen(Name) < NAME_SIZE ? FName(Name, FNAME_Find) : FName();
	if (Wanted.IsNone())
	{
		return nullptr;
	}
	const FObjectTable& Table = FObjectTable::Get();
	const bool bExact = (static_cast<int32>(Options) & static_cast<int32>(EFindFirstObjectOptions::ExactClass)) != 0;
	const FObjectItem* First = nullptr;
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		const FObjectItem& Item = Table.GetItem(Index);
		if (Item.Object && !Item.bUnreachable && Item.Object->GetFName() == Wanted && (!Class || Item.Object->GetClass() == Class || (!bExact && Item.Object->IsA(Class))) && (!First || Item.SerialNumber < First->SerialNumber))
		{
			First = &Item;
		}
	}
	return First ? First->Object : nullptr;
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR*, uint32 LoadFlags)
{
	FString Path = PropertyText::StripClass(FString(Name));
	if (Path.IsEmpty())
	{
		return nullptr;
	}
	if (ObjectSearch::IsPackagePath(Path))
	{
		InOuter = nullptr;
		const int32 PackageEnd = ObjectSearch::FindPartEnd(Path, 0);
		const FString PackageName = Path.Left(PackageEnd);
		if (PackageEnd == Path.Len())
		{
			int32 Slash = INDEX_NONE;
			Path.FindLastChar(TEXT('/'), Slash);
			Path = PackageName + TEXT(".") + PackageName.RightChop(Slash + 1);
		}
		if (UObject* Found = ObjectSearch::Follow(Class, nullptr, Path, false))
		{
			return Found;
		}
		LoadPackage(nullptr, *PackageName, LOAD_NoWarn);
	}
	UObject* Found = ObjectSearch::Follow(Class, InOuter, Path, false);
	if (!Found && !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s.%s'"), Class ? *Class->GetName() : TEXT("Object"),
			InOuter ? *InOuter->GetPathName() : TEXT("None"), *Path);
	}
	return Found;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	const bool bCanBe = FCString::Strlen(PackageName) < NAME_SIZE;
	return bCanBe ? static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), InOuter, FName(PackageName, FNAME_Find))) : nullptr;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FString Name(PackageName);
	checkf(Name.StartsWith(TEXT("/")) && !Name.EndsWith(TEXT("/")) && !Name.Contains(TEXT(".")) && !Name.Contains(TEXT("//")),
		TEXT("'%s' is no long package name."), *Name);
	if (UPackage* Existing = FindPackage(nullptr, PackageName))
	{
		return Existing;
	}
	UPackage* Package = NewObject<UPackage>(nullptr, FName(PackageName), RF_Public);
	Package->SetPackageFlags(PKG_NewlyCreated);
	return Package;
}

UPackage* LoadPackage(UPackage*, const TCHAR* LongPackageName, uint32 LoadFlags)
{
	FString Name(LongPackageName);
	Name = Name.Left(ObjectSearch::FindPartEnd(Name, 0));
	if (UPackage* Existing = FindPackage(nullptr, *Name); Existing && (Existing->IsFullyLoaded() || Existing->HasAnyPackageFlags(PKG_CompiledIn)))
	{
		return Existing;
	}
	const TFunction<UPackage*(const FString&)>& Loader = FEditorPackages::Get().Loader;
	UPackage* Package = Loader ? Loader(Name) : nullptr;
	if (!Package)
	{
		Package = FindPackage(nullptr, *Name);
	}
	if (!Package && !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet)))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("While trying to load package %s, a dependent file or package was not available."), *Name);
	}
	return Package;
}
