// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "PropertyHandle.h"
#include "Templates/SharedPointer.h"

class FDetailWidgetRow;
class IDetailChildrenBuilder;

/** What the panel lends to customizations. */
class PROPERTYEDITOR_API IPropertyTypeCustomizationUtils
{
public:
	virtual ~IPropertyTypeCustomizationUtils() = default;

	/** The font of names and values: "PropertyWindow.NormalFont" of the app style. */
	static FSlateFontInfo GetRegularFont();
};

/** Shows the values of one property type in its own way. One instance per property that is shown; the panel keeps it as long as its rows. */
class IPropertyTypeCustomization : public TSharedFromThis<IPropertyTypeCustomization>
{
public:
	virtual ~IPropertyTypeCustomization() = default;

	/** Fills the row of the property itself; a row left empty is not shown. */
	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;

	/** Adds the rows below it. */
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& CustomizationUtils) = 0;
};
