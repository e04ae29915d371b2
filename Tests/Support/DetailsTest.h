// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostDetailsView.h"
#include "HostSnapshot.h"
#include "ToolkitTest.h"
#include "VelmorantLevelActors.h"
#include "WidgetSearch.h"

class IPropertyHandle;

/**
 * A project with a palette and icon fonts, and the details panel of an interactive spot with a person's hands on it.
 *
 * The palette is that of PaletteFile.h. Fonts: "Ship" with anchor (Bold, Thin; "port", "black ship", "buoy"), sail-boat (Thin; "regatta"),
 * boat-house (Bold; "regatta", "boat") and Buoy (Bold, Thin); "House" with door (Round, Thin; "entry"); "Empty" without table.
 */
class FDetailsTest : public FToolkitTest
{
protected:
	FDetailsTest();
	virtual void TearDown() override;

	static AVlmInteractiveSpot* SpawnSpot();

	/** Opens the details panel of the objects, and lets it draw once. */
	void Open(const TArray<UObject*>& Objects);

	/** Opens the panel of a new spot with this icon. */
	AVlmInteractiveSpot* OpenIcon(const TCHAR* Font, const TCHAR* Style, const TCHAR* Icon);

	TSharedPtr<IPropertyHandle> Find(const TCHAR* Path) const { return View->FindHandle(Path); }

	//~ What a person does. The test fails when the panel does not let them. Widgets are meant as in HostSnapshot.h.
	void Choose(const TCHAR* Row, const TCHAR* Option);
	void Type(const TCHAR* Widget, const TCHAR* Text);
	void Click(const TCHAR* Widget);
	void Check(const TCHAR* Widget, bool bOn);

	std::vector<std::string> Options(const TCHAR* Row) const;
	std::string Read(const TCHAR* Row) const;

	/** The first of that role in a row: what it holds, such as a swatch's colour. */
	std::string ReadPart(const TCHAR* Row, const TCHAR* Role) const;
	std::string Snapshot() const;

	/** All widgets of the class in a row, or in the whole panel without one, and what is open below it, in order. */
	template<typename WidgetType>
	std::vector<WidgetType*> All(const TCHAR* Row) const
	{
		FString Reason;
		const TSharedPtr<SWidget> Widget = Row ? HostSnapshot::Find(View->GetWidget(), Row, Reason) : View->GetWidget().ToSharedPtr();
		const std::vector<WidgetType*> Found = Widget.IsValid() ? AllWidgets<WidgetType>(*Widget) : std::vector<WidgetType*>();
		EXPECT_FALSE(Found.empty()) << ToUtf8(Reason);
		return Found;
	}

	/** Sizes of the boxes in a row that have one: "25 wide", "25 high". */
	std::vector<std::string> BoxSizes(const TCHAR* Row) const;

	/** Tool tips of the tiles on show, in order; the selected one in brackets. */
	std::vector<std::string> Tiles() const;

	TUniquePtr<FHostDetailsView> View;

private:
	void WriteIcons() const;
	void Expect(const FHostInputResult& Result);
};
