// Copyright Velmorant. All Rights Reserved.

#include "DetailWidgetRow.h"

#include "IPropertyTypeCustomization.h"
#include "Styling/AppStyle.h"

FDetailWidgetRow::FDetailWidgetRow()
	: NameWidget(*this)
	, ValueWidget(*this)
	, ExtensionWidget(*this)
{
}

bool FDetailWidgetRow::HasAnyContent() const
{
	for (const FDetailWidgetDecl* Column : {&NameWidget, &ValueWidget, &ExtensionWidget})
	{
		if (Column->Widget != SNullWidget::NullWidget)
		{
			return true;
		}
	}
	return false;
}

FSlateFontInfo IPropertyTypeCustomizationUtils::GetRegularFont()
{
	return FAppStyle::GetFontStyle("PropertyWindow.NormalFont");
}
