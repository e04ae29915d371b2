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
	explicit FSoftObjectPath(FTopLevelAssetPath InAssetPath, FString InSubPathString = FString());
	FSoftObjectPath(FName InPackageName, FName InAssetName, FString InSubPathString);
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

	FSoftObjectPath& operator=(const FTopLevelAssetPath& Path);
	FSoftObjectPath& operator=(const FString& Path);
	FSoftObjectPath& operator=(const TCHAR* Path);
	FSoftObjectPath& operator=(std::nullptr_t);

	void SetPath(const FTopLevelAssetPath& InAssetPath, FString InSubPathString = FString());
	void SetPath(FStringView Path);
	void SetPath(FAnsiStringView Path);
	void SetPath(FName Path);
	void SetPath(const TCHAR* Path);
	void SetPath(const ANSICHAR* Path);
	void SetPath(const FString& Path);

	/** Empty for null. */
	FString ToString() const;
	void ToString(FString& OutString) const { OutString = ToString(); }
	FTopLevelAssetPath GetAssetPath() const { return AssetPath; }
	FString GetAssetPathString() const { return AssetPath.ToString(); }
	const FString& GetSubPathString() const { return SubPathString; }
	FString GetLongPackageName() const { return AssetPath.IsNull() ? FString() : AssetPath.GetPackageName().ToString(); }
	FName GetLongPackageFName() const { return AssetPath.GetPackageName(); }
	FString GetAssetName() const { return AssetPath.GetAssetName().IsNone() ? FString() : AssetPath.GetAssetName().ToString(); }
	FName GetAssetFName() const { return AssetPath.GetAssetName(); }

	bool IsNull() const { return AssetPath.IsNull(); }
	bool IsValid() const { return AssetPath.IsValid(); }
	bool IsAsset() const { return IsValid() && SubPathString.IsEmpty(); }
	bool IsSubobject() const { return IsValid() && !SubPathString.IsEmpty(); }
	void Reset();

	/** The object if it is in memory. */
	UObject* ResolveObject() const;
	/** The object, loaded if need be. Null, and a warning in the log, when it cannot be. */
	UObject* TryLoad(FUObjectSerializeContext* = nullptr) const;

	/** Paths ignore case; so does the sub path. */
	bool operator==(const FSoftObjectPath& Other) const;
	bool LexicalLess(const FSoftObjectPath& Other) const { return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase) < 0; }
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
	explicit FSoftClassPath(const UClass* InClass);

	/** The class if it is in memory; null when the object is no class. */
	UClass* ResolveClass() const;
	template<typename T>
	UClass* TryLoadClass() const
	{
		return TryLoadClassOf(T::StaticClass());
	}

private:
	UClass* TryLoadClassOf(UClass* Base) const;
};
