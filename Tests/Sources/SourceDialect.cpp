// Copyright Velmorant. All Rights Reserved.

#include "SourceDialect.h"

#include "Diagnostics.h"
#include "Lexer.h"

#include <regex>
#include <set>

namespace SourceDialect
{
	using HeaderTool::ETokenKind;
	using HeaderTool::FToken;

	/** Goes through a source once, and knows in which brackets it is. */
	class FReader
	{
	public:
		FReader(const std::vector<FToken>& InTokens, bool bInHeader)
			: Tokens(InTokens)
			, bHeader(bInHeader)
		{
			Frames.push_back({true, false, 0, false});
		}

		std::vector<std::string> Read()
		{
			for (Place = 0; Place < Tokens.size(); ++Place)
			{
				Step();
			}
			return Breaches;
		}

	private:
		/** What stands between two brackets, or in no brackets at all. */
		struct FFrame
		{
			bool bNamespace;
			bool bBranch; // begins right behind the ? or : of the expression around it
			int NumOpen; // ? without their :
			bool bChose; // a : has come in this expression
		};

		const FToken& At(size_t Index) const { return Index < Tokens.size() ? Tokens[Index] : Tokens.back(); }
		bool IsSymbol(size_t Index, const char* Text) const { return At(Index).Kind == ETokenKind::Symbol && At(Index).Text == Text; }
		bool IsOpening(size_t Index) const { return IsSymbol(Index, "(") || IsSymbol(Index, "[") || IsSymbol(Index, "{"); }
		bool IsClosing(size_t Index) const { return IsSymbol(Index, ")") || IsSymbol(Index, "]") || IsSymbol(Index, "}"); }

		void Report(const std::string& What) { Breaches.push_back(std::to_string(At(Place).Place.Line) + ": " + What); }

		void Step()
		{
			if (IsOpening(Place))
			{
				Open();
			}
			else if (IsClosing(Place) && Frames.size() > 1)
			{
				Frames.pop_back();
			}
			else if (IsSymbol(Place, ";") || IsSymbol(Place, ","))
			{
				Frames.back().NumOpen = 0;
				Frames.back().bChose = false;
			}
			else if (IsSymbol(Place, "?"))
			{
				Choose();
			}
			else if (IsSymbol(Place, ":") && Frames.back().NumOpen > 0)
			{
				--Frames.back().NumOpen;
				Frames.back().bChose = true;
			}
			else if (At(Place).IsIdentifier())
			{
				ReadWord(At(Place).Text);
			}
		}

		void Open()
		{
			const FFrame& Around = Frames.back();
			const bool bBehindColon = Place > 0 && IsSymbol(Place - 1, ":") && Around.bChose;
			const bool bBranch = IsSymbol(Place, "(") && Place > 0 && (IsSymbol(Place - 1, "?") || bBehindColon);
			Frames.push_back({IsSymbol(Place, "{") && IsOfNamespace(), bBranch, 0, false});
		}

		bool IsOfNamespace()
		{
			size_t Word = Place;
			while (Word > 0 && (IsSymbol(Word - 1, "::") || (At(Word - 1).IsIdentifier() && !At(Word - 1).Is("namespace"))))
			{
				--Word;
			}
			const bool bNamespace = Word > 0 && At(Word - 1).Is("namespace");
			if (bNamespace && Word == Place)
			{
				Report("a namespace without a name; name it after the file");
			}
			return bNamespace;
		}

		void Choose()
		{
			FFrame& Frame = Frames.back();
			if (Frame.NumOpen > 0 || Frame.bChose || Frame.bBranch)
			{
				Report("a chained ?:; return early, switch or use a table");
			}
			++Frame.NumOpen;
		}

