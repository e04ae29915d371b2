// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Fonts/SlateFontInfo.h"
#include "IPropertyTypeCustomization.h"
#include "Search/FontIconFilter.h"
#include "Types/SlateEnums.h"
#include "UObject/StrongObjectPtr.h"

class FPropertyEditorModule;
class ITableRow;
class SSearchBox;
class SSearchableComboBox;
class STableViewBase;
class SWidget;
struct FFontIconData;
struct FFontIconRow;
template<typename ItemType>
class STileView;

/**
 * Shows an FFontIconHandler in the details panel: drop-down lists of fonts, styles and icons, and a grid of the icons that
 * can be searched. The chosen names live only in the property; lists and selection are derived from it.
 */
class FVelmorantFontIconHandlerCustomization : public IPropertyTypeCustomization
{
public:
	/** One icon of the font, as its row in the font's icon table has it. */
	struct FIconItemViewEntry
	{
		FIconItemViewEntry(FName InIconName, const FFontIconRow& Row);

		/** The row's name. */
		FName IconName;

		/** The styles in which the icon exists. */
		TArray<FName> IconStyles;

		/** Further words under which it is found. */
		TSet<FString> SearchTags;
	};

	static void Register(FPropertyEditorModule& PropertyEditor);
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

	//~ Begin IPropertyTypeCustomization
	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& CustomizationUtils) override;
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& CustomizationUtils) override;
	//~ End IPropertyTypeCustomization

private:
	using FIconItem = TSharedPtr<FIconItemViewEntry>;
	using FOptions = TArray<TSharedPtr<FString>>;

	/** A list of names to choose from, and what shows it. */
	struct FDropDown
	{
		FOptions Options;
		TSharedPtr<SSearchableComboBox> ComboBox;
	};

	FName GetValue(const TSharedPtr<IPropertyHandle>& Prop) const;
	void SetValue(const TSharedPtr<IPropertyHandle>& Prop, FName Value) const;

	/** The data of the current font; without a table when there is no such font, or no UI subsystem. Never null. */
	TSharedPtr<FFontIconData> GetFontIconData() const;
	FOptions GetFontIconOptions() const;
	FOptions GetIconStylesOptions() const;
	FOptions GetIconsNamesOptions() const;

	/** The font in which the tiles draw their glyphs. */
	FSlateFontInfo GetFontInfo() const;

	/** The glyph of an icon of the current font; "None" when the font has no such icon. */
	FText GetUnicodeText(FName IconName) const;
	FText GetCurrentUnicodeText() const;

	/** Takes the icons of the current font, unfiltered. A font without an icon table leaves the icons of the one before. */
	void FillSource();

	/** The icons that exist in the current style and match the text, in the table's order. */
	TArray<FIconItem> FilterListItems(const FString& FilterText) const;

	/** Shows the icons that match the text of the search box. */
	void UpdateFilterListView();
	void OnSearchTextChanged(const FText& Text);

	/** Shows the tile of the current icon as selected; changes nothing when no tile has it. */
	void SelectCurrentIconName();

	/** Selects the tile of an icon that was chosen elsewhere: the grid would take a click on the tile selected before for none. */
	void OnIconNameChanged();

	void OnFontOrStyleChanged();

	/** Handles do not tell of what undo and redo write. */
	void OnUndoRedo();
	void FillOptions();
	void RefreshDropDowns();

	void AddDropDownRow(IDetailChildrenBuilder& ChildBuilder, const TSharedPtr<IPropertyHandle>& Handle, FDropDown& DropDown);
	void OnDropDownOpening(TSharedPtr<IPropertyHandle> Handle, FDropDown* DropDown);
	void OnOptionChosen(TSharedPtr<FString> Option, ESelectInfo::Type SelectInfo, TSharedPtr<IPropertyHandle> Handle) const;

	TSharedRef<SWidget> MakeIconList();
	TSharedRef<ITableRow> MakeTileViewWidget(FIconItem Entry, const TSharedRef<STableViewBase>& OwnerTable);
	void OnIconSelected(FIconItem Entry, ESelectInfo::Type SelectInfo) const;

	TSharedPtr<IPropertyHandle> FontIconNameHandle;
	TSharedPtr<IPropertyHandle> IconStyleHandle;
	TSharedPtr<IPropertyHandle> IconNameHandle;
	TSharedPtr<IPropertyHandle> IconColorHandle;

	TSharedPtr<SSearchBox> SearchBox;
	TSharedPtr<STileView<FIconItem>> TileView;

	/** What the tile view shows. It keeps the address of this array: assign to it, never put another in its place. */
	TArray<FIconItem> FilteredItems;

	/** Every icon of the current font. */
	TArray<FIconItem> SourceItems;

	FFontIconFilter Filter; // always of SourceItems

	/** Null until a font with an icon table was chosen; has a table ever after. */
	TSharedPtr<FFontIconData> CurrentFontIconData;

	/** The table that CurrentFontIconData names: a plain copy does not keep it from being collected. */
	TStrongObjectPtr<UDataTable> CurrentIconTable;

	FDropDown FontDropDown;
	FDropDown StyleDropDown;
	FDropDown IconDropDown;
};
