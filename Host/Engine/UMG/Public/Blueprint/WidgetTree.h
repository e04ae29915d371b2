// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "Templates/SubclassOf.h"

#include "WidgetTree.generated.h"

/** The widgets of one user widget. */
UCLASS()
class UMG_API UWidgetTree : public UObject
{
	GENERATED_BODY()

public:
	/** By name, ignoring case, among all widgets of the tree; null when there is none. */
	UWidget* FindWidget(const FName& Name) const;

	/** Parents before children, in order. The widgets inside nested user widgets are not among them. */
	void ForEachWidget(TFunctionRef<void(UWidget*)> Predicate) const;

	/** Makes a widget that belongs to this tree; it shows once it is put somewhere. Null for an abstract class. */
	template<typename WidgetT>
	WidgetT* ConstructWidget(TSubclassOf<UWidget> WidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
	{
		return static_cast<WidgetT*>(ConstructWidgetOfClass(WidgetClass, WidgetName));
	}

	UPROPERTY()
	TObjectPtr<UWidget> RootWidget;

private:
	UWidget* ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName);
};
