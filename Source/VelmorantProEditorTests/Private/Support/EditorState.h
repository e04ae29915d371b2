// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class AActor;
class UPackage;
class UWorld;

/**
 * The editor as a test found it: the open level, the selection and the steps of undo. At its end, actors that came since go, those that were
 * selected are so again, steps that were added are taken back, and the level has no changes that it did not have before.
 */
class FVelmorantEditorState
{
public:
	FVelmorantEditorState();
	~FVelmorantEditorState();
	FVelmorantEditorState(const FVelmorantEditorState&) = delete;
	FVelmorantEditorState& operator=(const FVelmorantEditorState&) = delete;

	UWorld* GetWorld() const { return World; }

	/** How many steps can be undone beyond those that could before. */
	int32 CountNewSteps() const;

private:
	TArray<TWeakObjectPtr<AActor>> FindActors() const;
	static int32 CountSteps();

	UWorld* World;
	UPackage* LevelPackage;
	TArray<TWeakObjectPtr<AActor>> Actors;
	TArray<TWeakObjectPtr<AActor>> Selected;
	int32 NumSteps;
	bool bLevelWasDirty;
};

/** Whether notifications are shown, which is one switch for the whole editor: as it was at the end of a scope. */
class FVelmorantNotificationsAllowed
{
public:
	explicit FVelmorantNotificationsAllowed(bool bAllowed);
	~FVelmorantNotificationsAllowed();
	FVelmorantNotificationsAllowed(const FVelmorantNotificationsAllowed&) = delete;
	FVelmorantNotificationsAllowed& operator=(const FVelmorantNotificationsAllowed&) = delete;

private:
	bool bWereAllowed;
};
