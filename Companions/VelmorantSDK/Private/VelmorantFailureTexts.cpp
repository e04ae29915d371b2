// Copyright Velmorant. All Rights Reserved.

#include "VelmorantFailureTexts.h"

#include "VelmorantSDKSettings.h"

#define LOCTEXT_NAMESPACE "VelmorantSDK"

FText VelmorantFailureTexts::Get(EVelmorantFailure Failure)
{
	switch (Failure)
	{
		case EVelmorantFailure::WrongCredentials:
			return LOCTEXT("WrongCredentials", "The sign-in failed. Check user name and password.");
		case EVelmorantFailure::NotReachable:
			return LOCTEXT("NotReachable", "The service cannot be reached. Check the connection, then try again.");
		case EVelmorantFailure::NotConfigured:
			return LOCTEXT("NotConfigured", "No service is set. Enter one in the project settings, under Plugins, Velmorant SDK Settings, then try again.");
		case EVelmorantFailure::UnusableData:
			return LOCTEXT("UnusableData", "The service's data cannot be used. The log says what is wrong with it: have that mended, then try again.");
		case EVelmorantFailure::NoAnswer:
			return FText::Format(
				LOCTEXT("NoAnswer", "The service has not answered within {0} seconds. Try again later, or allow more time in the Velmorant SDK Settings."),
				FText::FromString(FString::SanitizeFloat(GetDefault<UVelmorantSDKSettings>()->RequestTimeoutSeconds, 0)));
		case EVelmorantFailure::NotSignedIn:
			return LOCTEXT("NotSignedIn", "You are not signed in, or your session has ended. Sign in again.");
		case EVelmorantFailure::Refused:
			return LOCTEXT("Refused", "The service does not have it for you. Refresh the list of projects.");
		case EVelmorantFailure::GivenUp:
			return LOCTEXT("GivenUp", "You signed out before the service had answered.");
		case EVelmorantFailure::None:
			break;
	}
	return FText::GetEmpty();
}

#undef LOCTEXT_NAMESPACE
