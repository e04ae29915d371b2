// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostDetailsView.h"
#include "ToolkitTest.h"
#include "VelmorantLevelActors.h"

class IPropertyHandle;

/**
 * A project with a palette and icon fonts, and the details panel of an interactive spot with a person's hands on it.
 *
 * Fonts: "Ship" with anchor (Bold, Thin; "port", "black ship"), sail-boat (Thin; "regatta"), boat-house (Bold; "regatta") and Buoy (Bold,
 * Thin); "House" with door (Round, Thin; "entry"); "Empty" without table. Palette: White and Both are simple colours; Text (half
 * transparent), Accent and Both are style colours.
 */
class FDetailsTest : public FToolkitTest
{
protected:
	/** Writes the project's palette and icon fonts; the settings name them when bUseThem. */
	explicit FDetailsTest(bool bUseThem = true);
	virtual void TearDown() override { View.Reset(); }

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

	/** Tool tips of the tiles on show, in order; the selected one in brackets. */
	std::vector<std::string> Tiles() const;

	TUniquePtr<FHostDetailsView> View;

private:
	void WritePalette() const;
	void WriteIcons() const;
	void Expect(const FHostInputResult& Result);
};
