// Copyright Velmorant. All Rights Reserved.

#include "DesktopSecrets.h"

#include "Containers/StringConv.h"
#include "ProgramCall.h"

#include <chrono>
#include <cstdlib>

namespace DesktopSecrets
{
	const char* const ProgramName = "secret-tool";
	constexpr std::chrono::seconds TimeLimit(2); // the editor stands still meanwhile

	FString Describe(const ProgramCall::FAnswer& Answer)
	{
		switch (Answer.ExitStatus)
		{
			case ProgramCall::FAnswer::NotStarted:
				return TEXT("secret-tool could not be started");
			case ProgramCall::FAnswer::TimedOut:
				return FString::Printf(TEXT("secret-tool gave no answer within %d seconds"), static_cast<int32>(TimeLimit.count()));
			default:
			{
				const std::string FirstLine = Answer.Errors.substr(0, Answer.Errors.find('\n'));
				return FString::Printf(TEXT("secret-tool ended with status %d"), Answer.ExitStatus) + (FirstLine.empty() ? FString() : FString(TEXT(": ")) + UTF8_TO_TCHAR(FirstLine.c_str()));
			}
		}
	}

	/** @return whether it ended with status 0 */
	bool Ask(std::vector<std::string> Words, const std::string& Input, ProgramCall::FAnswer& OutAnswer, FString& OutReason)
	{
		if (!IsThere(OutReason))
		{
			return false;
		}
		Words.insert(Words.begin(), ProgramCall::Find(ProgramName));
		Words.insert(Words.end(), {"application", "velmorant", "item", "sign-in"}); // by which the store finds it again
		OutAnswer = ProgramCall::Run(Words, Input, TimeLimit);
		if (OutAnswer.ExitStatus != 0)
		{
			OutReason = Describe(OutAnswer);
		}
		return OutAnswer.ExitStatus == 0;
	}

	bool IsThere(FString& OutReason)
	{
		const char* Forbidden = std::getenv("VELMORANT_NO_KEYRING");
		if (Forbidden != nullptr && *Forbidden != '\0')
		{
			OutReason = TEXT("VELMORANT_NO_KEYRING is set");
			return false;
		}
		if (ProgramCall::Find(ProgramName).empty())
		{
			OutReason = TEXT("there is no program secret-tool");
			return false;
		}
		return true;
	}

	bool Store(const std::string& Secret, FString& OutReason)
	{
		ProgramCall::FAnswer Answer;
		return Ask({"store", std::string("--label=") + TCHAR_TO_UTF8(ItemLabel)}, Secret, Answer, OutReason);
	}

	bool Load(std::string& OutSecret, FString& OutReason)
	{
		ProgramCall::FAnswer Answer;
		const bool bAnswered = Ask({"lookup"}, {}, Answer, OutReason);
		OutSecret = bAnswered ? Answer.Output : std::string();
		return bAnswered;
	}

	bool Clear(FString& OutReason)
	{
		ProgramCall::FAnswer Answer;
		const bool bCleared = Ask({"clear"}, {}, Answer, OutReason);
		return bCleared || (Answer.ExitStatus == 1 && Answer.Errors.empty()); // its way to say that it found nothing
	}
}
