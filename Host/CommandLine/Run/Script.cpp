// Copyright Velmorant. All Rights Reserved.

#include "Run/Script.h"

#include "Run/ScriptTopics.h"
#include "Suggestions.h"

namespace Script
{
	const TCHAR* const ExpectWord = TEXT("expect");
	const TCHAR* const NoWord = TEXT("no");

	bool IsWord(const FScriptLine& Line, int32 Index, const TCHAR* Word)
	{
		return Line.Words.IsValidIndex(Index) && Line.Words[Index].Text.Equals(Word);
	}

	/** Takes the first word off a text whose words are apart by one blank. */
	FStringView TakeWord(FStringView& Rest)
	{
		int32 Blank = INDEX_NONE;
		const bool bLast = !Rest.FindChar(TEXT(' '), Blank);
		const FStringView Word = bLast ? Rest : Rest.Left(Blank);
		Rest = bLast ? FStringView() : Rest.RightChop(Blank + 1);
		return Word;
	}

	/** How many words of the line, from First on, are the name; 0 when they are not. */
	int32 MatchName(const FScriptLine& Line, int32 First, FStringView Name)
	{
		int32 NumWords = 0;
		while (!Name.IsEmpty())
		{
			if (!Line.Words.IsValidIndex(First + NumWords) || !TakeWord(Name).Equals(FStringView(Line.Words[First + NumWords].Text)))
			{
				return 0;
			}
			++NumWords;
		}
		return NumWords;
	}

	const TArray<FScriptTopic>& GetTopics()
	{
		static const TArray<FScriptTopic> Topics = ScriptTopics::GetAll();
		return Topics;
	}

	/** The entry with the longest matching name; null when there is none. */
	template<typename EntryType>
	const EntryType* FindEntry(const FScriptLine& Line, int32 First, TConstArrayView<EntryType> (*GetEntries)(const FScriptTopic&), int32& OutNumWords)
	{
		const EntryType* Best = nullptr;
		OutNumWords = 0;
		for (const FScriptTopic& Topic : GetTopics())
		{
			for (const EntryType& Entry : GetEntries(Topic))
			{
				const int32 NumWords = MatchName(Line, First, Entry.Syntax.Name);
				if (NumWords > OutNumWords)
				{
					Best = &Entry;
					OutNumWords = NumWords;
				}
			}
		}
		return Best;
	}

	template<typename EntryType>
	void AddNames(TConstArrayView<EntryType> Entries, TArray<FString>& OutNames)
	{
		for (const EntryType& Entry : Entries)
		{
			OutNames.Add(Entry.Syntax.Name);
		}
	}

	/** Of all commands, or of all that can be expected. */
	TArray<FString> GetNames(bool bExpectations)
	{
		TArray<FString> Names;
		for (const FScriptTopic& Topic : GetTopics())
		{
			if (bExpectations)
			{
				AddNames(Topic.Expectations, Names);
			}
			else
			{
				AddNames(Topic.Commands, Names);
			}
		}
		return Names;
	}

	constexpr int32 MostExplained = 10; // wrong lines of a script; nobody reads the names again and again

	/** The message with what may have been meant: by the first word, or by the first two, for many names have two. */
	FString Suggest(const FString& Message, const FScriptLine& Line, int32 NameWord, const TArray<FString>& Names)
	{
		const FString First = Line.Words.IsValidIndex(NameWord) ? Line.Words[NameWord].Text : FString();
		const FString Both = Line.Words.IsValidIndex(NameWord + 1) ? First + TEXT(" ") + Line.Words[NameWord + 1].Text : First;
		return Suggestions::Append(Message, Suggestions::FindClosest(Both, Names) != nullptr ? Both : First, Names);
	}

	TConstArrayView<FScriptCommand> GetCommands(const FScriptTopic& Topic)
	{
		return Topic.Commands;
	}
	TConstArrayView<FScriptExpectation> GetExpectations(const FScriptTopic& Topic)
	{
		return Topic.Expectations;
	}

