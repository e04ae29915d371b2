// Copyright Velmorant. All Rights Reserved.
// Files of the project: what stands in them, what changed, what was written. Files elsewhere are nobody's business here.

#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "LineDifference.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptTopics.h"

#include <string>

namespace FileTopic
{
	/** The text of a file of the project, UTF-8. False with a message when there is none. */
	bool ReadFile(const FScriptContext& Context, const FString& Relative, std::string& OutText, FString& OutError)
	{
		const FString Path = Context.Session.GetFiles().Find(Relative);
		if (Path.IsEmpty())
		{
			OutError = TEXT("files are named relative to the project's folder and stand in it; links that lead out are not followed");
			return false;
		}
		const bool bRead = HostTextFiles::ReadUtf8(Path, OutText) == HostFiles::ERead::Done;
		if (!bRead)
		{
			OutError = FString::Printf(TEXT("%s cannot be read as text"), *Relative);
		}
		return bRead;
	}

	TArray<FString> LinesOf(const std::string& Text)
	{
		TArray<FString> Lines;
		FString(UTF8_TO_TCHAR(Text.c_str())).ParseIntoArrayLines(Lines, false);
		return Lines;
	}

	FStepResult PrintFile(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		std::string Text;
		FString Error;
		if (!ReadFile(Context, Arguments[0], Text, Error))
		{
			return FStepResult::Error(Error);
		}
		for (const FString& Line : LinesOf(Text))
		{
			Context.Print(Line);
		}
		return FStepResult::Done();
	}

	FStepResult PrintChanges(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		std::string Text;
		FString Error;
		if (!ReadFile(Context, Arguments[0], Text, Error))
		{
			return FStepResult::Error(Error);
		}
		const FString Path = Context.Session.GetFiles().Find(Arguments[0]);
		if (!Context.Session.GetFiles().MakeRelative(Path).StartsWith(TEXT("Config/")))
		{
			return FStepResult::Error(TEXT("changes are known of the files in Config only"));
		}
		for (const FString& Line : LineDifference::GetAdded(Context.Session.GetFiles().GetFirstText(Path), Text))
		{
			Context.Print(Line);
		}
		return FStepResult::Done();
	}

	FStepResult PrintWritten(FScriptContext& Context, const FScriptArguments&)
	{
		for (const FString& File : Context.Session.GetWrittenFiles())
		{
			Context.Print(File);
		}
		return FStepResult::Done();
	}

	FExpectation ExpectFile(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		std::string Text;
		FExpectation Result;
		if (!ReadFile(Context, Arguments[0], Text, Result.Found))
		{
			return Result;
		}
		const FString* Line = Arguments.FindOption(1, TEXT("line"));
		const FString* Part = Arguments.FindOption(1, TEXT("part"));
		Result.bHolds = (Line == nullptr || LinesOf(Text).ContainsByPredicate([Line](const FString& Each) { return Each.Equals(*Line); })) &&
			(Part == nullptr || FString(UTF8_TO_TCHAR(Text.c_str())).Contains(*Part, ESearchCase::CaseSensitive));
		Result.Found = TEXT("that is not in it");
		return Result;
	}

	FExpectation ExpectWritten(FScriptContext& Context, const FScriptArguments& Arguments)
	{
		const TArray<FString> Files = Context.Session.GetWrittenFiles();
		return {Files.ContainsByPredicate([&Arguments](const FString& File) { return File.Equals(Arguments[0]); }),
			FString(TEXT("written were: ")) + FString::Join(Files, TEXT(", ")), FString()};
	}

	const FScriptCommand Commands[] = {
		{{TEXT("print file"), TEXT("FILE"), 1, 1, TEXT("")}, &PrintFile},
		{{TEXT("print changes"), TEXT("FILE"), 1, 1, TEXT("")}, &PrintChanges},
		{{TEXT("print written"), TEXT(""), 0, 0, TEXT("")}, &PrintWritten},
	};

	const FScriptExpectation Expectations[] = {
		{{TEXT("file"), TEXT("FILE [line LINE] [part TEXT]"), 1, 1, TEXT("line part")}, &ExpectFile},
		{{TEXT("written"), TEXT("FILE"), 1, 1, TEXT("")}, &ExpectWritten},
	};
}

FScriptTopic ScriptTopics::GetFiles()
{
	return {FileTopic::Commands, FileTopic::Expectations};
}
