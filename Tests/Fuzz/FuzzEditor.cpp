// Copyright Velmorant. All Rights Reserved.

#include "FuzzEditor.h"

#include "Containers/StringConv.h"
#include "FuzzTarget.h"
#include "HostConfig.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostLocale.h"
#include "HostLog.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "HostSlate.h"

namespace FuzzEditor
{
	const TCHAR* const ProjectDir = TEXT("/nonexistent/FuzzProject/");

	void BringUp()
	{
		HostLocale::UseUnicodeCharacterClasses();
		HostPaths::SetProjectDir(ProjectDir);
		HostPaths::SetUserSettingsDir(FString(ProjectDir) + TEXT("User"));
		HostFiles::BeginOverlay();
		HostConfig::Boot();
		HostObjects::Boot();
		HostPackages::Mount(TEXT("/Game/"), FString(ProjectDir) + TEXT("Content"));
		HostEditor::Create();
		HostSlate::Start();
	}

	void Prepare()
	{
		static bool bUp = false;
		if (!bUp)
		{
			BringUp();
			bUp = true;
		}
		HostProblems::Clear();
		HostLog::Clear();
	}

	FString Write(const TCHAR* File, std::string_view Bytes)
	{
		const FString Path = FString(ProjectDir) + File;
		HostFiles::Write(Path, Bytes);
		return Path;
	}

	std::string Read(const FString& Path)
	{
		std::string Bytes;
		HostFiles::Read(Path, Bytes);
		return Bytes;
	}

	void PromiseMessages(bool bWrong)
	{
		const TArray<FHostProblem>& Problems = HostProblems::GetAll();
		FuzzTargets::Promise(!bWrong || !Problems.IsEmpty(), "what goes wrong is told");
		for (const FHostProblem& Problem : Problems)
		{
			FuzzTargets::Promise(!Problem.File.IsEmpty(), "a message names the file");
			FuzzTargets::Promise(!Problem.Message.IsEmpty(), "a message says what is wrong");
		}
	}

	FString ToText(std::string_view Utf8)
	{
		return FString(UTF8_TO_TCHAR(std::string(Utf8).c_str()));
	}
}
