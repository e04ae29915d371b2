// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

class FDetailsCategories;
class FDetailsSearch;
class FDetailsSections;
class FPropertyNode;
class IPropertyHandle;
class SDetailsRow;
class SHostPartList;
class SWidget;
class UObject;

/**
 * A details panel: all properties of some objects that a person may edit, by category, one row each.
 *
 * Objects of different classes share the properties of their nearest common class. The panel keeps none of them alive; those that go
 * leave it, and with the last one it is empty. It keeps in step with the values by itself, and with the number of elements of containers
 * at the next tick.
 *
 * To be destroyed before the editor goes down.
 */
class FHostDetailsView
{
public:
	explicit FHostDetailsView(const TArray<UObject*>& InObjects);
	~FHostDetailsView();
	FHostDetailsView(const FHostDetailsView&) = delete;
	FHostDetailsView& operator=(const FHostDetailsView&) = delete;

	/** Shows other objects. Handles of the panel lose their values. */
	void SetObjects(const TArray<UObject*>& InObjects);
	/** Empty when they are gone. */
	TArray<UObject*> GetObjects() const;

	/** Shows only the categories of a section; None shows all. A section that the objects' classes do not have shows nothing. */
	void SetSection(FName InSection);

	/** Shows only rows, with those around them, whose name or search text contains all words; case does not count. */
	void SetFilter(const FString& Text);

	/** The panel; the same widget as long as the view lives. */
	TSharedRef<SWidget> GetWidget();

	/** "Icon.IconName", "Rooms[2].Title", "Prices[Oak]"; shown or not. Null when there is no such property. */
	TSharedPtr<IPropertyHandle> FindHandle(const FString& Path) const;

	/** Names of the rows, those below others included, with the path of the property in parentheses where they differ. */
	TArray<FString> GetRowTitles();

	/** The headings of categories, in order, with all rows below them. */
	const TArray<TSharedRef<SDetailsRow>>& GetCategories() const;

	/** Makes all rows anew, as with new customizations. Handles of the panel lose their values. */
	void Rebuild();

private:
	bool HandleTick(float DeltaTime);
	void Refresh();
	void MakeRows();

	TSharedRef<FPropertyNode> Root;
	TUniquePtr<FDetailsCategories> Categories;
	TUniquePtr<FDetailsSections> Sections;
	TUniquePtr<FDetailsSearch> Search;
	TSharedRef<SHostPartList> Panel; // search box, section buttons, categories
	FTSTicker::FDelegateHandle Ticker;
};
