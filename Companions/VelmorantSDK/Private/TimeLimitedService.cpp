// Copyright Velmorant. All Rights Reserved.

#include "TimeLimitedService.h"

#include "Containers/Ticker.h"
#include "VelmorantSDKLog.h"
#include "VelmorantSDKSettings.h"

/** One request that waits for its answer or for the end of its time, whichever comes first. */
template<typename AnswerType>
class FTimeLimitedService::TPending : public TSharedFromThis<TPending<AnswerType>>
{
public:
	explicit TPending(TFunction<void(const AnswerType&)> InOnAnswer)
		: OnAnswer(MoveTemp(InOnAnswer))
	{
	}

	/** After the request was sent: of an answer and a limit that fall into one tick, the answer was first. */
	void StartTimer(const TSharedRef<bool>& ServiceAlive)
	{
		const float Limit = GetDefault<UVelmorantSDKSettings>()->RequestTimeoutSeconds;
		if (Limit > 0.0f)
		{
			Timer = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([This = this->AsShared(), WeakAlive = TWeakPtr<bool>(ServiceAlive), Limit](float) {
				if (WeakAlive.IsValid() && !This->bOver)
				{
					UE_LOG(LogVelmorantSDK, Warning, TEXT("The service has not answered a request within %s seconds."), *FString::SanitizeFloat(Limit, 0));
					AnswerType Answer;
					Answer.Failure = EVelmorantFailure::NoAnswer;
					This->Take(Answer);
				}
				return false; // once
			}),
				Limit);
		}
	}

	/** False for an answer that comes too late. */
	bool Take(const AnswerType& Answer)
	{
		if (bOver)
		{
			return false;
		}
		bOver = true;
		FTSTicker::RemoveTicker(Timer);
		OnAnswer(Answer);
		return true;
	}

private:
	TFunction<void(const AnswerType&)> OnAnswer;
	FTSTicker::FDelegateHandle Timer;
	bool bOver = false;
};

FTimeLimitedService::FTimeLimitedService(TUniquePtr<IVelmorantService> InService)
	: Service(MoveTemp(InService))
	, Alive(MakeShared<bool>(true))
{
}

void FTimeLimitedService::RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer)
{
	const auto Pending = MakeShared<TPending<FVelmorantLoginAnswer>>(MoveTemp(OnAnswer));
	Service->RequestLogin(UserInformation, [this, Pending](const FVelmorantLoginAnswer& Answer) { // the service answers only while it, and so this, is there
		if (!Pending->Take(Answer) && Answer.IsSuccess())
		{
			Service->RequestLogout(Answer.Token); // nobody waits for this session
		}
	});
	Pending->StartTimer(Alive);
}

void FTimeLimitedService::RequestLogout(const FString& Token)
{
	Service->RequestLogout(Token);
}

void FTimeLimitedService::RequestProjects(const FString& Token, TFunction<void(const FVelmorantProjectsAnswer&)> OnAnswer)
{
	const auto Pending = MakeShared<TPending<FVelmorantProjectsAnswer>>(MoveTemp(OnAnswer));
	Service->RequestProjects(Token, [Pending](const FVelmorantProjectsAnswer& Answer) { Pending->Take(Answer); });
	Pending->StartTimer(Alive);
}

void FTimeLimitedService::RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer)
{
	const auto Pending = MakeShared<TPending<FVelmorantProjectAnswer>>(MoveTemp(OnAnswer));
	Service->RequestProjectData(Token, ProjectKeyCode, [Pending](const FVelmorantProjectAnswer& Answer) { Pending->Take(Answer); });
	Pending->StartTimer(Alive);
}

void FTimeLimitedService::RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const FVelmorantConfiguratorAnswer&)> OnAnswer)
{
	const auto Pending = MakeShared<TPending<FVelmorantConfiguratorAnswer>>(MoveTemp(OnAnswer));
	Service->RequestConfigurator(Token, ProjectKeyCode, ConfiguratorName, [Pending](const FVelmorantConfiguratorAnswer& Answer) { Pending->Take(Answer); });
	Pending->StartTimer(Alive);
}
