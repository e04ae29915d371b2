// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

/**
 * Notices when somebody else changes, or deletes, a file that the running editor has read: its settings, its project file, and the files
 * of packages in memory. What the editor writes itself does not count.
 */
class FOutsideChanges
{
public:
	/** Touches each of those files; to be called every few seconds. @return whether more have changed than at the last look */
	bool Look();

	/** Full paths of what has changed since the editor came up, or since Forget(). */
	const QStringList& GetChanged() const { return Changed; }

	/** From now on, everything counts as read. */
	void Forget();

private:
	struct FState
	{
		qint64 Size = -1; // -1 for a file that is not there
		qint64 Time = 0; // of its last change, in milliseconds
		uint32 NumOwn = 0; // changes that the editor made itself

		bool operator==(const FState&) const = default;
	};

	static QStringList FindFiles();
	static FState ReadState(const QString& File);
	bool IsOthers(const QString& File);

	QHash<QString, FState> Known;
	QStringList Changed;
};
