// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** Anything that leads to an object; as it stands here, weak references. */
class FObjectKind : public FPropertyKind
{
public:
	virtual FPropertyAccess::Result ReadObject(const FPropertyNode& Node, UObject*& OutObject) const override;
	virtual FPropertyAccess::Result WriteObject(FPropertyNode& Node, UObject* Object, EPropertyValueSetFlags::Type Flags) const override;
	virtual TArray<FName> GetTypeNames(const FProperty& Property) const override;

protected:
	virtual UObject* Follow(const FProperty& Property, const void* Value) const;
	/** What the classes that the values are derive from; null where any object can be one. */
	virtual const UClass* FindMetaClass(const FProperty& Property) const;

private:
	bool Takes(const FProperty& Property, const UObject& Object) const;
};

/** References that keep the object alive; typed and shown as its path. */
class FHardObjectKind : public FObjectKind
{
public:
	virtual FString GetEditText(const FPropertyNode& Node, const void* Value) const override;
};

class FClassKind final : public FHardObjectKind
{
protected:
	virtual const UClass* FindMetaClass(const FProperty& Property) const override;
};

/** References by path: following one loads the object. */
class FSoftObjectKind : public FObjectKind
{
protected:
	virtual UObject* Follow(const FProperty& Property, const void* Value) const override;
};
