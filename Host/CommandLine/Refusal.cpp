// Copyright Velmorant. All Rights Reserved.

#include "Refusal.h"

#include "Console.h"
#include "JsonText.h"

void Refusal::Print(EExitStatus Status, const TArray<FString>& Lines, bool bJson)
{
	if (bJson)
	{
		const FJson Json = {{"status", static_cast<int>(Status)}, {"error", JsonText::Make(FString::Join(Lines, TEXT("\n")))}};
		Console::PrintExact(JsonText::Print(Json, -1));
	}
	for (const FString& Line : Lines)
	{
		Console::PrintErrorLines(Line);
	}
}

void Refusal::PrintProblems(EExitStatus Status, bool bJson)
{
	TArray<FString> Lines;
	for (const FHostProblem& Problem : HostProblems::GetAll())
	{
		Lines.Add(HostProblems::ToString(Problem));
	}
	if (!Lines.IsEmpty())
	{
		Print(Status, Lines, bJson);
	}
}
