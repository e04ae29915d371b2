// Copyright Velmorant. All Rights Reserved.

#include "BenchmarkEditor.h"

#include "VelmorantDeveloperUser.h"
#include "VelmorantSDKEngineSubsystem.h"

FBenchmarkEditor::FBenchmarkEditor()
	: FBenchmarkEditor("{}")
{
}

FBenchmarkEditor::FBenchmarkEditor(std::string_view Service)
	: Editor(MakeOptions(Service))
{
}

FEditorHostOptions FBenchmarkEditor::MakeOptions(std::string_view Service) const
{
	Folder.Write("Bench.uproject", "{ \"FileVersion\": 3 }\n");
	WriteService(Service);
	FEditorHostOptions Options;
	Options.Project = Folder.Get("Bench.uproject");
	Options.UserSettingsDir = Folder.Get("UserConfig");
	Options.CommandLine = TEXT("-VelmorantService=") + Folder.Get("Service.json");
	return Options;
}

void FBenchmarkEditor::SignIn(const TCHAR* UserName, const TCHAR* Password)
{
	UVelmorantSDKEngineSubsystem::EnsureUserEditorContext();
	UVelmorantSDKEngineSubsystem::Get()->GetVelmorantUser()->RequestUserLogin(FVelmorantUserInformation(false, UserName, Password));
	Tick();
}

void FBenchmarkEditor::SelectProject(const TCHAR* KeyCode)
{
	UVelmorantDeveloperUser* User = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(true);
	User->RequestEditorUserProjects();
	Tick();
	for (const FProject& Project : User->GetEditorUserProjects())
	{
		if (Project.KeyCode == KeyCode)
		{
			User->SetSelectedProject(Project, false);
		}
	}
	Tick();
}
