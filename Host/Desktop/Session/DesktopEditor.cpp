// Copyright Velmorant. All Rights Reserved.

#include "Session/DesktopEditor.h"

#include "ProgramFault.h"

#include <algorithm>
#include <exception>

namespace DesktopEditor
{
	/** After a pause of the program, such as a laptop's sleep, time goes on where it stood. */
	static const double LongestFrame = 1.0; // seconds
}

FDesktopEditor::FDesktopEditor(const FEditorHostOptions& Options)
	: Session(Options)
{
	Session.SetGoingDownListener([this] {
		if (OnGoingDown)
		{
			OnGoingDown();
		}
	});
}

FDesktopEditor::~FDesktopEditor() = default;

bool FDesktopEditor::Start()
{
	const bool bStarted = Do([this] { Session.Start(); });
	Clock.start();
	return bStarted;
}

bool FDesktopEditor::Do(const std::function<void()>& Act)
{
	if (bBroken)
	{
		return false;
	}
	++Depth;
	Unsaved.Reset();
	FString Reason;
	try
	{
		Act();
	}
	catch (const std::exception& Fault)
	{
		bBroken = true;
		Reason = ProgramFault::Describe(Fault);
	}
	--Depth;
	Unsaved.Reset();
	if (bBroken && OnBroken)
	{
		OnBroken(Reason);
	}
	return !bBroken;
}

const TArray<FString>& FDesktopEditor::GetUnsaved()
{
	if (!Unsaved.IsSet() || Depth == 0)
	{
		Unsaved = Session.GetUnsaved();
	}
	return Unsaved.GetValue();
}

void FDesktopEditor::Frame()
{
	const double Seconds = std::min(static_cast<double>(Clock.nsecsElapsed()) / 1e9, DesktopEditor::LongestFrame);
	Clock.restart();
	Let(Seconds);
}

/** Time stands while the editor is in the middle of something. */
void FDesktopEditor::Let(double Seconds)
{
	if (IsReady() && Do([this, Seconds] { Session.GetEditor().Tick(Seconds); }))
	{
		RestartIfWanted();
	}
}

void FDesktopEditor::RestartIfWanted()
{
	if (!Session.WantsRestart())
	{
		return;
	}
	const TArray<FString> Lost = Session.GetUnsaved();
	if (Do([this] { Session.Restart(); }) && OnRestarted)
	{
		OnRestarted(Lost);
	}
	Clock.restart();
}

FDesktopEditor::FStandstill::FStandstill(FDesktopEditor& InEditor)
	: Editor(InEditor)
{
	++Editor.Depth;
}

FDesktopEditor::FStandstill::~FStandstill()
{
	--Editor.Depth;
	Editor.Clock.restart();
}
