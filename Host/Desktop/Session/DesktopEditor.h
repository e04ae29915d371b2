// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Run/ScriptSession.h"

#include <functional>

/**
 * The editor that the window shows, with its panels, and its time: as much passes as did on the clock, none while a question is open.
 *
 * What the editor does not survive is told, and ends the program; nothing that it throws reaches Qt.
 */
class FDesktopEditor
{
public:
	explicit FDesktopEditor(const FEditorHostOptions& Options);
	~FDesktopEditor();

	FScriptSession& GetSession() { return Session; }

	/** Brings the editor up. @return whether it is there */
	bool Start();

	/** Lets as much time pass as did since the last call, and restarts the editor when it asked for that. */
	void Frame();

	/** The same with time as somebody says. */
	void Let(double Seconds);

	/** Runs something in the editor, guarded. @return false when the editor broke down; it is not to be asked any more then */
	bool Do(const std::function<void()>& Act);

	/** Whether it can be asked: it runs, and is not in the middle of something. */
	bool IsReady() const { return !bBroken && Depth == 0 && Session.IsRunning(); }

	/** As FScriptSession::GetUnsaved(), looked up once for all who ask within one act, such as a frame. */
	const TArray<FString>& GetUnsaved();

	/** While the object is there, no time passes. */
	class FStandstill
	{
	public:
		explicit FStandstill(FDesktopEditor& InEditor);
		~FStandstill();
		FStandstill(const FStandstill&) = delete;
		FStandstill& operator=(const FStandstill&) = delete;

	private:
		FDesktopEditor& Editor;
	};

	/** Called around a restart: what shows widgets lets them go, and takes new ones. */
	std::function<void()> OnGoingDown;
	std::function<void(const TArray<FString>& Lost)> OnRestarted;
	/** Called once the editor broke down, with what it said. */
	std::function<void(const FString& Reason)> OnBroken;

private:
	void RestartIfWanted();

	FScriptSession Session;
	QElapsedTimer Clock;
	TOptional<TArray<FString>> Unsaved; // of the act that runs
	int Depth = 0; // of acts within acts, and of standstills
	bool bBroken = false;
};
