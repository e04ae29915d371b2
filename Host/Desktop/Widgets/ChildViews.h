// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Layout/SlateLayout.h"
#include "Widgets/WidgetView.h"

#include <memory>
#include <vector>

/** The views of what lies in one box, kept in step with its parts: a place keeps its view for as long as its widget is of the same kind. */
class FChildViews
{
public:
	/** @param InBox gets the views as children; InLayout, which lays them out, is its layout or a part of that */
	FChildViews(IViewHost& InHost, QWidget& InBox, FSlateLayout& InLayout);
	~FChildViews();
	FChildViews(const FChildViews&) = delete;
	FChildViews& operator=(const FChildViews&) = delete;

	void Fit(const TArray<FHostWidgetPart>& Parts);

	/** Mouse and keyboard pass through, as through what stands on a button. */
	void MakeInert() { bInert = true; }

	/** Those that show, in order. */
	std::vector<QWidget*> GetScreens() const;

private:
	struct FPlace
	{
		FString Role; // empty while nothing was to be shown there yet
		std::unique_ptr<FWidgetView> View;
		QWidget* Screen = nullptr; // the view's, or one that never shows
	};

	void FitPlace(int Index, const FHostWidgetPart& Part);

	IViewHost& Host;
	QWidget& Box;
	FSlateLayout& Layout;
	std::vector<FPlace> Places;
	bool bInert = false;
};
