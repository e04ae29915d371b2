// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/IUserObjectListEntry.h"
#include "Blueprint/UserWidget.h"
#include "VlmListEntry.generated.h"

/** Base of the layouts that show one item of a list; OnListItemObjectSet() tells which. */
UCLASS(Abstract)
class VELMORANTPROUI_API UVlmListEntry : public UUserWidget, public IUserObjectListEntry
{
	GENERATED_BODY()
};
