// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class IDetailTreeNode;
class UObject;

struct FPropertyRowGeneratorArgs
{
};

/** The rows of a details panel without the panel. */
class IPropertyRowGenerator
{
public:
	virtual ~IPropertyRowGenerator() = default;

	/** Makes all rows anew. */
	virtual void SetObjects(const TArray<UObject*>& InObjects) = 0;

	/** The categories. Good until other objects are set. */
	virtual const TArray<TSharedRef<IDetailTreeNode>>& GetRootTreeNodes() const = 0;
};
