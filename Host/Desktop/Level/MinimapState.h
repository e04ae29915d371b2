// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Slate/WidgetTransform.h"

/** What the level's minimap shows: the floors of its configuration, and where the active one stands on the screen. */
struct FMinimapState
{
	enum class EMissing : uint8
	{
		Nothing,
		Controller, // the level has none
		Configuration, // the controller has none
		Floors, // the configuration has none
	};

	EMissing Missing = EMissing::Controller;
	QStringList Floors; // lowest first
	int Active = -1; // -1 while none is
	FWidgetTransform Transform; // of the active floor

	/** Of the first controller in the open level. */
	static FMinimapState Read();

	/** Makes a floor the active one; one step of undo. */
	static void Activate(int Floor);

	/** Selects the controller, so that the details panel shows it. */
	static void SelectController();

	bool operator==(const FMinimapState& Other) const
	{
		return Missing == Other.Missing && Floors == Other.Floors && Active == Other.Active && Transform == Other.Transform;
	}
};
