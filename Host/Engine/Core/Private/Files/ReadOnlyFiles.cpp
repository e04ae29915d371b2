// Copyright Velmorant. All Rights Reserved.

#include "Files/ReadOnlyFiles.h"

#include "Containers/StringConv.h"
#include "Files/DiskFile.h"
#include "Files/NativePath.h"
#include "Files/ShellCommand.h"
#include "HostPaths.h"
#include "HostQuestions.h"
#include "Internationalization/Internationalization.h"
#include "Misc/ConfigCacheIni.h"

#include <algorithm>
#include <cerrno>

#define LOCTEXT_NAMESPACE "ReadOnlyFiles"

namespace ReadOnlyFiles
{
	const TCHAR* const MakeWritable = TEXT("Make Writable");
	const TCHAR* const CheckOut = TEXT("Check Out");
	const TCHAR* const Leave = TEXT("Leave");

	/** Of the project itself: what stands in any folder tells that it is a working copy. */
	const char* const Markers[] = {".git", ".hg", ".svn", ".p4config"};

	FString GetCheckOutCommand()
	{
		FString Command;
		if (GConfig != nullptr)
		{
			GConfig->GetString(TEXT("Velmorant.VersionControl"), TEXT("CheckOutCommand"), Command, GEditorIni);
		}
		return Command;
	}

	bool HasMarker(const std::string& Folder)
	{
		return std::any_of(std::begin(Markers), std::end(Markers), [&Folder](const char* Marker) {
			return WriteRules::FOnDisk((Folder == "/" ? Folder : Folder + "/") + Marker).bExists;
		});
	}

	bool IsWorkingCopy(std::string Folder)
	{
		while (!HasMarker(Folder))
		{
			if (Folder == "/")
			{
				return false;
			}
			Folder = NativePath::FolderOf(Folder);
		}
		return true;
	}

	FString Ask(const std::string& Path, bool bCanCheckOut)
	{
		FHostQuestion Question;
		Question.Kind = FName(TEXT("ReadOnlyFile"));
		Question.Title = LOCTEXT("Title", "Read-only File");
		Question.Message = FText::Format(LOCTEXT("Message", "{0} is read-only. What is to be done before it is written?"), FText::FromString(NativePath::ToString(Path)));
		Question.Choices = {MakeWritable, Leave};
		if (bCanCheckOut)
		{
			Question.Choices.Insert(CheckOut, 0);
		}
		Question.DefaultChoice = Leave;
		return HostQuestions::Ask(Question).Choice;
	}

	bool Unlock(const std::string& Path, const WriteRules::FOnDisk& OnDisk)
	{
		if (chmod(Path.c_str(), (OnDisk.Status.st_mode & 07777) | S_IWUSR) != 0)
		{
			WriteRules::ReportNotWritten(Path, WriteRules::Describe(TEXT("the file cannot be made writable"), errno), TEXT("Check whose file it is."));
			return false;
		}
		return true;
	}

	/** What is about to be written was made from what the file held: with anything else in it, that is not to be lost. */
	bool RunCheckOut(const std::string& Path, const FString& Command, const std::string& ProjectFolder)
	{
		std::string Before;
		std::string After;
		DiskFile::Read(Path, Before);
		const int Status = ShellCommand::Run(TCHAR_TO_UTF8(*Command), Path, ProjectFolder);
		if (Status != 0)
		{
			WriteRules::ReportNotWritten(Path, FString::Printf(TEXT("the file was not checked out, \"%s\" ended with status %d"), *Command, Status), TEXT("Check it out by hand, then try again."));
			return false;
		}
		if (DiskFile::Read(Path, After) != 0 || After != Before)
		{
			WriteRules::ReportNotWritten(Path, TEXT("the file was not written: checking it out brought another version of it"), TEXT("Open the project again, then try again."));
			return false;
		}
		return true;
	}

	bool AskToOpen(const std::string& Path, WriteRules::FOnDisk& InOutOnDisk)
	{
		if (!InOutOnDisk.bExists || !S_ISREG(InOutOnDisk.Status.st_mode) || !DiskFile::IsReadOnly(Path, InOutOnDisk.Status))
		{
			return true;
		}
		const std::string Project = NativePath::Resolve(HostPaths::GetProjectDir());
		const FString Command = GetCheckOutCommand();
		if (!Path.starts_with(Project + "/") || (Command.IsEmpty() && !IsWorkingCopy(Project)))
		{
			return true;
		}
		const FString Choice = Ask(Path, !Command.IsEmpty());
		bool bGoOn = true;
		if (Choice == MakeWritable)
		{
			bGoOn = Unlock(Path, InOutOnDisk);
		}
		else if (Choice == CheckOut)
		{
			bGoOn = RunCheckOut(Path, Command, Project);
		}
		InOutOnDisk = WriteRules::FOnDisk(Path);
		return bGoOn;
	}
}

#undef LOCTEXT_NAMESPACE
