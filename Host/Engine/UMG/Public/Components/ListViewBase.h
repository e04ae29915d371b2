// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "Templates/SubclassOf.h"

#include "ListViewBase.generated.h"

class UUserWidget;

/** A list of items, each shown by an entry widget. */
UCLASS(Abstract)
class UMG_API UListViewBase : public UWidget
{
	GENERATED_BODY()

public:
	/** Brings the entries in step with the items at the next tick. */
	UFUNCTION(BlueprintCallable, Category = "ListViewBase")
	virtual void RequestRefresh() {}

protected:
	/** Without it, an entry reads as the item's DisplayName property, or else its name. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "ListEntries")
	TSubclassOf<UUserWidget> EntryWidgetClass;
};