		void ReadWord(const std::string& Word)
		{
			static const std::set<std::string> Suites = {"TEST", "TEST_F", "TEST_P", "TYPED_TEST"};
			static const std::set<std::string> Checks = {"EXPECT_TRUE", "EXPECT_FALSE", "ASSERT_TRUE", "ASSERT_FALSE"};
			if (Word == "static" && Frames.back().bNamespace && !bHeader)
			{
				ReadStatic();
			}
			else if (IsSymbol(Place + 1, "(") && Suites.contains(Word))
			{
				ReadSuite(At(Place + 2).Text);
			}
			else if (IsSymbol(Place + 1, "(") && Checks.contains(Word))
			{
				ReadCheck();
			}
		}

		/** Behind the bracket that closes the one at Opening. */
		size_t FindBehind(size_t Opening) const
		{
			int Depth = 0;
			size_t Index = Opening;
			do
			{
				Depth += IsOpening(Index) ? 1 : 0;
				Depth -= IsClosing(Index) ? 1 : 0;
				++Index;
			} while (Depth > 0 && Index < Tokens.size());
			return Index;
		}

		/** Variables may be static; what has a body behind its parameters is none. */
		void ReadStatic()
		{
			size_t Index = Place;
			while (Index < Tokens.size() && !IsOpening(Index) && !IsSymbol(Index, ";") && !IsSymbol(Index, "="))
			{
				++Index;
			}
			if (!IsSymbol(Index, "("))
			{
				return;
			}
			const size_t Behind = FindBehind(Index);
			if (IsSymbol(Behind, "{") || IsSymbol(Behind, "->") || At(Behind).Is("noexcept"))
			{
				Report("a static function; put it into a namespace named after the file");
			}
		}

		void ReadSuite(const std::string& Name)
		{
			static const std::regex Prefixed("(F|S|E|T|A|I|U(?!I))[A-Z].*");
			static const std::regex Suffixed(".*Tests?");
			if (std::regex_match(Name, Prefixed) || std::regex_match(Name, Suffixed))
			{
				Report("the suite " + Name + "; name it after the thing, without prefix and without \"Test\"");
			}
		}

		void ReadCheck()
		{
			const size_t Behind = FindBehind(Place + 1);
			const bool bTells = IsSymbol(Behind, "<") && IsSymbol(Behind + 1, "<");
			if (!bTells && (IsFlag(Place + 2, Behind - 1) || IsCompound(Place + 2, Behind - 1)))
			{
				Report("a check that does not tell what was expected; add << \"...\"");
			}
		}

		bool IsFlag(size_t Begin, size_t End) const
		{
			const size_t Word = IsSymbol(Begin, "!") ? Begin + 1 : Begin;
			return Word + 1 == End && At(Word).IsIdentifier();
		}

		bool IsCompound(size_t Begin, size_t End) const
		{
			for (size_t Index = Begin; Index < End; Index = IsOpening(Index) ? FindBehind(Index) : Index + 1)
			{
				const bool bAnd = IsSymbol(Index, "&") && IsSymbol(Index + 1, "&");
				const bool bOr = IsSymbol(Index, "|") && IsSymbol(Index + 1, "|");
				if (bAnd || bOr)
				{
					return true;
				}
			}
			return false;
		}

		const std::vector<FToken>& Tokens;
		const bool bHeader;
		size_t Place = 0;
		std::vector<FFrame> Frames;
		std::vector<std::string> Breaches;
	};
}

std::vector<std::string> SourceDialect::FindBreaches(const std::string& Path, const std::string& Source)
{
	std::vector<FToken> Tokens;
	HeaderTool::FDiagnostics Diagnostics;
	if (!HeaderTool::Tokenize(Path, Source, Tokens, Diagnostics))
	{
		return {std::to_string(Diagnostics.GetErrors()[0].Place.Line) + ": " + Diagnostics.GetErrors()[0].Message};
	}
	std::erase_if(Tokens, [](const FToken& Token) { return Token.Kind == ETokenKind::Directive; });
	return FReader(Tokens, Path.ends_with(".h")).Read();
}
