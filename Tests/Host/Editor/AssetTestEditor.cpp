// Copyright Velmorant. All Rights Reserved.

#include "AssetTestEditor.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "HostConfig.h"
#include "HostDelayedRegistration.h"
#include "HostLocale.h"
#include "HostModules.h"
#include "HostObjects.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "HostSlate.h"
#include "HostState.h"
#include "HostToolMenus.h"
#include "TestAssets.h"
#include "UObject/Package.h"

std::string Utf8(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*Text));
}

std::string Utf8(const FText& Text)
{
	return Utf8(Text.ToString());
}

std::string Utf8(const FName& Name)
{
	return Utf8(Name.ToString());
}

FAssetTestEditor::FAssetTestEditor()
{
	BringUp();
}

FAssetTestEditor::~FAssetTestEditor()
{
	TakeDown();
}

void FAssetTestEditor::Restart()
{
	TakeDown();
	BringUp();
}

void FAssetTestEditor::BringUp() const
{
	HostLocale::UseUnicodeCharacterClasses();
	HostPaths::SetProjectDir(Project.Get());
	HostConfig::Boot();
	HostObjects::Boot();
	HostPackages::Mount(TEXT("/Game/"), Project.Get("Content"));
	HostSlate::Start();
	HostDelayedRegistration::RunUpTo(EDelayedRegisterRunPhase::EndOfEngineInit);
	HostToolMenus::Start();
}

void FAssetTestEditor::TakeDown() const
{
	HostModules::ShutDownModules({});
	HostToolMenus::Stop();
	HostSlate::Stop();
	HostObjects::TearDown();
	HostModules::DestroyModules();
	HostState::DestroyAll();
}

UTestAsset* FAssetTestEditor::MakeAsset(const TCHAR* PackageName) const
{
	FString ShortName;
	FString(PackageName).Split(TEXT("/"), nullptr, &ShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	UTestAsset* Asset = NewObject<UTestAsset>(CreatePackage(PackageName), FName(*ShortName), RF_Public | RF_Standalone | RF_Transactional);
	FAssetRegistryModule::AssetCreated(Asset);
	Asset->Modify();
	return Asset;
}

UTestAsset* FAssetTestEditor::LoadTestAsset(const TCHAR* PackageName) const
{
	return Cast<UTestAsset>(HostPackages::LoadAsset(PackageName));
}

std::string FAssetTestEditor::Problems() const
{
	std::string Text;
	for (const FHostProblem& Problem : HostProblems::GetAll())
	{
		Text += Utf8(HostProblems::ToString(Problem)) + "\n";
	}
	return Text;
}

int32 FAssetTestEditor::CountAsked(const char* Kind) const
{
	int32 Count = 0;
	for (const FAskedQuestion& Asked : HostQuestions::GetAsked())
	{
		Count += Asked.Question.Kind == FName(Kind) ? 1 : 0;
	}
	return Count;
}

std::string MakeTestAssetFile(const std::string& Name, const std::string& Properties)
{
	return "{\"Class\": \"/Script/TestAssets.TestAsset\", \"Format\": 1, \"Objects\": [{\"Name\": \"" + Name +
		"\", \"Class\": \"/Script/TestAssets.TestAsset\", \"Properties\": {" + Properties + "}}]}";
}
