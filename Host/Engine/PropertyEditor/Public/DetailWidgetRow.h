// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Types/SlateEnums.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

class FDetailWidgetRow;

/** One column of a row: `.ValueContent().MinDesiredWidth(250.0f)[ SNew(…) ]`. */
class PROPERTYEDITOR_API FDetailWidgetDecl
{
public:
	FDetailWidgetDecl(FDetailWidgetRow& InParentDecl, float InMinWidth, float InMaxWidth, EHorizontalAlignment InHAlign, EVerticalAlignment InVAlign)
		: HorizontalAlignment(InHAlign)
		, VerticalAlignment(InVAlign)
		, MinWidth(InMinWidth)
		, MaxWidth(InMaxWidth)
		, ParentDecl(InParentDecl)
	{
	}

	FDetailWidgetDecl& HAlign(EHorizontalAlignment InAlignment)
	{
		HorizontalAlignment = InAlignment;
		return *this;
	}

	FDetailWidgetDecl& VAlign(EVerticalAlignment InAlignment)
	{
		VerticalAlignment = InAlignment;
		return *this;
	}

	/** In Slate units; unset leaves the width to the widget. */
	FDetailWidgetDecl& MinDesiredWidth(TOptional<float> InMinWidth)
	{
		MinWidth = InMinWidth;
		return *this;
	}

	/** In Slate units; unset, or 0, is no limit. */
	FDetailWidgetDecl& MaxDesiredWidth(TOptional<float> InMaxWidth)
	{
		MaxWidth = InMaxWidth;
		return *this;
	}

	/** Fills the column, and goes on with the row. */
	FDetailWidgetRow& operator[](TSharedRef<SWidget> InWidget)
	{
		Widget = InWidget;
		return ParentDecl;
	}

	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;
	TOptional<float> MinWidth;
	TOptional<float> MaxWidth;

private:
	FDetailWidgetRow& ParentDecl;
};

/** What a customization puts into one row of a details panel: a name and a value, or one widget over the whole row. */
class PROPERTYEDITOR_API FDetailWidgetRow
{
public:
	static const float DefaultValueMinWidth; // Slate units
	static const float DefaultValueMaxWidth;

	FDetailWidgetRow();
	FDetailWidgetRow(const FDetailWidgetRow&) = delete; // its columns lead back to it
	FDetailWidgetRow& operator=(const FDetailWidgetRow&) = delete;

	FDetailWidgetDecl& NameContent() { return NameWidget; }
	FDetailWidgetDecl& ValueContent() { return ValueWidget; }
	/** Name and value do not show beside it. */
	FDetailWidgetDecl& WholeRowContent() { return WholeRowWidget; }
	/** Behind the value. */
	FDetailWidgetDecl& ExtensionContent() { return ExtensionWidget; }
	FDetailWidgetRow& operator[](TSharedRef<SWidget> InWidget) { return WholeRowWidget[InWidget]; }

	/** What the row is found by when the panel is searched. */
	FDetailWidgetRow& FilterString(const FText& InFilterString);
	FDetailWidgetRow& Visibility(const TAttribute<EVisibility>& InVisibility);
	FDetailWidgetRow& IsEnabled(const TAttribute<bool>& InIsEnabled);

	bool HasNameContent() const { return NameWidget.Widget != SNullWidget::NullWidget; }
	bool HasValueContent() const { return ValueWidget.Widget != SNullWidget::NullWidget; }
	/** Whether there is a name, a value or what is behind it. */
	bool HasColumns() const;
	bool HasAnyContent() const;

	FDetailWidgetDecl NameWidget;
	FDetailWidgetDecl ValueWidget;
	FDetailWidgetDecl WholeRowWidget;
	FDetailWidgetDecl ExtensionWidget;
	FText FilterTextString;
	TAttribute<EVisibility> VisibilityAttr = EVisibility::Visible;
	TAttribute<bool> IsEnabledAttr = true;
};
