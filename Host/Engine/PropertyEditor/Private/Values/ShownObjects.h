// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtrTemplates.h"

/** The objects that a details panel shows. Keeps none of them alive. */
class FShownObjects
{
public:
	/** Each once, and only those that are valid. */
	explicit FShownObjects(const TArray<UObject*>& InObjects);

	/** Empty when one of them is gone. */
	TArray<UObject*> GetAll() const;
	/** Those that are not gone. */
	TArray<UObject*> GetRemaining() const;
	bool HasLost() const;

	/** What all objects are; null without objects. */
	UClass* FindCommonClass() const;

private:
	TArray<TWeakObjectPtr<UObject>> Objects;
};
