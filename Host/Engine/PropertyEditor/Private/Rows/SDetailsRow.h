// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidget.h"
#include "Widgets/SCompoundWidget.h"

class FDetailWidgetRow;
class FHostSearchWords;
class FPropertyNode;
class IPropertyTypeCustomization;

/**
 * One line of a details panel, a name and a value or one widget over both, with the lines below it; or the heading of a category.
 *
 * Its children are what stands in the line, then the lines below that the search leaves. A value that is one plain widget is not
 * among them: it reads as the value of the line, and the line takes its input.
 */
class SDetailsRow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDetailsRow)
		{
		}
		/** A category with this title; the row's content is not looked at. */
		SLATE_ARGUMENT(FText, Heading)
		/** Further words that the row is found by. */
		SLATE_ARGUMENT(FString, SearchWords)
		/** Kept as long as the row. */
		SLATE_ARGUMENT(TSharedPtr<IPropertyTypeCustomization>, Customization)
		/** Of rows whose lines below are the elements of a container. */
		SLATE_ARGUMENT(TSharedPtr<FPropertyNode>, Container)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FDetailWidgetRow& Content);

	void AddRow(const TSharedRef<SDetailsRow>& Row) { Rows.Add(Row); }
	const TArray<TSharedRef<SDetailsRow>>& GetRows() const { return Rows; }
	/** Of a row whose header a customization left empty; its rows took its place. */
	void KeepCustomization(const TSharedRef<IPropertyTypeCustomization>& InCustomization) { Customizations.Add(InCustomization); }

	bool IsHeading() const { return !Heading.IsEmpty(); }
	/** Both columns; the name is SNullWidget::NullWidget where one widget stands over both. */
	const TSharedRef<SWidget>& GetNameWidget() const { return NameWidget; }
	const TSharedRef<SWidget>& GetValueWidget() const { return ValueWidget; }

	/** The name column as text, or the heading. */
	FString GetTitle() const;

	/** A row stays when it, one above or one below it has all the words. @return whether it stays */
	bool ApplySearch(const FHostSearchWords& Words, bool bFoundAbove);

	/** Makes rows for elements that came, and drops those of elements that went. @return whether there were any */
	bool FitElements();

	virtual FChildren* GetChildren() override;

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;
	virtual void ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions) override;
	virtual void ListPartsForHost(TArray<FHostWidgetPart>& OutParts) override;

private:
	TSharedPtr<SWidget> FindPlainValue() const;
	TSharedPtr<SWidget> FindTaker(EHostInput Kind) const;
	bool IsNamePlain() const;

	FText Heading;
	FString SearchWords;
	TSharedRef<SWidget> NameWidget = SNullWidget::NullWidget;
	TSharedRef<SWidget> ValueWidget = SNullWidget::NullWidget; // or what stands over the whole row
	TSharedRef<SWidget> ExtensionWidget = SNullWidget::NullWidget;
	TArray<TSharedRef<SDetailsRow>> Rows;
	TArray<TSharedPtr<IPropertyTypeCustomization>> Customizations;
	TSharedPtr<FPropertyNode> Container;
	TArray<TSharedRef<FPropertyNode>> ShownElements; // of the container
	TPanelChildren<FSlotBase> Shown; // made anew whenever somebody looks
	bool bFound = true;
};
