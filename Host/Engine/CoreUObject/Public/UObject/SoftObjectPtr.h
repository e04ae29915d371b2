// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"

/** A soft path that remembers the object it led to. */
struct FSoftObjectPtr
{
	FSoftObjectPtr() = default;
	explicit FSoftObjectPtr(const FSoftObjectPath& InPath)
		: ObjectID(InPath)
	{
	}
	explicit FSoftObjectPtr(const UObject* Object)
		: WeakPtr(Object)
		, ObjectID(Object)
	{
	}
	FSoftObjectPtr& operator=(const FSoftObjectPath& InPath);
	FSoftObjectPtr& operator=(const UObject* Object);

	/** The object if it is in memory; loads nothing. */
	UObject* Get() const;
	UObject* LoadSynchronous() const;

	FString ToString() const { return ObjectID.ToString(); }
	bool IsNull() const { return ObjectID.IsNull(); }

	bool operator==(const FSoftObjectPtr& Other) const { return ObjectID == Other.ObjectID; }
	friend uint32 GetTypeHash(const FSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.ObjectID); }

private:
	mutable FWeakObjectPtr WeakPtr;
	FSoftObjectPath ObjectID;
};

/** A soft pointer to objects of class T. */
template<class T = UObject>
struct TSoftObjectPtr
{
	using ElementType = T;

	TSoftObjectPtr() = default;
	TSoftObjectPtr(std::nullptr_t) {}
	template<class U>
	requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(U* Object)
		: SoftObjectPtr(static_cast<const UObject*>(Object))
	{
	}
	template<class U>
	requires std::is_convertible_v<U*, T*>
	TSoftObjectPtr(const TObjectPtr<U>& Object)
		: TSoftObjectPtr(Object.Get())
	{
	}
	template<class U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TSoftObjectPtr(const TSoftObjectPtr<U>& Other)
		: SoftObjectPtr(Other.ToSoftObjectPath())
	{
	}
	explicit TSoftObjectPtr(const FSoftObjectPath& InPath)
		: SoftObjectPtr(InPath)
	{
	}
	TSoftObjectPtr& operator=(const FSoftObjectPath& InPath)
	{
		SoftObjectPtr = InPath;
		return *this;
	}
	TSoftObjectPtr& operator=(T* Object) { return *this = TSoftObjectPtr(Object); }
	template<class U>
	requires std::is_convertible_v<U*, T*>
		TSoftObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		return *this = TSoftObjectPtr(Object.Get());
	}

	T* Get() const { return Cast<T>(SoftObjectPtr.Get()); }
	T* LoadSynchronous() const { return Cast<T>(SoftObjectPtr.LoadSynchronous()); }

	FString ToString() const { return SoftObjectPtr.ToString(); }
	bool IsNull() const { return SoftObjectPtr.IsNull(); }

	friend uint32 GetTypeHash(const TSoftObjectPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }

private:
	FSoftObjectPtr SoftObjectPtr;
};

/** A soft pointer to T or a class derived from it. */
template<class T = UObject>
class TSoftClassPtr
{
public:
	using ElementType = T;

	TSoftClassPtr() = default;
	TSoftClassPtr(std::nullptr_t) {}
	TSoftClassPtr(const UClass* From)
		: SoftObjectPtr(static_cast<const UObject*>(From))
	{
	}
	template<class U>
	requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>)
		TSoftClassPtr(const TSoftClassPtr<U>& Other)
		: SoftObjectPtr(Other.ToSoftObjectPath())
	{
	}
	explicit TSoftClassPtr(const FSoftObjectPath& InPath)
		: SoftObjectPtr(InPath)
	{
	}

	/** Null when the class is not loaded, or no T. */
	UClass* Get() const { return Checked(SoftObjectPtr.Get()); }
	UClass* LoadSynchronous() const { return Checked(SoftObjectPtr.LoadSynchronous()); }

	friend uint32 GetTypeHash(const TSoftClassPtr& Ptr) { return GetTypeHash(Ptr.SoftObjectPtr); }

private:
	static UClass* Checked(UObject* Object)
	{
		UClass* Class = Cast<UClass>(Object);
		return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr;
	}

	FSoftObjectPtr SoftObjectPtr;
};
