// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "IVelmorantService.h"
#include "Templates/UniquePtr.h"

/**
 * A service that always answers: what the one behind it has not answered within the settings' time limit fails then. Answers that come
 * later are dropped; a login that succeeds too late is signed out again.
 */
class FTimeLimitedService final : public IVelmorantService
{
public:
	explicit FTimeLimitedService(TUniquePtr<IVelmorantService> InService);

	//~ Begin IVelmorantService
	virtual void RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer) override;
	virtual void RequestLogout(const FString& Token) override;
	virtual void RequestProjects(const FString& Token, TFunction<void(const FVelmorantProjectsAnswer&)> OnAnswer) override;
	virtual void RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer) override;
	virtual void RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const FVelmorantConfiguratorAnswer&)> OnAnswer) override;
	//~ End IVelmorantService

private:
	template<typename AnswerType>
	class TPending;

	TUniquePtr<IVelmorantService> Service;
	TSharedRef<bool> Alive; // pending requests hold it weakly
};
