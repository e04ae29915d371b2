// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Run/ScriptSession.h"

class FDesktopEditor;

/** Saving, one asset after the other, with a progress that can be cancelled between two of them: each is saved whole or not at all. */
namespace SaveSteps
{
	struct FResult
	{
		FScriptSession::FSaved Saved;
		int32 NumLeft = 0; // that were not reached when somebody cancelled
		QString Reasons; // why some could not be saved, a line each

		bool IsWhole() const { return NumLeft == 0 && Saved.Failed.IsEmpty() && Saved.Homeless.IsEmpty(); }
	};

	/** @param Packages as FScriptSession::GetUnsaved() names them */
	FResult Save(FDesktopEditor& Editor, QWidget& Window, const TArray<FString>& Packages);
}
