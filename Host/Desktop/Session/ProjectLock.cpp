// Copyright Velmorant. All Rights Reserved.

#include "Session/ProjectLock.h"

bool FProjectLock::Take(const QString& ProjectFolder)
{
	const QDir Saved(ProjectFolder + QStringLiteral("/Saved"));
	if (!Saved.mkpath(QStringLiteral(".")))
	{
		return true;
	}
	File = std::make_unique<QLockFile>(Saved.filePath(QStringLiteral("EditorWindow.lock")));
	File->setStaleLockTime(0); // however old, it holds while its process runs
	return File->tryLock() || File->error() != QLockFile::LockFailedError;
}

QString FProjectLock::DescribeOwner() const
{
	qint64 Process = 0;
	QString Host;
	QString Program;
	if (!File || !File->getLockInfo(&Process, &Host, &Program))
	{
		return QObject::tr("another window");
	}
	return QObject::tr("process %1 on %2").arg(Process).arg(Host);
}
