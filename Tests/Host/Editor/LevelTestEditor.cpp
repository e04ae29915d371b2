// Copyright Velmorant. All Rights Reserved.

#include "LevelTestEditor.h"

#include "Editor.h"
#include "EngineUtils.h"
#include "HostConfig.h"
#include "HostEditor.h"
#include "HostLog.h"
#include "HostModules.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "HostState.h"

FLevelTestEditor::FLevelTestEditor()
{
	Boot();
}

FLevelTestEditor::~FLevelTestEditor()
{
	TearDownEditor();
}

void FLevelTestEditor::Boot() const
{
	HostLog::Clear();
	HostPaths::SetProjectDir(Project.Get());
	HostConfig::Boot();
	HostObjects::Boot();
	HostPackages::Mount(TEXT("/Game/"), Project.Get("Content"));
	HostEditor::Create();
}

void FLevelTestEditor::TearDownEditor()
{
	HostModules::ShutDownModules({});
	HostEditor::Destroy();
	HostObjects::TearDown();
	HostModules::DestroyModules();
	HostState::DestroyAll();
}

void FLevelTestEditor::Restart()
{
	TearDownEditor();
	Boot();
}

void FLevelTestEditor::RestartWithConfig(const std::string& Text)
{
	Project.Write(ConfigFile, Text);
	Restart();
}

UWorld& FLevelTestEditor::GetWorld() const
{
	return *GEditor->GetEditorWorldContext().World();
}

std::vector<std::string> FLevelTestEditor::GetLabels() const
{
	std::vector<std::string> Labels;
	for (TActorIterator<AActor> It(&GetWorld()); It; ++It)
	{
		Labels.push_back(Utf8((*It)->GetActorLabel()));
	}
	return Labels;
}

std::vector<std::string> FLevelTestEditor::GetLog(const char* Category)
{
	std::vector<std::string> Texts;
	for (const FHostLogLine& Line : HostLog::GetLines())
	{
		if (Line.Category == FName(Category))
		{
			Texts.push_back(Utf8(Line.Text));
		}
	}
	return Texts;
}

std::string FLevelTestEditor::Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}
