// Copyright Velmorant. All Rights Reserved.

#include "Conditionals.h"

#include "Diagnostics.h"

#include <algorithm>
#include <set>
#include <utility>

namespace HeaderTool
{
	namespace Conditionals
	{
		enum class EBranch
		{
			On, // known to be compiled
			Off, // known not to be compiled
			Unknown, // compiled in some configurations
		};

		constexpr size_t None = static_cast<size_t>(-1);

		struct FCondition
		{
			std::string Text; // as written, for messages
			FPlace Place;
			EBranch Branch = EBranch::On;
			size_t FirstUnknown = None; // of the conditions around and this one, from outside, whose branch is unknown
			bool bTaken = false; // a branch of this condition has been kept already
			bool bKeeping = false;
		};

		/** The directive's first word and the rest. */
		std::pair<std::string, std::string> SplitDirective(const std::string& Text)
		{
			size_t End = 0;
			while (End < Text.size() && ((Text[End] >= 'a' && Text[End] <= 'z') || Text[End] == '_'))
			{
				++End;
			}
			const size_t Rest = Text.find_first_not_of(" \t", End);
			return {Text.substr(0, End), Rest == std::string::npos ? "" : Text.substr(Rest)};
		}

		std::string WithoutBlanks(const std::string& Text)
		{
			std::string Result;
			for (const char C : Text)
			{
				if (C != ' ' && C != '\t' && C != '(' && C != ')')
				{
					Result += C;
				}
			}
			return Result;
		}

		EBranch Evaluate(const std::string& Keyword, const std::string& Condition)
		{
			static const std::set<std::string> AlwaysOn = {"WITH_EDITOR", "WITH_EDITORONLY_DATA", "1", "WITH_EDITOR&&WITH_EDITORONLY_DATA", "WITH_EDITORONLY_DATA&&WITH_EDITOR"};
			static const std::set<std::string> AlwaysOff = {"!WITH_EDITOR", "!WITH_EDITORONLY_DATA", "0"};
			if (Keyword != "if" && Keyword != "elif")
			{
				return EBranch::Unknown;
			}
			const std::string Text = WithoutBlanks(Condition);
			if (AlwaysOn.count(Text))
			{
				return EBranch::On;
			}
			return AlwaysOff.count(Text) ? EBranch::Off : EBranch::Unknown;
		}

		class FConditionals
		{
		public:
			FConditionals(const std::string& InPath, std::vector<FToken>& InTokens, FDiagnostics& InDiagnostics)
				: Path(InPath)
				, Tokens(InTokens)
				, Diagnostics(InDiagnostics)
			{
			}

			FConditionedSource Run()
			{
				Result.Tokens.reserve(Tokens.size());
				for (Index = 0; Index < Tokens.size(); ++Index)
				{
					FToken& Token = Tokens[Index];
					if (Token.Kind == ETokenKind::Directive)
					{
						Directive(Token);
					}
					else
					{
						Code(Token);
					}
				}
				for (const FCondition& Condition : Stack)
				{
					Diagnostics.Error(Path, Condition.Place, "'#" + Condition.Text + "' is never closed; add the missing '#endif'.");
				}
				return std::move(Result);
			}

		private:
			bool IsKeeping() const
			{
				return Stack.empty() || Stack.back().bKeeping;
			}

			void Code(FToken& Token)
			{
				if (Token.Kind == ETokenKind::End)
				{
					Result.Tokens.push_back(std::move(Token));
					return;
				}
				if (Token.IsIdentifier() && IsReflectionMacro(Token.Text))
				{
					if (!Stack.empty() && Stack.back().FirstUnknown != None)
					{
						const FCondition& Condition = Stack[Stack.back().FirstUnknown];
						Diagnostics.Error(Path, Token.Place, Token.Text + " must not stand inside '#" + Condition.Text + "' (line " + std::to_string(Condition.Place.Line) + "): reflected code may only be surrounded by '#if WITH_EDITOR' or '#if WITH_EDITORONLY_DATA'; move it out.");
					}
				}
				if (IsKeeping())
				{
					Result.Tokens.push_back(std::move(Token));
				}
			}

