// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptLine.h"

FString FScriptProblem::ToString(const FString& Script) const
{
	return Line > 0 ? FString::Printf(TEXT("%s(%d): error: %s"), *Script, Line, *Message) : FString::Printf(TEXT("%s: error: %s"), *Script, *Message);
}

namespace ScriptLines
{
	/** Reads the words of one line from left to right. */
	class FWordReader
	{
	public:
		explicit FWordReader(FStringView InText)
			: Text(InText)
		{
		}

		/** False at the end of the line, and when a word is malformed; GetProblem() is empty in the first case. */
		bool Next(FScriptWord& OutWord)
		{
			while (Has() && IsBlank(Text[Position]))
			{
				++Position;
			}
			if (!Has() || Text[Position] == TEXT('#'))
			{
				return false;
			}
			OutWord = FScriptWord();
			OutWord.Begin = Position;
			OutWord.bQuoted = Text[Position] == TEXT('"');
			while (Has() && !IsBlank(Text[Position]) && Problem.IsEmpty())
			{
				ReadPiece(OutWord.Text);
			}
			OutWord.End = Position;
			return Problem.IsEmpty();
		}

		const FString& GetProblem() const { return Problem; }

	private:
		bool Has() const { return Position < Text.Len(); }
		static bool IsBlank(TCHAR Char) { return Char == TEXT(' ') || Char == TEXT('\t'); }

		/** One character, or all that stands in quotes. */
		void ReadPiece(FString& Word)
		{
			if (Text[Position] != TEXT('"'))
			{
				Word.AppendChar(Text[Position++]);
				return;
			}
			++Position;
			while (Has() && Text[Position] != TEXT('"') && Problem.IsEmpty())
			{
				ReadQuoted(Word);
			}
			if (!Has() && Problem.IsEmpty())
			{
				Problem = TEXT("a quote is opened and not closed");
			}
			++Position;
		}

		void ReadQuoted(FString& Word)
		{
			const TCHAR Char = Text[Position++];
			if (Char != TEXT('\\'))
			{
				Word.AppendChar(Char);
				return;
			}
			const TCHAR Escaped = Has() ? Text[Position++] : TEXT('\0');
			switch (Escaped)
			{
				case TEXT('"'):
				case TEXT('\\'):
					Word.AppendChar(Escaped);
					break;
				case TEXT('n'):
					Word.AppendChar(TEXT('\n'));
					break;
				case TEXT('t'):
					Word.AppendChar(TEXT('\t'));
					break;
				default:
					Problem = TEXT("after a backslash in quotes only \" \\ n and t may follow");
					break;
			}
		}

		FStringView Text;
		int32 Position = 0;
		FString Problem;
	};

	void ParseLine(const FString& Text, int32 Number, TArray<FScriptLine>& OutLines, TArray<FScriptProblem>& OutProblems)
	{
		FScriptLine Line;
		Line.Number = Number;
		FWordReader Reader(Text);
		FScriptWord Word;
		while (Reader.Next(Word))
		{
			Line.Words.Add(Word);
		}
		if (!Reader.GetProblem().IsEmpty())
		{
			OutProblems.Add(FScriptProblem{Number, Reader.GetProblem()});
		}
		else if (!Line.Words.IsEmpty())
		{
			Line.Source = Text.Left(Line.Words.Last().End);
			OutLines.Add(Line);
		}
	}

	TArray<FScriptLine> Parse(const FString& Text, TArray<FScriptProblem>& OutProblems)
	{
		TArray<FString> Texts;
		Text.ParseIntoArrayLines(Texts, false);
		TArray<FScriptLine> Lines;
		for (int32 Index = 0; Index < Texts.Num(); ++Index)
		{
			ParseLine(Texts[Index].TrimStartAndEnd(), Index + 1, Lines, OutProblems);
		}
		return Lines;
	}
}
