// Copyright Velmorant. All Rights Reserved.

#include "Lexer.h"

#include "Diagnostics.h"

#include <algorithm>

namespace HeaderTool
{
	namespace Lexer
	{
		bool IsIdentifierStart(char C)
		{
			return (C >= 'a' && C <= 'z') || (C >= 'A' && C <= 'Z') || C == '_' || static_cast<unsigned char>(C) >= 0x80;
		}

		bool IsDigit(char C)
		{
			return C >= '0' && C <= '9';
		}

		bool IsIdentifierPart(char C)
		{
			return IsIdentifierStart(C) || IsDigit(C);
		}

		class FLexer
		{
		public:
			FLexer(const std::string& InPath, const std::string& InSource, std::vector<FToken>& InTokens, FDiagnostics& InDiagnostics)
				: Path(InPath)
				, Source(InSource)
				, Tokens(InTokens)
				, Diagnostics(InDiagnostics)
			{
				if (Source.compare(0, 3, "\xEF\xBB\xBF") == 0)
				{
					Position = 3;
					LineStart = 3;
				}
			}

			bool Run()
			{
				while (Position < Source.size() && !bFailed)
				{
					Step();
				}
				Push(ETokenKind::End, "", Here());
				return !bFailed;
			}

		private:
			char At(size_t Offset = 0) const
			{
				return Position + Offset < Source.size() ? Source[Position + Offset] : '\0';
			}

			void Step()
			{
				const char C = At();
				if (C == '\n')
				{
					NewLine();
				}
				else if (C == ' ' || C == '\t' || C == '\r' || C == '\f' || C == '\v')
				{
					++Position;
				}
				else if (C == '\\' && (At(1) == '\n' || (At(1) == '\r' && At(2) == '\n')))
				{
					Position += At(1) == '\n' ? 1 : 2;
				}
				else if (C == '/' && At(1) == '/')
				{
					LineComment();
				}
				else if (C == '/' && At(1) == '*')
				{
					BlockComment();
				}
				else if (C == '#' && bAtLineStart)
				{
					Directive();
				}
				else if (!StringWithPrefix())
				{
					Plain();
				}
			}

			void NewLine()
			{
				++Position;
				BeginLine();
				bAtLineStart = true;
			}

			void AddComment(const std::string& Text, int FirstLine, bool bIsLineComment)
			{
				if (FirstLine == LastTokenLine)
				{
					return; // trails what stands before it on the same line
				}
				const bool bContinues = bIsLineComment && bLastCommentIsLine && !Comment.empty() && FirstLine == LastCommentLine + 1;
				Comment = bContinues ? Comment + "\n" + Text : Text;
				bLastCommentIsLine = bIsLineComment;
				LastCommentLine = Line;
			}

			void LineComment()
			{
				const size_t End = Source.find('\n', Position);
				const std::string Text = Source.substr(Position, End == std::string::npos ? End : End - Position);
				AddComment(Text, Line, true);
				Position += Text.size();
			}

			void BlockComment()
			{
				const size_t End = Source.find("*/", Position + 2);
				if (End == std::string::npos)
				{
					Fail(Here(), "this comment is never closed; end it with '*/'.");
					return;
				}
				const int FirstLine = Line;
				const std::string Text = Source.substr(Position, End + 2 - Position);
				Advance(Text.size());
				AddComment(Text, FirstLine, false);
			}

			void Directive()
			{
				const FPlace Place = Here();
				std::string Text;
				++Position;
				while (Position < Source.size() && At() != '\n')
				{
					if (At() == '\\' && (At(1) == '\n' || (At(1) == '\r' && At(2) == '\n')))
					{
						Position += At(1) == '\n' ? 2 : 3;
						BeginLine();
						Text += ' ';
					}
					else if (At() == '/' && At(1) == '/')
					{
						Position = std::min(Source.find('\n', Position), Source.size());
					}
					else if (At() == '/' && At(1) == '*')
					{
						BlockComment();
						if (bFailed)
						{
							return;
						}
					}
					else
					{
						Text += At() == '\r' ? ' ' : At();
						++Position;
					}
				}
				const size_t First = Text.find_first_not_of(" \t");
				const size_t Last = Text.find_last_not_of(" \t");
				Push(ETokenKind::Directive, First == std::string::npos ? "" : Text.substr(First, Last - First + 1), Place);
			}

			bool StringWithPrefix()
			{
				for (const char* Prefix : {"", "u8", "u", "U", "L"})
				{
					const size_t Length = std::char_traits<char>::length(Prefix);
					if (Source.compare(Position, Length, Prefix) != 0)
					{
						continue;
					}
					if (At(Length) == 'R' && At(Length + 1) == '"')
					{
						RawString(Length + 1);
						return true;
					}
					if (At(Length) == '"' || At(Length) == '\'')
					{
						Quoted(Length, At(Length));
						return true;
					}
				}
				return false;
			}

