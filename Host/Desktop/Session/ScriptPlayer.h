// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/UnrealString.h"
#include "ExitStatus.h"

class FDesktopEditor;
class FMainWindow;

/** Plays a script in the window: what it reads there is what it reads without one. */
namespace ScriptPlayer
{
	/** Of the window, so that pictures compare. */
	inline const QSize PictureSize(1440, 900);

	/**
	 * @param PictureFolder where each part of the script, up to the next heading, leaves a picture of the window named after its heading,
	 *                      and each "print snapshot" one of that panel; empty for none
	 * @param Pace          seconds between two steps
	 */
	EExitStatus Play(const FString& File, const FString& PictureFolder, double Pace, FDesktopEditor& Editor, FMainWindow& Window);
}
