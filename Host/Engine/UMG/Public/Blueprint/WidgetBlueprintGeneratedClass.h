// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/BlueprintGeneratedClass.h"

#include "WidgetBlueprintGeneratedClass.generated.h"

class UUserWidget;
struct FWidgetLayout;

/** The class that a widget blueprint stands for: a native panel class with a widget tree, event scripts and calls. */
UCLASS()
class UMG_API UWidgetBlueprintGeneratedClass : public UBlueprintGeneratedClass
{
	GENERATED_BODY()

public:
	/** Gives a new widget its tree and binds its members and events by name. */
	void InitializeWidget(UUserWidget* UserWidget) const;

	/** Host: has a panel listen to the objects that its layout names, or no longer; as a blueprint binds in Construct and unbinds in Destruct. */
	void ListenToObjects(UUserWidget* UserWidget, bool bListen) const;

	/** Host: what the class was made from; set once, by the reader of layouts. It keeps the classes of its widgets. */
	void SetLayout(const TSharedRef<const FWidgetLayout>& InLayout) { Layout = InLayout; }
	const TSharedPtr<const FWidgetLayout>& GetLayout() const { return Layout; }

private:
	TSharedPtr<const FWidgetLayout> Layout;
};
