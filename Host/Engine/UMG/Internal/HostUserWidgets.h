// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;
class UUserWidget;

/** User widgets for owners that are no widgets: an editor tab, a test. */
class FHostUserWidgets
{
public:
	/** Made and initialized. Outer null: the transient package. Null for a class that no widget can be made of. */
	static UUserWidget* Create(UObject* Outer, UClass* UserWidgetClass, FName WidgetName = FName());
};
