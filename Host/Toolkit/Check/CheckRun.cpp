// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckRun.h"

#include "EditorHost.h"
#include "HostEditor.h"

namespace CheckRun
{
	FEditorHostOptions MakeOptions(const FString& Project, const FEditorArguments& Editor)
	{
		FEditorHostOptions Options = EditorArguments::MakeOptions(Project, Editor);
		Options.bWriteOverlay = true;
		return Options;
	}

	/** Files as the running editor sees them. */
	TArray<FFileText> ReadPending()
	{
		TArray<FFileText> Texts;
		for (const HostFiles::FPendingWrite& Write : HostFiles::GetPendingWrites())
		{
			Texts.Add(FFileText::Read(Write.Path));
		}
		return Texts;
	}

	/** What the running editor's check found and wrote. */
	void LookAtCheck(FCheckRun& Run)
	{
		Run.Found = ToolkitVerdict::Read();
		Run.Verdict = Run.Found;
		Run.bHadProfile = SpoiledSetup::HasProfile();
		Run.CheckMessages = ToolkitVerdict::GetMessages();
		Run.CheckFiles = ReadPending();
	}

	/** What there is to say about the running editor before it goes down. */
	void LookAtEnd(FCheckRun& Run)
	{
		Run.Messages.Append(ToolkitVerdict::GetMessages());
		Run.SpoiledBy = SpoiledSetup::Find();
		Run.Files = ReadPending();
		Run.Writes = HostFiles::GetPendingWrites();
		Run.Problems.Append(HostProblems::GetAll());
	}

	/** Lets the toolkit add its lines, and restart the editor. @return whether the editor wants to restart. */
	bool PressRepairButtons()
	{
		return ToolkitVerdict::Accept() && ToolkitVerdict::Accept() && !HostEditor::GetRestartRequests().IsEmpty();
	}

	FCheckRun Check(const FString& Project, const FEditorArguments& Arguments)
	{
		FCheckRun Run;
		const FEditorHost Editor(MakeOptions(Project, Arguments));
		LookAtCheck(Run);
		LookAtEnd(Run);
		return Run;
	}

	FCheckRun Rehearse(const FString& Project, const FEditorArguments& Arguments)
	{
		FCheckRun Run;
		FEditorHostOptions Options = MakeOptions(Project, Arguments);
		{
			const FEditorHost Editor(Options);
			LookAtCheck(Run);
			const bool bRestart = Run.Found == EToolkitVerdict::Missing && HostProblems::GetAll().IsEmpty() && PressRepairButtons();
			Run.bRepaired = bRestart && HostProblems::GetAll().IsEmpty();
			LookAtEnd(Run);
		}
		if (Run.bRepaired)
		{
			Options.OverlayWrites = Run.Writes;
			const FEditorHost Editor(Options);
			Run.Verdict = ToolkitVerdict::Read();
			LookAtEnd(Run);
		}
		return Run;
	}
}
