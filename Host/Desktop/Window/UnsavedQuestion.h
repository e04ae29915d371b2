// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class FDesktopEditor;

/** Asked before unsaved work would be lost. */
namespace UnsavedQuestion
{
	/**
	 * Asks when something is unsaved, and saves it when told to; what cannot be saved is told.
	 * @param Without "Close without saving"
	 * @return whether to go on
	 */
	bool MayGoOn(FDesktopEditor& Editor, QWidget& Window, const QString& Without);
}
