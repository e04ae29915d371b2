// Copyright Velmorant. All Rights Reserved.

#include "DataFileService.h"

#include "Containers/Ticker.h"
#include "Misc/App.h"
#include "Misc/CommandLine.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"
#include "VelmorantSDKLog.h"
#include "VelmorantSDKSettings.h"

FDataFileService::FDataFileService()
	: Alive(MakeShared<bool>(true))
{
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

const FServiceData* FDataFileService::ReadFor(EServiceRequest Request, EVelmorantFailure& OutFailure)
{
	const FString Path = FindDataFile();
	if (Path.IsEmpty())
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("No service data file is set, so every request fails. Set ServiceDataFile in the Velmorant SDK settings, or start with -VelmorantService=FILE."));
		OutFailure = EVelmorantFailure::NotConfigured;
		return nullptr;
	}

	FString Error;
	const FServiceData* Data = File.Read(Path, Error);
	if (!Data)
	{
		UE_LOG(LogVelmorantSDK, Error, TEXT("%s. Have this mended, or name another data file, then try again."), *Error);
		OutFailure = FPaths::FileExists(Path) ? EVelmorantFailure::UnusableData : EVelmorantFailure::NotReachable;
	}
	else if (Data->FailingRequests.Contains(Request))
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("%s has this request fail."), *Path);
		OutFailure = EVelmorantFailure::NotReachable;
		Data = nullptr;
	}
	return Data;
}

const FServiceUser* FDataFileService::FindUser(const FServiceData& Data, const FString& Token, EVelmorantFailure& OutFailure) const
{
	const FSession* Session = Sessions.Find(Token);
	const FServiceUser* User = !Session || FApp::GetCurrentTime() >= Session->Expiry
		? nullptr
		: Data.Users.FindByPredicate([Session](const FServiceUser& Candidate) { return Candidate.UserName == Session->UserName; });
	if (!User)
	{
		OutFailure = EVelmorantFailure::NotSignedIn;
	}
	return User;
}

const FServiceProject* FDataFileService::FindProject(const FServiceData& Data, const FString& Token, const FString& KeyCode, EVelmorantFailure& OutFailure) const
{
	const FServiceUser* User = FindUser(Data, Token, OutFailure);
	if (!User)
	{
		return nullptr;
	}
	const auto IsMeant = [&KeyCode](const FString& Candidate) { return Candidate == KeyCode; };
	const FServiceProject* Project = !User->ProjectKeyCodes.ContainsByPredicate(IsMeant)
		? nullptr
		: Data.Projects.FindByPredicate([&IsMeant](const FServiceProject& Candidate) { return IsMeant(Candidate.Project.KeyCode); });
	if (!Project)
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("There is no project \"%s\", or \"%s\" may not see it."), *KeyCode, *User->UserName);
		OutFailure = EVelmorantFailure::Refused;
	}
	return Project;
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
	const FServiceData* Data = ReadFor(EServiceRequest::Login, Answer.Failure);
	const FServiceUser* User = !Data ? nullptr : Data->Users.FindByPredicate([&UserInformation](const FServiceUser& Candidate) {
		return Candidate.UserName == UserInformation.UserName && Candidate.Password.Equals(UserInformation.Password, ESearchCase::CaseSensitive);
	});
	if (User)
	{
		Answer.LoginInfo = User->LoginInfo;
		Answer.Token = FString::Printf(TEXT("token-%d"), NextToken++);
		Answer.TokenSeconds = Data->TokenSeconds;
		Sessions.Add(Answer.Token, FSession{User->UserName, FApp::GetCurrentTime() + Data->DelaySeconds + Answer.TokenSeconds});
	}
	else if (Data)
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("The login of \"%s\" was refused."), *UserInformation.UserName);
		Answer.Failure = EVelmorantFailure::WrongCredentials;
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer = MoveTemp(Answer)] { OnAnswer(Answer); });
}

void FDataFileService::RequestLogout(const FString& Token)
{
	Sessions.Remove(Token);
}

void FDataFileService::RequestProjects(const FString& Token, TFunction<void(const FVelmorantProjectsAnswer&)> OnAnswer)
{
	FVelmorantProjectsAnswer Answer;
	const FServiceData* Data = ReadFor(EServiceRequest::Projects, Answer.Failure);
	if (const FServiceUser* User = Data ? FindUser(*Data, Token, Answer.Failure) : nullptr)
	{
		const TSet<FString> KeyCodes(User->ProjectKeyCodes);
		for (const FServiceProject& Project : Data->Projects)
		{
			if (KeyCodes.Contains(Project.Project.KeyCode))
			{
				Answer.Projects.Add(Project.Project);
			}
		}
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer = MoveTemp(Answer)] { OnAnswer(Answer); });
}

void FDataFileService::RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer)
{
	FVelmorantProjectAnswer Answer;
	const FServiceData* Data = ReadFor(EServiceRequest::ProjectData, Answer.Failure);
	if (const FServiceProject* Project = Data ? FindProject(*Data, Token, ProjectKeyCode, Answer.Failure) : nullptr)
	{
		Answer.UnitGroups = Project->UnitGroups;
		Answer.Configurators = Project->Configurators;
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer = MoveTemp(Answer)] { OnAnswer(Answer); });
}

void FDataFileService::RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const FVelmorantConfiguratorAnswer&)> OnAnswer)
{
	FVelmorantConfiguratorAnswer Answer;
	const FServiceData* Data = ReadFor(EServiceRequest::Configurator, Answer.Failure);
	if (const FServiceProject* Project = Data ? FindProject(*Data, Token, ProjectKeyCode, Answer.Failure) : nullptr)
	{
		const FVelmorantConfiguratorRecord* Found = Project->Configurators.FindByPredicate([&ConfiguratorName](const FVelmorantConfiguratorRecord& Candidate) { return Candidate.Name == ConfiguratorName; });
		if (Found)
		{
			Answer.Configurator = *Found;
		}
		else
		{
			UE_LOG(LogVelmorantSDK, Warning, TEXT("Project \"%s\" has no configurator \"%s\" any more."), *ProjectKeyCode, *ConfiguratorName.ToString());
			Answer.Failure = EVelmorantFailure::Refused;
		}
	}
	AnswerLater(Data ? Data->DelaySeconds : 0.0, [OnAnswer = MoveTemp(OnAnswer), Answer = MoveTemp(Answer)] { OnAnswer(Answer); });
}