			void Directive(const FToken& Token)
			{
				const auto [Keyword, Rest] = SplitDirective(Token.Text);
				if (Keyword == "if" || Keyword == "ifdef" || Keyword == "ifndef")
				{
					Open(Token, Keyword, Rest);
				}
				else if (Keyword == "elif" || Keyword == "else")
				{
					Alternative(Token, Keyword, Rest);
				}
				else if (Keyword == "endif")
				{
					if (Stack.empty())
					{
						Diagnostics.Error(Path, Token.Place, "'#endif' closes nothing; remove it or add the missing '#if'.");
						return;
					}
					Stack.pop_back();
				}
				else if (Keyword == "include" && IsKeeping())
				{
					Include(Token, Rest);
				}
			}

			void Open(const FToken& Token, const std::string& Keyword, const std::string& Rest)
			{
				FCondition Condition;
				Condition.Text = Token.Text;
				Condition.Place = Token.Place;
				Condition.Branch = IsIncludeGuard(Keyword, Rest) ? EBranch::On : Evaluate(Keyword, Rest);
				Condition.bKeeping = IsKeeping() && Condition.Branch != EBranch::Off;
				Condition.bTaken = Condition.Branch != EBranch::Off;
				Push(Condition);
			}

			void Alternative(const FToken& Token, const std::string& Keyword, const std::string& Rest)
			{
				if (Stack.empty())
				{
					Diagnostics.Error(Path, Token.Place, "'#" + Keyword + "' belongs to no '#if'; remove it or add the missing '#if'.");
					return;
				}
				FCondition Condition = Stack.back();
				Stack.pop_back();
				const EBranch Own = Keyword == "else" ? EBranch::On : Evaluate(Keyword, Rest);
				if (Condition.Branch != EBranch::Unknown)
				{
					Condition.Branch = Condition.bTaken ? EBranch::Off : Own;
				}
				Condition.bKeeping = IsKeeping() && !Condition.bTaken && Condition.Branch != EBranch::Off;
				Condition.bTaken |= Condition.Branch != EBranch::Off;
				Push(Condition);
			}

			void Push(FCondition Condition)
			{
				const size_t Above = Stack.empty() ? None : Stack.back().FirstUnknown;
				const size_t Own = Condition.Branch == EBranch::Unknown ? Stack.size() : None;
				Condition.FirstUnknown = std::min(Above, Own);
				Stack.push_back(std::move(Condition));
			}

			/** `#ifndef X` directly followed by `#define X`, before any code. */
			bool IsIncludeGuard(const std::string& Keyword, const std::string& Rest) const
			{
				return Keyword == "ifndef" && Stack.empty() && Result.Tokens.empty() && Index + 1 < Tokens.size() && Tokens[Index + 1].Kind == ETokenKind::Directive && Tokens[Index + 1].Text == "define " + Rest;
			}

			void Include(const FToken& Token, const std::string& Rest)
			{
				const size_t First = Rest.find_first_of("\"<");
				const size_t Last = Rest.find_last_of("\">");
				if (First != std::string::npos && Last > First)
				{
					Result.Includes.push_back({Rest.substr(First + 1, Last - First - 1), Token.Place});
				}
			}

			const std::string& Path;
			std::vector<FToken>& Tokens; // those up to Index may have gone to Result
			FDiagnostics& Diagnostics;
			FConditionedSource Result;
			std::vector<FCondition> Stack;
			size_t Index = 0;
		};
	}

	bool IsReflectionMacro(const std::string& Text)
	{
		static const std::set<std::string> Names = {
			"UCLASS", "USTRUCT", "UENUM", "UINTERFACE", "UFUNCTION", "UPROPERTY", "UDELEGATE", "GENERATED_BODY", "GENERATED_UCLASS_BODY",
			"GENERATED_USTRUCT_BODY", "GENERATED_UINTERFACE_BODY", "GENERATED_IINTERFACE_BODY"};
		return Names.count(Text) > 0;
	}

	FConditionedSource ResolveConditionals(const std::string& Path, std::vector<FToken> Tokens, FDiagnostics& Diagnostics)
	{
		return Conditionals::FConditionals(Path, Tokens, Diagnostics).Run();
	}
}