			void RawString(size_t QuoteOffset)
			{
				const size_t Open = Source.find('(', Position + QuoteOffset);
				const std::string Delimiter = Open == std::string::npos ? "" : Source.substr(Position + QuoteOffset + 1, Open - Position - QuoteOffset - 1);
				const size_t End = Open == std::string::npos ? Open : Source.find(")" + Delimiter + "\"", Open);
				if (End == std::string::npos)
				{
					Fail(Here(), "this raw string is never closed; end it with ')" + Delimiter + "\"'.");
					return;
				}
				const FPlace Place = Here();
				const std::string Text = Source.substr(Position, End + Delimiter.size() + 2 - Position);
				Advance(Text.size());
				Push(ETokenKind::String, Text, Place);
			}

			void Quoted(size_t QuoteOffset, char Quote)
			{
				size_t End = Position + QuoteOffset + 1;
				while (End < Source.size() && Source[End] != Quote && Source[End] != '\n')
				{
					End += Source[End] == '\\' ? 2 : 1;
				}
				if (End >= Source.size() || Source[End] != Quote)
				{
					const std::string What = Quote == '"' ? "string" : "character literal";
					Fail(Here(), "this " + What + " is not closed on its line; add the missing " + Quote + ".");
					return;
				}
				const std::string Text = Source.substr(Position, End + 1 - Position);
				Push(Quote == '"' ? ETokenKind::String : ETokenKind::Character, Text, Here());
				Advance(Text.size());
			}

			void Plain()
			{
				const size_t First = Position;
				const FPlace Place = Here();
				ETokenKind Kind = ETokenKind::Symbol;
				if (IsIdentifierStart(At()))
				{
					Kind = ETokenKind::Identifier;
					while (IsIdentifierPart(At()))
					{
						++Position;
					}
				}
				else if (IsDigit(At()) || (At() == '.' && IsDigit(At(1))))
				{
					Kind = ETokenKind::Number;
					SkipNumber();
				}
				else
				{
					Position += (At() == ':' && At(1) == ':') || (At() == '-' && At(1) == '>') ? 2 : 1;
				}
				Push(Kind, Source.substr(First, Position - First), Place);
			}

			void SkipNumber()
			{
				while (IsIdentifierPart(At()) || At() == '.' || (At() == '\'' && IsIdentifierPart(At(1))))
				{
					const char Letter = At();
					++Position;
					if ((Letter == 'e' || Letter == 'E' || Letter == 'p' || Letter == 'P') && (At() == '+' || At() == '-'))
					{
						++Position;
					}
				}
			}

			/** Over text that may have several lines. */
			void Advance(size_t Count)
			{
				for (const size_t End = Position + Count; Position < End;)
				{
					++Position;
					if (Source[Position - 1] == '\n')
					{
						BeginLine();
					}
				}
			}

			void BeginLine()
			{
				++Line;
				LineStart = Position;
			}

			/** Letters count, not the bytes they take. */
			/** Goes on counting columns where it was last: a line may be a whole file. */
			FPlace Here()
			{
				const auto IsLetter = [](char C) { return (static_cast<unsigned char>(C) & 0xC0) != 0x80; };
				if (CountedUpTo < LineStart || CountedUpTo > Position)
				{
					CountedUpTo = LineStart;
					LettersBefore = 0;
				}
				LettersBefore += static_cast<int>(std::count_if(Source.begin() + static_cast<std::ptrdiff_t>(CountedUpTo), Source.begin() + static_cast<std::ptrdiff_t>(Position), IsLetter));
				CountedUpTo = Position;
				return {Line, 1 + LettersBefore};
			}

			void Push(ETokenKind Kind, const std::string& Text, const FPlace& Place)
			{
				FToken Token;
				Token.Kind = Kind;
				Token.Text = Text;
				Token.Place = Place;
				Token.Comment.swap(Comment);
				Tokens.push_back(Token);
				LastTokenLine = Line;
				bAtLineStart = false;
			}

			void Fail(const FPlace& Place, const std::string& Message)
			{
				Diagnostics.Error(Path, Place, Message);
				bFailed = true;
			}

			const std::string& Path;
			const std::string& Source;
			std::vector<FToken>& Tokens;
			FDiagnostics& Diagnostics;
			size_t Position = 0;
			size_t LineStart = 0; // where Line begins
			size_t CountedUpTo = 0; // of Line
			int LettersBefore = 0; // from LineStart to CountedUpTo
			int Line = 1;
			int LastTokenLine = 0;
			int LastCommentLine = 0;
			std::string Comment; // waits for the token it stands before
			bool bLastCommentIsLine = false;
			bool bAtLineStart = true;
			bool bFailed = false;
		};
	}

	bool Tokenize(const std::string& Path, const std::string& Source, std::vector<FToken>& OutTokens, FDiagnostics& Diagnostics)
	{
		return Lexer::FLexer(Path, Source, OutTokens, Diagnostics).Run();
	}
}
