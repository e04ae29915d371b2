// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "HostFiles.h"
#include "UObject/NameTypes.h"

/** What an editor is started with. */
struct FEditorHostOptions
{
	/** A .uproject, or a folder. Relative to the working directory. */
	FString Project;

	/**
	 * The process's command line: switches that the plugins read, and the engine's own:
	 * -unattended (nobody answers questions), -run=NAME (a commandlet: no user interface), -nullrhi (a user interface that is not drawn).
	 */
	FString CommandLine;

	/** Whether notifications are shown; the switch for it is process-wide in the engine, and lasts as long as the editor here. */
	bool bAllowNotifications = true;

	/** Whose configuration counts, one of HostConfig::GetPlatforms(); empty: this machine's. */
	FString Platform;

	/** Folders whose sub-folders are plugins; empty: those that come with the program. */
	TArray<FString> PluginDirs;

	/** Where user settings go; empty: $XDG_CONFIG_HOME/velmorant or ~/.config/velmorant. */
	FString UserSettingsDir;

	/** Keep all writes in memory: the editor sees them, the disk stays untouched. */
	bool bWriteOverlay = false;

	/** With an overlay: what it holds from the beginning, as an earlier editor left its own (HostFiles::GetPendingWrites). */
	TArray<HostFiles::FPendingWrite> OverlayWrites;

	/** Where the editor may write, beside the user's own settings; empty: everywhere. */
	TArray<FString> WriteFolders;

	/** What a person is told to do who wants to write elsewhere. */
	FString WriteRemedy;

	/** Collect garbage in every tick: finds objects that somebody holds without saying so. */
	bool bCollectEveryTick = ShouldCollectEveryTick();

	/** Whether the environment variable VELMORANT_COLLECT_EVERY_TICK is set. */
	static bool ShouldCollectEveryTick();
};

/**
 * One running editor: constructing it brings the engine up, loads the modules of the plugins and opens the start-up map; destroying it
 * takes everything down, so that the next one in the same process starts fresh. One at a time; single thread.
 *
 * What goes wrong with files is told to HostProblems; log lines and notifications are recorded by their own modules. The log
 * survives the editor until the next one starts.
 */
class FEditorHost
{
public:
	explicit FEditorHost(const FEditorHostOptions& Options);
	~FEditorHost();

	FEditorHost(const FEditorHost&) = delete;
	FEditorHost& operator=(const FEditorHost&) = delete;

	/**
	 * Lets time pass in steps of at most TickSeconds, as frames do: tickers run, notifications fade, widgets rebuild; garbage is
	 * collected now and then. Seconds may be 0 for one single frame.
	 */
	void Tick(double Seconds);

	/** Seconds; coarse enough to be quick, fine enough for the durations that people notice. */
	static constexpr double TickSeconds = 0.1;

private:
	void BringUpEngine(const FEditorHostOptions& Options);
	void MountContent();
	void LoadPluginModules();
	void OpenStartupMap();
	void TickFrame(double Seconds);

	TArray<FName> PluginModules; // in order of loading
	double SecondsSinceCollection = 0.0;
	bool bCollectEveryTick = false;
};
