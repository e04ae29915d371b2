// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Templates/SharedPointer.h"

class FDetailWidgetRow;
class SWidget;

/** The row of a property that was added to a details panel: how it differs from what the panel would show. */
class IDetailPropertyRow
{
public:
	virtual ~IDetailPropertyRow() = default;

	/** Shown instead of the property's own name. */
	virtual IDetailPropertyRow& DisplayName(const FText& InDisplayName) = 0;
	virtual IDetailPropertyRow& Visibility(TAttribute<EVisibility> Visibility) = 0;
	virtual IDetailPropertyRow& IsEnabled(TAttribute<bool> InIsEnabled) = 0;

	/** The widgets to show instead; columns that are not filled stay empty. bShowChildren: members and elements show below as ever. */
	virtual FDetailWidgetRow& CustomWidget(bool bShowChildren = false) = 0;
};