	bool IsOption(const FScriptSyntax& Syntax, const FString& Word)
	{
		FStringView Options = Syntax.Options;
		while (!Options.IsEmpty())
		{
			if (TakeWord(Options).Equals(FStringView(Word)))
			{
				return true;
			}
		}
		return false;
	}

	/** Options come in pairs behind the arguments. */
	bool AreOptions(const FScriptSyntax& Syntax, const FScriptArguments& Arguments)
	{
		bool bFits = (Arguments.Num() - Syntax.MaxArguments) % 2 == 0;
		for (int32 Index = Syntax.MaxArguments; bFits && Index < Arguments.Num(); Index += 2)
		{
			bFits = IsOption(Syntax, Arguments[Index]);
		}
		return bFits;
	}

	bool Fits(const FScriptSyntax& Syntax, const FScriptArguments& Arguments)
	{
		const bool bEnough = Arguments.Num() >= Syntax.MinArguments;
		const bool bNoOptions = Syntax.MaxArguments == FScriptSyntax::Any || Arguments.Num() <= Syntax.MaxArguments;
		return bEnough && (bNoOptions || AreOptions(Syntax, Arguments));
	}

	/** Fills in what the line says; returns what is wrong with it, or nothing. */
	FString Resolve(FScriptStep& Step, bool bExplain)
	{
		const FScriptLine& Line = Step.Line;
		const bool bExpect = IsWord(Line, 0, ExpectWord);
		Step.bNegated = bExpect && IsWord(Line, 1, NoWord);
		const int32 NameWord = (bExpect ? 1 : 0) + (Step.bNegated ? 1 : 0);
		int32 NumWords = 0;
		const FScriptSyntax* Syntax = nullptr;
		if (bExpect)
		{
			Step.Expectation = FindEntry(Line, NameWord, &GetExpectations, NumWords);
			Syntax = Step.Expectation != nullptr ? &Step.Expectation->Syntax : nullptr;
		}
		else
		{
			Step.Command = FindEntry(Line, NameWord, &GetCommands, NumWords);
			Syntax = Step.Command != nullptr ? &Step.Command->Syntax : nullptr;
		}
		if (Syntax == nullptr)
		{
			const FString Word = Line.Words.IsValidIndex(NameWord) ? Line.Words[NameWord].Text : FString();
			const FString Message = bExpect ? FString::Printf(TEXT("nothing called \"%s\" can be expected"), *Word) : FString::Printf(TEXT("there is no command \"%s\""), *Word);
			const TArray<FString> Names = bExplain ? GetNames(bExpect) : TArray<FString>();
			return Suggest(Message, Line, NameWord, Names);
		}
		Step.FirstArgument = NameWord + NumWords;
		if (!Fits(*Syntax, Step.GetArguments()))
		{
			return FString::Printf(TEXT("this is written: %s%s %s"), bExpect ? TEXT("expect [no] ") : TEXT(""), Syntax->Name, Syntax->Usage);
		}
		return FString();
	}

	FScript Parse(const FString& Text, TArray<FScriptProblem>& OutProblems)
	{
		FScript Result;
		for (const FScriptLine& Line : ScriptLines::Parse(Text, OutProblems))
		{
			FScriptStep Step;
			Step.Line = Line;
			const FString Problem = Resolve(Step, OutProblems.Num() < MostExplained);
			if (!Problem.IsEmpty())
			{
				OutProblems.Add(FScriptProblem{Line.Number, Problem});
			}
			Result.Steps.Add(Step);
		}
		OutProblems.Sort([](const FScriptProblem& A, const FScriptProblem& B) { return A.Line < B.Line; });
		return Result;
	}
}

const FString* FScriptArguments::FindOption(int32 First, const TCHAR* Option) const
{
	for (int32 Index = First; Index + 1 < Words.Num(); Index += 2)
	{
		if (Words[Index].Text.Equals(Option))
		{
			return &Words[Index + 1].Text;
		}
	}
	return nullptr;
}
