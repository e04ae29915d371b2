// Copyright Velmorant. All Rights Reserved.

#include "Session/OutsideChanges.h"

#include "HostFiles.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "QtText.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

#include <QDateTime>
#include <QFileInfo>

QStringList FOutsideChanges::FindFiles()
{
	QStringList Files;
	for (const FString& File : HostFiles::FindFilesIn(HostPaths::GetProjectDir() + TEXT("/Config"), TEXT(".ini")))
	{
		Files.append(QtText::From(File));
	}
	if (!HostPaths::GetProjectFile().IsEmpty())
	{
		Files.append(QtText::From(HostPaths::GetProjectFile()));
	}
	for (TObjectIterator<UPackage> It; It; ++It)
	{
		const FString Name = It->GetName();
		const FString File = HostPackages::IsValidPackageName(Name) ? HostPackages::FindFile(Name) : FString();
		if (!File.IsEmpty())
		{
			Files.append(QtText::From(File));
		}
	}
	return Files;
}

FOutsideChanges::FState FOutsideChanges::ReadState(const QString& File)
{
	FState State;
	State.NumOwn = HostFiles::GetNumChanges(QtText::ToEditor(File));
	const QFileInfo Info(File);
	if (Info.exists())
	{
		State.Size = Info.size();
		State.Time = Info.lastModified().toMSecsSinceEpoch();
	}
	return State;
}

bool FOutsideChanges::IsOthers(const QString& File)
{
	const FState Now = ReadState(File);
	const auto Before = Known.constFind(File);
	const bool bNews = Before != Known.constEnd() && !(*Before == Now) && Before->NumOwn == Now.NumOwn;
	Known[File] = Now;
	return bNews;
}

bool FOutsideChanges::Look()
{
	const qsizetype NumBefore = Changed.size();
	QStringList Files = FindFiles();
	for (auto Each = Known.constBegin(); Each != Known.constEnd(); ++Each)
	{
		Files.append(Each.key()); // a deleted one is found no more
	}
	Files.removeDuplicates();
	for (const QString& File : Files)
	{
		if (IsOthers(File) && !Changed.contains(File))
		{
			Changed.append(File);
		}
	}
	return Changed.size() > NumBefore;
}

void FOutsideChanges::Forget()
{
	Known.clear();
	Changed.clear();
}
