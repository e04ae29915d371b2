// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptSession.h"

#include "Containers/StringConv.h"
#include "Editor.h"
#include "Engine/World.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostPackages.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

FScriptSession::FScriptSession(const FEditorHostOptions& InOptions)
	: Options(InOptions)
	, ProjectDir(FPaths::GetPath(InOptions.Project) + TEXT("/"))
{
	ReadConfiguration();
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

void FScriptSession::ReadConfiguration()
{
	for (const FString& File : HostFiles::FindFilesIn(ProjectDir + TEXT("Config"), TEXT(".ini")))
	{
		HostTextFiles::ReadUtf8(File, FirstTexts[TCHAR_TO_UTF8(*File)]);
	}
	HostProblems::Clear(); // the editor reads them again, and tells
}

const std::string& FScriptSession::GetFirstText(const FString& Path)
{
	return FirstTexts[TCHAR_TO_UTF8(*Path)];
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

TArray<FString> FScriptSession::GetWrittenFiles() const
{
	TArray<FString> Files = EarlierWrites;
	if (IsRunning())
	{
		for (const FString& File : HostFiles::GetWrittenFiles())
		{
			Files.AddUnique(File);
		}
	}
	for (FString& File : Files)
	{
		File = MakeRelative(File);
	}
	return Files;
}

int32 FScriptSession::GetNumProblems() const
{
	return NumEarlierProblems + (IsRunning() ? HostProblems::GetAll().Num() : 0);
}

void FScriptSession::PrepareAnswer(FName Kind, const FHostAnswer& InAnswer, int32 ScriptLine)
{
	Answers.Add(FPreparedAnswer{Kind, InAnswer, ScriptLine});
}

TOptional<FHostAnswer> FScriptSession::Answer(const FHostQuestion& Question)
{
	const int32 Index = Answers.IndexOfByPredicate([&Question](const FPreparedAnswer& Each) { return Each.Kind == Question.Kind; });
	if (Index == INDEX_NONE)
	{
		return Person ? Person(Question) : TOptional<FHostAnswer>();
	}
	const FPreparedAnswer Prepared = Answers[Index];
	Answers.RemoveAt(Index);
	if (!Question.Choices.ContainsByPredicate([&Prepared](const FString& Choice) { return Choice.Equals(Prepared.Answer.Choice); }))
	{
		AnswerTrouble = FString::Printf(TEXT("the answer of line %d, \"%s\", is not one of: %s"), Prepared.ScriptLine, *Prepared.Answer.Choice,
			*FString::Join(Question.Choices, TEXT(", ")));
	}
	for (const TPair<FString, FString>& Field : Prepared.Answer.Fields)
	{
		if (!Question.Fields.Contains(Field.Key))
		{
			AnswerTrouble = FString::Printf(TEXT("the answer of line %d gives \"%s\", which was not asked for"), Prepared.ScriptLine, *Field.Key);
		}
	}
	return Prepared.Answer;
}

FString FScriptSession::TakeAnswerTrouble()
{
	FString Taken = MoveTemp(AnswerTrouble);
	AnswerTrouble = FString();
	return Taken;
}

TArray<int32> FScriptSession::GetUnusedAnswers() const
{
	TArray<int32> Lines;
	for (const FPreparedAnswer& Each : Answers)
	{
		Lines.Add(Each.ScriptLine);
	}
	return Lines;
}

FString FScriptSession::FindProjectFile(const FString& Relative) const
{
	const FString Full = FPaths::ConvertRelativePathToFull(FPaths::IsRelative(Relative) ? ProjectDir + Relative : Relative);
	return Full.StartsWith(ProjectDir, ESearchCase::CaseSensitive) ? Full : FString();
}

FString FScriptSession::MakeRelative(const FString& Path) const
{
	return Path.StartsWith(ProjectDir, ESearchCase::CaseSensitive) ? Path.RightChop(ProjectDir.Len()) : Path;
}
