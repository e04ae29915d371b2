// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/Array.h"
#include "GameFramework/Actor.h"

class UWorld;
struct FSlateBrush;

/** The open level's actors, and what a person does with them; each act is one step of undo. For use within FDesktopEditor::Do(). */
namespace LevelActors
{
	/** Null while no level is open. */
	UWorld* GetWorld();

	/** In the level's order. */
	TArray<AActor*> GetAll();

	/** In order of selection. */
	TArray<AActor*> GetSelected();

	/** Selects these and nothing else. No step when they are selected already. */
	void Select(const TArray<AActor*>& Actors);

	/** Blanks around the label do not count; an empty one changes nothing. */
	void Rename(AActor& Actor, const QString& Label);

	void Delete(const TArray<AActor*>& Actors);

	/** Moves the cameras of all viewports there, as the toolkit does. */
	void LookAt(const TArray<AActor*>& Actors);

	/** What the class of an actor is called, and its icon in the style sets; null when it has none. */
	QString GetClassTitle(const UClass& Class);
	const FSlateBrush* FindClassIcon(const UClass& Class);
}

/**
 * Notices that something changed that can be seen of the level's actors, selection included. Looks at every actor: in large
 * levels, the longer that takes, the more rarely it is done, so that they do not slow the window down.
 */
class FLevelWatch
{
public:
	/** @return whether anything changed since the last call; true the first time */
	bool HasChanged();

	/** The next call says yes. */
	void Forget() { bLooked = false; }

private:
	quint64 LastStamp = 0;
	bool bLooked = false;
	QElapsedTimer SinceLook;
	qint64 CostOfLook = 0; // nanoseconds
};
