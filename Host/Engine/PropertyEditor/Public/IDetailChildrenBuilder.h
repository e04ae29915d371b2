// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FDetailWidgetRow;
class IDetailPropertyRow;
class IPropertyHandle;

/** Takes the rows below a customized property, in order. What it returns is good until CustomizeChildren() is over. */
class IDetailChildrenBuilder
{
public:
	virtual ~IDetailChildrenBuilder() = default;

	/** The row of a property with all that belongs below it; a customization of its type is used. */
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) = 0;

	/** A row to fill. It is found by SearchString when the panel is searched. */
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) = 0;
};
