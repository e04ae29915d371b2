// Copyright Velmorant. All Rights Reserved.

#include "DetailWidgetRow.h"

#include "IPropertyTypeCustomization.h"
#include "Styling/AppStyle.h"

const float FDetailWidgetRow::DefaultValueMinWidth = 125.0f;
const float FDetailWidgetRow::DefaultValueMaxWidth = 125.0f;

FDetailWidgetRow::FDetailWidgetRow()
	: NameWidget(*this, 0.0f, 0.0f, HAlign_Fill, VAlign_Center)
	, ValueWidget(*this, DefaultValueMinWidth, DefaultValueMaxWidth, HAlign_Left, VAlign_Center)
	, WholeRowWidget(*this, 0.0f, 0.0f, HAlign_Fill, VAlign_Fill)
	, ExtensionWidget(*this, 0.0f, 0.0f, HAlign_Right, VAlign_Center)
{
}

FDetailWidgetRow& FDetailWidgetRow::FilterString(const FText& InFilterString)
{
	FilterTextString = InFilterString;
	return *this;
}

FDetailWidgetRow& FDetailWidgetRow::Visibility(const TAttribute<EVisibility>& InVisibility)
{
	VisibilityAttr = InVisibility;
	return *this;
}

FDetailWidgetRow& FDetailWidgetRow::IsEnabled(const TAttribute<bool>& InIsEnabled)
{
	IsEnabledAttr = InIsEnabled;
	return *this;
}

bool FDetailWidgetRow::HasColumns() const
{
	return HasNameContent() || HasValueContent() || ExtensionWidget.Widget != SNullWidget::NullWidget;
}

bool FDetailWidgetRow::HasAnyContent() const
{
	return HasColumns() || WholeRowWidget.Widget != SNullWidget::NullWidget;
}

FSlateFontInfo IPropertyTypeCustomizationUtils::GetRegularFont()
{
	return FAppStyle::GetFontStyle("PropertyWindow.NormalFont");
}

FSlateFontInfo IPropertyTypeCustomizationUtils::GetBoldFont()
{
	return FAppStyle::GetFontStyle("PropertyWindow.BoldFont");
}
