// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"

#include "IUserObjectListEntry.generated.h"

UINTERFACE()
class UMG_API UUserObjectListEntry : public UInterface
{
	GENERATED_BODY()
};

/** For widgets that show one item of a list view. */
class UMG_API IUserObjectListEntry
{
	GENERATED_BODY()

public:
	/** The item that the entry shows from now on. */
	UFUNCTION(BlueprintImplementableEvent, Category = "UserObjectListEntry")
	void OnListItemObjectSet(UObject* ListItemObject);

	/** Gives an entry its item. */
	static void SetListItemObject(UObject& EntryWidget, UObject* ListItemObject);

protected:
	/** Override to read the item; raises the event. */
	virtual void NativeOnListItemObjectSet(UObject* ListItemObject);
};
