// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "IVelmorantService.h"
#include "ServiceDataFile.h"

/**
 * Stands in for the online service: answers from a data file, after the file's delay on the application's clock.
 *
 * The file is looked for and read anew for every request, so that an edit of it, or of the settings, shows at the next refresh. A file
 * that cannot be used fails every request; the log says why.
 */
class FDataFileService final : public IVelmorantService
{
public:
	FDataFileService();

	//~ Begin IVelmorantService
	virtual void RequestLogin(const FVelmorantUserInformation& UserInformation, TFunction<void(const FVelmorantLoginAnswer&)> OnAnswer) override;
	virtual void RequestLogout(const FString& Token) override;
	virtual void RequestProjects(const FString& Token, TFunction<void(const FVelmorantProjectsAnswer&)> OnAnswer) override;
	virtual void RequestProjectData(const FString& Token, const FString& ProjectKeyCode, TFunction<void(const FVelmorantProjectAnswer&)> OnAnswer) override;
	virtual void RequestConfigurator(const FString& Token, const FString& ProjectKeyCode, FName ConfiguratorName, TFunction<void(const FVelmorantConfiguratorAnswer&)> OnAnswer) override;
	//~ End IVelmorantService

private:
	/** A login that has succeeded. */
	struct FSession
	{
		FString UserName;
		double Expiry = 0.0; // seconds on the application's clock
	};

	/** The switch -VelmorantService=, else the SDK settings' file below the project's folder; empty when neither is given. */
	static FString FindDataFile();

	/** The file's data, until the next call; null when it cannot be used or makes this request fail. */
	const FServiceData* ReadFor(EServiceRequest Request, EVelmorantFailure& OutFailure);

	/** Null when the token is none, or not valid any more. */
	const FServiceUser* FindUser(const FServiceData& Data, const FString& Token, EVelmorantFailure& OutFailure) const;

	/** The project, when the token's user may see it. */
	const FServiceProject* FindProject(const FServiceData& Data, const FString& Token, const FString& KeyCode, EVelmorantFailure& OutFailure) const;

	/** Delivers an answer after the delay, unless the service is gone by then. */
	void AnswerLater(double DelaySeconds, TFunction<void()> Answer) const;

	FServiceDataFile File;
	TMap<FString, FSession> Sessions; // by token
	int32 NextToken = 1;
	TSharedRef<bool> Alive; // pending answers hold it weakly
};
