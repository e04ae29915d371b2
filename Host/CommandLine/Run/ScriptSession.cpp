// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptSession.h"

#include "Editor.h"
#include "Engine/World.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

FScriptSession::FScriptSession(const FEditorHostOptions& InOptions)
	: Options(InOptions)
	, Files(FPaths::GetPath(InOptions.Project) + TEXT("/"))
{
}

FScriptSession::~FScriptSession()
{
	TakeDown();
}

void FScriptSession::Start()
{
	if (!IsRunning())
	{
		BringUp();
	}
}

void FScriptSession::Restart()
{
	TakeDown();
	BringUp();
}

bool FScriptSession::WantsRestart() const
{
	return IsRunning() && !HostEditor::GetRestartRequests().IsEmpty();
}

void FScriptSession::BringUp()
{
	Events.StartAnew();
	Editor = MakeUnique<FEditorHost>(Options);
	HostQuestions::SetResponder([this](const FHostQuestion& Question) { return Answer(Question); });
	Events.Collect();
}

void FScriptSession::TakeDown()
{
	if (!IsRunning())
	{
		return;
	}
	if (GoingDown)
	{
		GoingDown();
	}
	Panels.CloseAll();
	Toolbar.Close();
	Details.CloseAll();
	Events.Collect();
	for (const FString& File : HostFiles::GetWrittenFiles())
	{
		EarlierWrites.AddUnique(File);
	}
	NumEarlierProblems += HostProblems::GetAll().Num();
	Editor.Reset();
	Events.CollectLog(); // what it said while going down
}

TArray<FString> FScriptSession::GetUnsaved() const
{
	TArray<FString> Names;
	if (!IsRunning())
	{
		return Names;
	}
	for (const UPackage* Package : HostPackages::GetDirtyPackages())
	{
		Names.Add(Package->GetName());
	}
	const UWorld* World = GEditor->GetEditorWorldContext().World();
	if (World != nullptr && World->GetPackage()->IsDirty())
	{
		Names.AddUnique(World->GetPackage()->GetName());
	}
	return Names;
}

FScriptSession::FSaved FScriptSession::Save(const TArray<FString>& Packages)
{
	FSaved Result;
	for (const FString& Name : Packages)
	{
		if (!HostPackages::IsValidPackageName(Name))
		{
			Result.Homeless.Add(Name);
			continue;
		}
		const bool bSaved = Name == HostEditor::GetOpenMap() ? HostEditor::SaveOpenMap() : HostPackages::Save(FindPackage(nullptr, *Name)).Succeeded();
		(bSaved ? Result.Saved : Result.Failed).Add(Name);
	}
	return Result;
}

TOptional<FHostAnswer> FScriptSession::Answer(const FHostQuestion& Question)
{
	const TOptional<FHostAnswer> Prepared = Answers.Answer(Question);
	return !Prepared.IsSet() && Person ? Person(Question) : Prepared;
}

TArray<FString> FScriptSession::GetWrittenFiles() const
{
	TArray<FString> Written = EarlierWrites;
	if (IsRunning())
	{
		for (const FString& File : HostFiles::GetWrittenFiles())
		{
			Written.AddUnique(File);
		}
	}
	for (FString& File : Written)
	{
		File = Files.MakeRelative(File);
	}
	return Written;
}

int32 FScriptSession::GetNumProblems() const
{
	return NumEarlierProblems + (IsRunning() ? HostProblems::GetAll().Num() : 0);
}
