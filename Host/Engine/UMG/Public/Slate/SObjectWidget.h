// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/SCompoundWidget.h"

class UUserWidget;

/** The Slate side of a user widget: keeps its object alive for as long as it shows, and ends its construction when it goes. */
class UMG_API SObjectWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SObjectWidget)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	virtual ~SObjectWidget() override;

	void Construct(const FArguments& InArgs, UUserWidget* InWidgetObject);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;

private:
	TStrongObjectPtr<UUserWidget> WidgetObject;
};
