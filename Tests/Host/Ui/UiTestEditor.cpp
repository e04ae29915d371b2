// Copyright Velmorant. All Rights Reserved.

#include "UiTestEditor.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Blueprint.h"
#include "HostClock.h"
#include "HostConfig.h"
#include "HostEditor.h"
#include "HostLocale.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "HostSlate.h"
#include "HostState.h"
#include "HostToolMenus.h"
#include "HostUserWidgets.h"

#include <cstdlib>

std::string Utf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

FUiTestEditor::FUiTestEditor()
{
	BringUp();
}

FUiTestEditor::~FUiTestEditor()
{
	TakeDown();
}

void FUiTestEditor::Restart()
{
	TakeDown();
	BringUp();
}

void FUiTestEditor::BringUp() const
{
	HostLocale::UseUnicodeCharacterClasses();
	HostPaths::SetProjectDir(Project.Get());
	HostConfig::Boot();
	HostObjects::Boot();
	HostPackages::Mount(TEXT("/Game/"), Project.Get("Content"));
	HostEditor::Create();
	HostSlate::Start();
	HostToolMenus::Start();
}

void FUiTestEditor::TakeDown() const
{
	HostToolMenus::Stop();
	HostSlate::Stop();
	HostEditor::Destroy();
	HostObjects::TearDown();
	HostState::DestroyAll();
}

void FUiTestEditor::Wait(double Seconds) const
{
	HostClock::Advance(Seconds);
	if (std::getenv("VELMORANT_COLLECT_EVERY_TICK") != nullptr)
	{
		HostObjects::CollectGarbage();
	}
}

void FUiTestEditor::WriteLayout(const std::string& Name, const std::string& Members, const std::string& Class) const
{
	Project.Write("Content/" + Name + ".uasset.json", "{\"Class\": \"" + Class + "\", " + Members + "}");
}

UUserWidget* FUiTestEditor::MakePanel(const TCHAR* Name) const
{
	const UBlueprint* Blueprint = Cast<UBlueprint>(HostPackages::LoadAsset(FString(TEXT("/Game/")) + Name));
	return Blueprint ? FHostUserWidgets::Create(nullptr, Blueprint->GeneratedClass) : nullptr;
}

std::string FUiTestEditor::Problems() const
{
	std::string Text;
	for (const FHostProblem& Problem : HostProblems::GetAll())
	{
		Text += Utf8(Problem.Message) + "\n";
	}
	return Text;
}

std::string FUiTestEditor::Refusal(const FHostInputResult& Result)
{
	return Result.bDone ? std::string() : Utf8(Result.Reason);
}
