// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

class FDetailWidgetRow;

/** One column of a row: `.ValueContent().MinDesiredWidth(250.0f)[ SNew(…) ]`. */
class PROPERTYEDITOR_API FDetailWidgetDecl
{
public:
	explicit FDetailWidgetDecl(FDetailWidgetRow& InParentDecl)
		: ParentDecl(InParentDecl)
	{
	}

	/** In Slate units; unset leaves the width to the widget. */
	FDetailWidgetDecl& MinDesiredWidth(TOptional<float> InMinWidth)
	{
		MinWidth = InMinWidth;
		return *this;
	}

	/** Fills the column, and goes on with the row. */
	FDetailWidgetRow& operator[](TSharedRef<SWidget> InWidget)
	{
		Widget = InWidget;
		return ParentDecl;
	}

	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
	TOptional<float> MinWidth; // Host: nothing is laid out, so nobody asks

private:
	FDetailWidgetRow& ParentDecl;
};

/** What a customization puts into one row of a details panel: a name and a value. */
class PROPERTYEDITOR_API FDetailWidgetRow
{
public:
	FDetailWidgetRow();
	FDetailWidgetRow(const FDetailWidgetRow&) = delete; // its columns lead back to it
	FDetailWidgetRow& operator=(const FDetailWidgetRow&) = delete;

	FDetailWidgetDecl& NameContent() { return NameWidget; }
	FDetailWidgetDecl& ValueContent() { return ValueWidget; }
	/** Behind the value. */
	FDetailWidgetDecl& ExtensionContent() { return ExtensionWidget; }

	/** Whether anything was put into it. */
	bool HasAnyContent() const;

	FDetailWidgetDecl NameWidget;
	FDetailWidgetDecl ValueWidget;
	FDetailWidgetDecl ExtensionWidget;
};
