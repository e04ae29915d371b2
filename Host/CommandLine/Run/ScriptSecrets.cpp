// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptSecrets.h"

#include "Containers/StringConv.h"
#include "HostSecrets.h"
#include "Misc/App.h"
#include "Misc/Char.h"
#include "Run/StepRecord.h"
#include "TerminalQuestion.h"

#include <cstdlib>
#include <string>

namespace ScriptSecrets
{
	const TCHAR* const VariablePrefix = TEXT("env:");

	bool IsVariableName(const FString& Name)
	{
		bool bName = !Name.IsEmpty() && !FChar::IsDigit(Name[0]);
		for (const TCHAR Char : Name)
		{
			bName &= Char < 128 && (FChar::IsAlnum(Char) || Char == TEXT('_'));
		}
		return bName;
	}

	void HideAll(TArray<FString>& Texts)
	{
		for (FString& Text : Texts)
		{
			Text = HostSecrets::Hide(Text);
		}
	}

	void HideIn(FStepEvents& Events)
	{
		for (FStepEvents::FNotification& Notification : Events.Notifications)
		{
			Notification.Title = HostSecrets::Hide(Notification.Title);
			Notification.SubText = HostSecrets::Hide(Notification.SubText);
			HideAll(Notification.Buttons);
		}
		for (FStepEvents::FQuestion& Question : Events.Questions)
		{
			Question.Message = HostSecrets::Hide(Question.Message);
			HideAll(Question.Fields);
		}
		for (FHostProblem& Problem : Events.Problems)
		{
			Problem.File = HostSecrets::Hide(Problem.File);
			Problem.Message = HostSecrets::Hide(Problem.Message);
		}
		HideAll(Events.Log);
		HideAll(Events.Urls);
	}

	FString Resolve(const FScriptArguments& Arguments, int32 Index, FString& OutText)
	{
		OutText = Arguments[Index];
		FString Name = OutText;
		if (Arguments.IsQuoted(Index) || !Name.RemoveFromStart(VariablePrefix, ESearchCase::CaseSensitive))
		{
			return FString();
		}
		if (!IsVariableName(Name))
		{
			return TEXT("env: is followed by the name of an environment variable; put the word in quotes to type it as it is");
		}
		const std::string NativeName(TCHAR_TO_UTF8(*Name));
		std::string Value;
		if (const char* Set = std::getenv(NativeName.c_str()))
		{
			Value = Set;
		}
		else if (FApp::IsUnattended() || !TerminalQuestion::Ask(NativeName + ": ", Value))
		{
			return FString::Printf(TEXT("the environment variable %s is not set, and there is no terminal to ask for it; set it"), *Name);
		}
		OutText = UTF8_TO_TCHAR(Value.c_str());
		return FString();
	}

	void Hide(FStepRecord& Record)
	{
		Record.Text = HostSecrets::Hide(Record.Text);
		Record.Heading = HostSecrets::Hide(Record.Heading);
		Record.Result.Message = HostSecrets::Hide(Record.Result.Message);
		HideAll(Record.Output);
		HideIn(Record.Events);
	}

	void Hide(FRunSummary& Summary)
	{
		HideAll(Summary.WrittenFiles);
		HideAll(Summary.Unsaved);
	}
}
