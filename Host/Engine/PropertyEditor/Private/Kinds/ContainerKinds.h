// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"
#include "UObject/UnrealType.h"

/** Several values in one: shown as their number, with a node below for each that all objects have. */
class FContainerKind : public FPropertyKind
{
public:
	virtual bool IsShownWhole(const FProperty& Property) const override;
	virtual TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node) const override;
	virtual bool IsContainer() const override { return true; }
};

/** As many elements as the shortest of the arrays has. With buttons to add one and to remove all, unless its size is fixed. */
class FArrayKind final : public FContainerKind
{
public:
	virtual TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node) const override;
	virtual void FitElements(const TSharedRef<FPropertyNode>& Node, const TArray<void*>& Values, TArray<TSharedRef<FPropertyNode>>& InOutElements) const override;
};

/** Elements by key: those of the first object's container, unless another object's has others. */
class FKeyedKind : public FContainerKind
{
public:
	virtual void FitElements(const TSharedRef<FPropertyNode>& Node, const TArray<void*>& Values, TArray<TSharedRef<FPropertyNode>>& InOutElements) const override;

protected:
	/** How to look into a container, and the properties of what is in it. */
	struct FLayout
	{
		const UE::Reflection::FKeyedOps& Ops;
		const FProperty& Key;
		FProperty& Element;
		bool bFixed; // elements cannot be changed in place
	};

	virtual FLayout GetLayout(const FProperty& Property) const = 0;

private:
	static TArray<const void*> CollectCommonKeys(const UE::Reflection::FKeyedOps& Ops, const TArray<void*>& Values);
};

class FSetKind final : public FKeyedKind
{
protected:
	virtual FLayout GetLayout(const FProperty& Property) const override;
};

class FMapKind final : public FKeyedKind
{
protected:
	virtual FLayout GetLayout(const FProperty& Property) const override;
};
