// Copyright Velmorant. All Rights Reserved.

#include "DataFileService.h"

#include "Containers/Ticker.h"
#include "Misc/App.h"
#include "Misc/CommandLine.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"
#include "VelmorantSDKLog.h"
#include "VelmorantSDKSettings.h"

FDataFileService::FDataFileService(const FString& InPath)
	: File(InPath)
	, Alive(MakeShared<bool>(true))
{
	if (File.GetPath().IsEmpty())
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("No service data file is set, so every request will fail. Set ServiceDataFile in the Velmorant SDK settings, or start with -VelmorantService=FILE."));
	}
}

FString FDataFileService::FindDataFile()
{
	FString File;
	if (FParse::Value(FCommandLine::Get(), TEXT("-VelmorantService="), File))
	{
		return File;
	}
	File = GetDefault<UVelmorantSDKSettings>()->ServiceDataFile;
	return File.IsEmpty() || File.StartsWith(TEXT("/")) ? File : FPaths::Combine(FPaths::ProjectDir(), File);
}

const FServiceData* FDataFileService::ReadFor(EServiceRequest Request)
{
	if (File.GetPath().IsEmpty())
	{
		return nullptr;
	}

	FString Error;
	const FServiceData* Data = File.Read(Error);
	if (!Data)
	{
		UE_LOG(LogVelmorantSDK, Error, TEXT("%s"), *Error);
		return nullptr;
	}
	if (Data->FailingRequests.Contains(Request))
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("%s has this request fail."), *File.GetPath());
		return nullptr;
	}
	return Data;
}

const FServiceUser* FDataFileService::FindUser(const FServiceData& Data, const FString& Token) const
{
	const FSession* Session = Sessions.Find(Token);
	if (!Session || FApp::GetCurrentTime() >= Session->Expiry)
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("The login is not valid any more; sign in again."));
		return nullptr;
	}
	return Data.Users.FindByPredicate([Session](const FServiceUser& User) { return User.UserName == Session->UserName; });
}

const FServiceProject* FDataFileService::FindProject(const FServiceData& Data, const FString& Token, const FString& KeyCode) const
{
	const FServiceUser* User = FindUser(Data, Token);
	if (!User || !User->ProjectKeyCodes.ContainsByPredicate([&KeyCode](const FString& Candidate) { return Candidate == KeyCode; }))
	{
		return nullptr;
	}
	return Data.Projects.FindByPredicate([&KeyCode](const FServiceProject& Project) { return Project.Project.KeyCode == KeyCode; });
}

void FDataFileService::AnswerLater(double DelaySeconds, TFunction<void()> Answer) const
{
	FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([WeakAlive = TWeakPtr<bool>(Alive), Answer = MoveTemp(Answer)](float) {
		if (WeakAlive.IsValid())
		{
			Answer();
		}
		return false; // once
	}),
		static_cast<float>(DelaySeconds));
}

void FDataFileService::RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer)
{
	FVelmorantLoginAnswer Answer;
	const FServiceData* Data = ReadFor(EServiceRequest::Login);
	const FServiceUser* User = !Data ? nullptr : Data->Users.FindByPredicate([&UserInformation](const FServiceUser& Candidate) {
		return Candidate.UserName == UserInformation.UserName && Candidate.Password.Equals(UserInformation.Password, ESearchCase::CaseSensitive);
	});
	if (User)
	{
		Answer.bSuccess = true;
		Answer.LoginInfo = User->LoginInfo;
		Answer.Token = FString::Printf(TEXT("token-%d"), NextToken++);
		Answer.TokenSeconds = Data->TokenSeconds;
		Sessions.Add(Answer.Token, FSession{User->UserName, FApp::GetCurrentTime() + Data->DelaySeconds + Answer.TokenSeconds});
	}
	else
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("The login of \"%s\" was refused."), *UserInformation.UserName);
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer] { OnAnswer(Answer); });
}

void FDataFileService::RequestLogout(const FString& Token)
{
	Sessions.Remove(Token);
}

void FDataFileService::RequestProjects(const FString& Token, TFunction<void(bool bSuccess, const TArray<FProject>&)> OnAnswer)
{
	TArray<FProject> Projects;
	const FServiceData* Data = ReadFor(EServiceRequest::Projects);
	const FServiceUser* User = Data ? FindUser(*Data, Token) : nullptr;
	if (User)
	{
		const TSet<FString> KeyCodes(User->ProjectKeyCodes);
		for (const FServiceProject& Project : Data->Projects)
		{
			if (KeyCodes.Contains(Project.Project.KeyCode))
			{
				Projects.Add(Project.Project);
			}
		}
	}
	const bool bSuccess = User != nullptr;
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), bSuccess, Projects = MoveTemp(Projects)] { OnAnswer(bSuccess, Projects); });
}

void FDataFileService::RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer)
{
	FVelmorantProjectAnswer Answer;
	const FServiceData* Data = ReadFor(EServiceRequest::ProjectData);
	if (const FServiceProject* Project = Data ? FindProject(*Data, Token, ProjectKeyCode) : nullptr)
	{
		Answer.bSuccess = true;
		Answer.UnitGroups = Project->UnitGroups;
		Answer.Configurators = Project->Configurators;
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer = MoveTemp(Answer)] { OnAnswer(Answer); });
}

void FDataFileService::RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const TOptional<FVelmorantConfiguratorRecord>&)> OnAnswer)
{
	TOptional<FVelmorantConfiguratorRecord> Record;
	const FServiceData* Data = ReadFor(EServiceRequest::Configurator);
	if (const FServiceProject* Project = Data ? FindProject(*Data, Token, ProjectKeyCode) : nullptr)
	{
		const FVelmorantConfiguratorRecord* Found = Project->Configurators.FindByPredicate([&ConfiguratorName](const FVelmorantConfiguratorRecord& Candidate) { return Candidate.Name == ConfiguratorName; });
		if (Found)
		{
			Record = *Found;
		}
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Record] { OnAnswer(Record); });
}
