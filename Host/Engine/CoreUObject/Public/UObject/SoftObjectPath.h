// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "UObject/ObjectPtr.h"
#include "UObject/TopLevelAssetPath.h"

class UClass;
struct FUObjectSerializeContext;

/** An object by its path, whether it is loaded or not: "/Game/Dir/Asset.Asset:Sub". "" and "None" are null. */
struct FSoftObjectPath
{
	FSoftObjectPath() = default;
	FSoftObjectPath(const FString& Path) { SetPath(Path); }
	explicit FSoftObjectPath(FStringView Path) { SetPath(Path); }
	explicit FSoftObjectPath(FAnsiStringView Path) { SetPath(Path); }
	explicit FSoftObjectPath(const TCHAR* Path) { SetPath(Path); }
	explicit FSoftObjectPath(const ANSICHAR* Path) { SetPath(Path); }
	explicit FSoftObjectPath(std::nullptr_t) {}
	FSoftObjectPath(const UObject* InObject);
	template<typename T>
	FSoftObjectPath(const TObjectPtr<T>& InObject)
		: FSoftObjectPath(reinterpret_cast<const UObject*>(InObject.Get()))
	{
	}

	FSoftObjectPath& operator=(const FString& Path);
	FSoftObjectPath& operator=(const TCHAR* Path);
	FSoftObjectPath& operator=(std::nullptr_t);

	void SetPath(FStringView Path);
	void SetPath(FAnsiStringView Path);
	void SetPath(FName Path);
	void SetPath(const TCHAR* Path);
	void SetPath(const ANSICHAR* Path);
	void SetPath(const FString& Path);

	/** Empty for null. */
	FString ToString() const;
	FString GetLongPackageName() const { return AssetPath.IsNull() ? FString() : AssetPath.GetPackageName().ToString(); }

	bool IsNull() const { return AssetPath.IsNull(); }
	void Reset();

	/** The object if it is in memory. */
	UObject* ResolveObject() const;
	/** The object, loaded if need be. Null, and a warning in the log, when it cannot be. */
	UObject* TryLoad(FUObjectSerializeContext* = nullptr) const;

	/** Paths ignore case; so does the sub path. */
	bool operator==(const FSoftObjectPath& Other) const;
	friend uint32 GetTypeHash(const FSoftObjectPath& Path) { return GetTypeHash(Path.AssetPath) ^ GetTypeHash(Path.SubPathString); }

private:
	friend struct Z_Statics_FSoftObjectPath;

	FTopLevelAssetPath AssetPath;
	FString SubPathString;
};

/** A soft path to a class. */
struct FSoftClassPath : public FSoftObjectPath
{
	using FSoftObjectPath::FSoftObjectPath;
	using FSoftObjectPath::operator=;
	FSoftClassPath() = default;
};
