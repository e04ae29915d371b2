// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostScratchValue.h"
#include "UObject/UnrealType.h"

/** Where a value lies in what is around it, and how it is called there. Holds no address of a value. */
class IPropertyPlace
{
public:
	virtual ~IPropertyPlace() = default;

	/** From the value around it. Null when there is no such element (any more). */
	virtual void* GoFrom(void* Around) const = 0;

	/** The member's name, or "[2]", "[Key]" for elements. */
	virtual FString GetName() const = 0;
	virtual FText GetDisplayName() const = 0;
	/** Elements of arrays have no name to be found by. */
	virtual bool IsCalled(FName Name) const = 0;

	virtual bool IsElement() const { return true; }
	/** Whether it cannot be changed in place, as the elements of sets. */
	virtual bool IsFixed() const { return false; }
	/** Whether it is the element of this key of its container. */
	virtual bool IsOfKey(const void*) const { return false; }
};

/** A member of an object or struct. */
class FMemberPlace final : public IPropertyPlace
{
public:
	explicit FMemberPlace(const FProperty& InMember);

	virtual void* GoFrom(void* Around) const override;
	virtual FString GetName() const override;
	virtual FText GetDisplayName() const override;
	virtual bool IsCalled(FName Name) const override;
	virtual bool IsElement() const override { return false; }

private:
	const FProperty& Member;
};

/** An element of an array. */
class FIndexPlace final : public IPropertyPlace
{
public:
	FIndexPlace(const FArrayProperty& InArray, int32 InIndex);

	virtual void* GoFrom(void* Around) const override;
	virtual FString GetName() const override;
	virtual FText GetDisplayName() const override;
	virtual bool IsCalled(FName Name) const override;

private:
	const FArrayProperty& Array;
	int32 Index;
};

/** A value of a map, or an element of a set, which is its own key. */
class FKeyPlace final : public IPropertyPlace
{
public:
	/** The key is copied. */
	FKeyPlace(const UE::Reflection::FKeyedOps& InOps, const FProperty& InKeyProperty, const void* InKey, bool bInFixed);

	virtual void* GoFrom(void* Around) const override;
	virtual FString GetName() const override;
	virtual FText GetDisplayName() const override;
	virtual bool IsCalled(FName Name) const override;
	virtual bool IsFixed() const override { return bFixed; }
	virtual bool IsOfKey(const void* OtherKey) const override;

private:
	const UE::Reflection::FKeyedOps& Ops;
	const FProperty& KeyProperty;
	FScratchValue Key;
	FString KeyText;
	bool bFixed;
};
