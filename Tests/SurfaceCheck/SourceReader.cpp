// Copyright Velmorant. All Rights Reserved.

#include "SourceReader.h"

#include "Diagnostics.h"
#include "Lexer.h"

#include <algorithm>
#include <stdexcept>

namespace SurfaceCheck
{
	namespace SourceReader
	{
		using HeaderTool::ETokenKind;
		using HeaderTool::FToken;
		using FTokens = std::vector<FToken>;

		bool IsOneOf(const FToken& Token, std::initializer_list<const char*> Texts)
		{
			return std::any_of(Texts.begin(), Texts.end(), [&Token](const char* Text) { return Token.Is(Text); });
		}

		/** By the look of its name: UPROPERTY, DECLARE_DELEGATE_OneParam. */
		bool IsMacro(const FToken& Token)
		{
			const std::string Text = Token.Text.substr(0, Token.Text.find('_', 1));
			return Token.IsIdentifier() && Text.size() > 1 && std::none_of(Text.begin(), Text.end(), [](char C) { return C >= 'a' && C <= 'z'; });
		}

		/** The position of the bracket that closes the one at Open, or the last position. */
		size_t FindClosing(const FTokens& Tokens, size_t Open)
		{
			int Depth = 0;
			for (size_t Index = Open; Index < Tokens.size(); ++Index)
			{
				Depth += IsOneOf(Tokens[Index], {"(", "[", "{"}) ? 1 : 0;
				Depth -= IsOneOf(Tokens[Index], {")", "]", "}"}) ? 1 : 0;
				if (Depth == 0)
				{
					return Index;
				}
			}
			return Tokens.size() - 1;
		}

		/** The position of the '>' for the '<' at Open; Open itself when that '<' opens no arguments. */
		size_t FindClosingAngle(const FTokens& Tokens, size_t Open)
		{
			int Depth = 0;
			for (size_t Index = Open; Index < Tokens.size(); ++Index)
			{
				const FToken& Token = Tokens[Index];
				if (IsOneOf(Token, {"(", "[", "{"}))
				{
					Index = FindClosing(Tokens, Index);
				}
				else if (IsOneOf(Token, {";", ")", "]", "}"}))
				{
					return Open;
				}
				Depth += Token.Is("<") ? 1 : 0;
				Depth -= Token.Is(">") ? 1 : 0;
				if (Depth == 0)
				{
					return Index;
				}
			}
			return Open;
		}

		/** Whether the name at Index is called so that a virtual function may answer: not by a qualified name, and not declared there. */
		bool IsCalled(const FTokens& Tokens, size_t First, size_t Index, size_t Last)
		{
			if (Index == First)
			{
				return Index + 1 < Last && Tokens[Index + 1].Is("(");
			}
			if (Tokens[Index - 1].Is("::"))
			{
				while (Index > First + 2 && Tokens[Index - 1].Is("::"))
				{
					Index -= 2;
				}
				return Tokens[Index - 1].Is("&"); // a pointer to a member, which is called later
			}
			const bool bDeclared = Tokens[Index - 1].IsIdentifier() && !IsOneOf(Tokens[Index - 1], {"return", "else", "co_return", "throw"});
			return !bDeclared && Index + 1 < Last && Tokens[Index + 1].Is("(");
		}

		void CollectWords(const FTokens& Tokens, size_t First, size_t Last, std::set<std::string>& Words, std::set<std::string>& Calls)
		{
			for (size_t Index = First; Index < Last; ++Index)
			{
				if (!Tokens[Index].IsIdentifier())
				{
					continue;
				}
				Words.insert(Tokens[Index].Text);
				if (IsCalled(Tokens, First, Index, Last))
				{
					Calls.insert(Tokens[Index].Text);
				}
			}
		}

		/** X of each "GetDerivedClasses(X::StaticClass()". */
		std::set<std::string> FindFamilies(const FTokens& Tokens, size_t First, size_t Last)
		{
			std::set<std::string> Families;
			for (size_t Index = First; Index + 4 < Last; ++Index)
			{
				if (Tokens[Index].Is("GetDerivedClasses") && Tokens[Index + 4].Is("StaticClass"))
				{
					Families.insert(Tokens[Index + 2].Text);
				}
			}
			return Families;
		}

		/** What a declaration's tokens say up to its ';' or '{'. */
		struct FDeclarator
		{
			bool bFunction = false;
			size_t Name = 0; // of the last part
			size_t Open = 0;
			size_t Close = 0;
			std::vector<std::string> Qualifiers; // of a definition outside of its class
			std::string Text;
		};

		class FReader
		{
		public:
			FReader(const std::string& Path, const std::string& Text)
			{
				Source.Path = Path;
				HeaderTool::FDiagnostics Diagnostics;
				if (!HeaderTool::Tokenize(Path, Text, Tokens, Diagnostics))
				{
					throw std::runtime_error(Path + ": cannot be cut into tokens: " + Diagnostics.GetErrors().front().Message);
				}
				TakeDirectives();
				TakeTexts();
			}

			FSource Run()
			{
				while (Position + 1 < Tokens.size())
				{
					ReadDeclaration();
				}
				return std::move(Source);
			}

		private:
			struct FScope
			{
				std::vector<std::string> Names;
				bool bClass = false;
			};

			void TakeDirectives()
			{
				FTokens Rest;
				for (FToken& Token : Tokens)
				{
					if (Token.Kind != ETokenKind::Directive)
					{
						Rest.push_back(Token);
						continue;
					}
					const size_t Quote = Token.Text.find_first_of("\"<");
					if (Token.Text.starts_with("include") && Quote != std::string::npos)
					{
						Source.Includes.insert(Token.Text.substr(Quote + 1, Token.Text.find_last_of("\">") - Quote - 1));
					}
					else if (Token.Text.starts_with("define"))
					{
						HeaderTool::FDiagnostics Ignored; // lone quotes of stringizing macros
						FTokens Macro;
						HeaderTool::Tokenize(Source.Path, Token.Text, Macro, Ignored);
						CollectWords(Macro, 2, Macro.size(), Source.Words, Source.Calls);
					}
				}
				Tokens.swap(Rest);
			}

			void TakeTexts()
			{
				const std::string Include = "#include \\\"";
				for (const FToken& Token : Tokens)
				{
					const size_t Written = Token.Kind == ETokenKind::String ? Token.Text.find(Include) : std::string::npos;
					if (Written != std::string::npos)
					{
						const size_t Name = Written + Include.size();
						Source.Includes.insert(Token.Text.substr(Name, Token.Text.find('\\', Name) - Name));
					}
					const size_t Found = Token.Kind == ETokenKind::String ? Token.Text.find("/Script/") : std::string::npos;
					const size_t Dot = Found == std::string::npos ? Found : Token.Text.find('.', Found);
					if (Dot != std::string::npos)
					{
						const size_t End = Token.Text.find_first_of("\"'.:", Dot + 1);
						Source.ScriptNames.insert(Token.Text.substr(Dot + 1, End - Dot - 1));
					}
				}
			}

			/** One declaration from Position on; leaves Position behind it, or in the scope that it opens. */
			void ReadDeclaration()
			{
				First = Position;
				if (Tokens[Position].Is("}"))
				{
					if (!Scopes.empty())
					{
						Scopes.pop_back();
					}
					++Position;
					return;
				}
				if (SkipMacroOrLabel())
				{
					return;
				}
				for (; Position + 1 < Tokens.size(); ++Position)
				{
					if (IsOneOf(Tokens[Position], {"(", "["}))
					{
						Position = FindClosing(Tokens, Position);
					}
					else if (Tokens[Position].Is(";") || Tokens[Position].Is("}"))
					{
						EndDeclaration();
						return;
					}
					else if (Tokens[Position].Is("{") && OpenBrace())
					{
						return;
					}
				}
			}

			/** Access labels, and macros that stand alone or before a declaration. */
			bool SkipMacroOrLabel()
			{
				const FToken& Token = Tokens[Position];
				if (IsOneOf(Token, {"public", "protected", "private"}) && Tokens[Position + 1].Is(":"))
				{
					Position += 2;
					return true;
				}
				if (Token.Is(";"))
				{
					++Position;
					return true;
				}
				if (Token.Is(":")) // initial values behind a macro
				{
					while (!Tokens[Position].Is("{") && Position + 1 < Tokens.size())
					{
						++Position;
					}
					Position = FindClosing(Tokens, Position) + 1;
					return true;
				}
				const bool bMacro = IsMacro(Token) && Tokens[Position + 1].Is("(");
				if (bMacro)
				{
					const size_t Close = FindClosing(Tokens, Position + 1);
					const bool bBody = Tokens[Close + 1].Is("{");
					const size_t End = bBody ? FindClosing(Tokens, Close + 1) : Close;
					CollectWords(Tokens, Position, End, Source.Words, Source.Calls);
					Position = End + 1;
				}
				return bMacro;
			}

			/** Behind template heads, requirements in brackets, attributes and "friend". */
			size_t SkipHeads(size_t Index, bool* bFriend = nullptr) const
			{
				for (;;)
				{
					if (Tokens[Index].Is("template") && Tokens[Index + 1].Is("<"))
					{
						Index = FindClosingAngle(Tokens, Index + 1) + 1;
					}
					else if (Tokens[Index].Is("requires"))
					{
						Index = SkipRequirement(Index + 1);
					}
					else if (Tokens[Index].Is("[") && Tokens[Index + 1].Is("["))
					{
						Index = FindClosing(Tokens, Index) + 1;
					}
					else if (IsOneOf(Tokens[Index], {"friend", "inline", "static", "extern", "explicit", "typedef", "FORCEINLINE", "constexpr"}) && Tokens[Index + 1].Kind != ETokenKind::String)
					{
						if (bFriend && Tokens[Index].Is("friend"))
						{
							*bFriend = true;
						}
						++Index;
					}
					else
					{
						return Index;
					}
				}
			}

			size_t SkipRequirement(size_t Index) const
			{
				for (;;)
				{
					while (Tokens[Index].Is("!"))
					{
						++Index;
					}
					if (Tokens[Index].Is("requires"))
					{
						Index += 1;
						Index = Tokens[Index].Is("(") ? FindClosing(Tokens, Index) + 1 : Index;
						Index = FindClosing(Tokens, Index) + 1;
					}
					else if (Tokens[Index].Is("("))
					{
						Index = FindClosing(Tokens, Index) + 1;
					}
					else
					{
						while (Tokens[Index].IsIdentifier() && Tokens[Index + 1].Is("::"))
						{
							Index += 2;
						}
						++Index;
						if (Tokens[Index].Is("<"))
						{
							Index = FindClosingAngle(Tokens, Index) + 1;
						}
						if (Tokens[Index].Is("::"))
						{
							Index += 2;
						}
					}
					const bool bMore = (Tokens[Index].Is("&") && Tokens[Index + 1].Is("&")) || (Tokens[Index].Is("|") && Tokens[Index + 1].Is("|"));
					if (!bMore)
					{
						return Index;
					}
					Index += 2;
				}
			}

			/** At a '{' within a declaration: whether it ended there, and the position is behind what it opened. */
			bool OpenBrace()
			{
				const size_t Head = SkipHeads(First);
				if (Tokens[Head].Is("namespace") || (Tokens[First].Is("extern") && Tokens[First + 1].Kind == ETokenKind::String))
				{
					OpenNamespace(Head);
					return true;
				}
				if (Tokens[Head].Is("enum"))
				{
					Position = FindClosing(Tokens, Position);
					return false;
				}
				if (IsOneOf(Tokens[Head], {"class", "struct", "union"}))
				{
					OpenClass(Head);
					return true;
				}
				const FDeclarator Declarator = FindDeclarator(Position);
				if (!Declarator.bFunction || IsInitializer(Declarator))
				{
					Position = FindClosing(Tokens, Position);
					return false;
				}
				const size_t Close = FindClosing(Tokens, Position);
				AddFunction(Declarator, Position, Close);
				Position = Close + 1;
				return true;
			}

			/** Whether the '{' at Position holds the initial value of a member, in a constructor's list. */
			bool IsInitializer(const FDeclarator& Declarator) const
			{
				for (size_t Index = Declarator.Close; Index < Position; ++Index)
				{
					if (Tokens[Index].Is(":"))
					{
						return !IsOneOf(Tokens[Position - 1], {")", "}"});
					}
				}
				return false;
			}

			void OpenNamespace(size_t Head)
			{
				FScope Scope;
				for (size_t Index = Head; Index < Position; ++Index)
				{
					if (Tokens[Index].IsIdentifier() && !IsOneOf(Tokens[Index], {"namespace", "inline", "extern"}))
					{
						Scope.Names.push_back(Tokens[Index].Text);
					}
				}
				if (Scope.Names.empty() && Tokens[Head].Is("namespace"))
				{
					Scope.Names.push_back(FFunctionName::AnonymousNamespace);
				}
				Scopes.push_back(Scope);
				++Position;
			}

			void OpenClass(size_t Head)
			{
				FScope Scope;
				Scope.bClass = true;
				std::string Name;
				for (size_t Index = Head + 1; Index < Position && !Tokens[Index].Is(":"); ++Index)
				{
					if (Tokens[Index].Is("("))
					{
						Index = FindClosing(Tokens, Index);
					}
					else if (Tokens[Index].Is("<"))
					{
						break;
					}
					else if (Tokens[Index].Is("::"))
					{
						Scope.Names.push_back(Name);
					}
					else if (Tokens[Index].IsIdentifier() && !Tokens[Index].Is("final"))
					{
						Name = Tokens[Index].Text;
					}
				}
				if (!Name.empty())
				{
					Scope.Names.push_back(Name);
					Source.Classes.insert(Name);
				}
				Scopes.push_back(Scope);
				++Position;
			}

			void EndDeclaration()
			{
				const FDeclarator Declarator = FindDeclarator(Position);
				const size_t Head = SkipHeads(First);
				if (Declarator.bFunction && !IsOneOf(Tokens[Head], {"using", "namespace", "static_assert", "concept"}))
				{
					AddFunction(Declarator, Position, Position);
				}
				else
				{
					CollectWords(Tokens, First, Position, Source.Words, Source.Calls);
				}
				Position += Tokens[Position].Is(";") ? 1 : 0;
			}

			FDeclarator FindDeclarator(size_t End) const
			{
				FDeclarator Result;
				for (size_t Index = SkipHeads(First); Index < End; ++Index)
				{
					const FToken& Token = Tokens[Index];
					if (Token.Is("operator"))
					{
						TakeOperator(Index, End, Result);
						return Result;
					}
					if (Token.Is("=") || Token.Is("{"))
					{
						return Result;
					}
					if (Token.Is("<") && Index > 0 && Tokens[Index - 1].IsIdentifier())
					{
						Index = FindClosingAngle(Tokens, Index);
					}
					else if (Token.Is("["))
					{
						Index = FindClosing(Tokens, Index);
					}
					else if (Token.Is("("))
					{
						if (TakeName(Index, Result))
						{
							return Result;
						}
						Index = FindClosing(Tokens, Index);
					}
				}
				return Result;
			}

			void TakeOperator(size_t Index, size_t End, FDeclarator& Result) const
			{
				Result.Name = Index;
				size_t Open = Index + 1;
				if (Tokens[Open].Is("(") && Tokens[Open + 1].Is(")"))
				{
					Open += 2;
				}
				while (Open < End && !Tokens[Open].Is("("))
				{
					++Open;
				}
				Result.Text = "operator";
				const bool bWord = Tokens[Index + 1].IsIdentifier() || Tokens[Index + 1].Is("::");
				if (bWord && !IsOneOf(Tokens[Index + 1], {"new", "delete"}))
				{
					Result.Text = FFunctionName::ConversionName;
				}
				for (size_t Part = Index + 1; Part < Open && Result.Text != FFunctionName::ConversionName; ++Part)
				{
					Result.Text += (Tokens[Part].IsIdentifier() ? " " : "") + Tokens[Part].Text;
				}
				Finish(Open, Result);
			}

			bool TakeName(size_t Open, FDeclarator& Result) const
			{
				const FToken& Before = Tokens[Open - 1];
				if (Open == First || !Before.IsIdentifier() || IsOneOf(Before, {"decltype", "alignas", "noexcept", "requires", "explicit", "void", "UE_DEPRECATED"}))
				{
					return false;
				}
				const FToken& Behind = Tokens[Open + 1];
				const bool bValue = Behind.Kind == ETokenKind::String || Behind.Kind == ETokenKind::Number || IsOneOf(Behind, {"[", "&", "{", "TEXT", "this"});
				if (bValue && !(Behind.Is("[") && Tokens[Open + 2].Is("[")))
				{
					return false; // a variable with its initial value
				}
				Result.Name = Open - 1;
				Result.Text = Before.Text;
				Finish(Open, Result);
				return true;
			}

			void Finish(size_t Open, FDeclarator& Result) const
			{
				Result.bFunction = true;
				Result.Open = Open;
				Result.Close = FindClosing(Tokens, Open);
				size_t Index = Result.Name;
				if (Index > First && Tokens[Index - 1].Is("~"))
				{
					Result.Text = "~" + Result.Text;
					--Index;
				}
				while (Index > First + 1 && Tokens[Index - 1].Is("::"))
				{
					Index -= 2;
					if (Tokens[Index].Is(">"))
					{
						for (int Depth = 1; Depth > 0 && Index > First;)
						{
							--Index;
							Depth += Tokens[Index].Is(">") ? 1 : 0;
							Depth -= Tokens[Index].Is("<") ? 1 : 0;
						}
						--Index;
					}
					Result.Qualifiers.insert(Result.Qualifiers.begin(), Tokens[Index].Text);
				}
			}

			int CountParameters(const FDeclarator& Declarator) const
			{
				int Count = Declarator.Close > Declarator.Open + 1 ? 1 : 0;
				for (size_t Index = Declarator.Open + 1; Index < Declarator.Close; ++Index)
				{
					if (IsOneOf(Tokens[Index], {"(", "[", "{"}))
					{
						Index = FindClosing(Tokens, Index);
					}
					else if (Tokens[Index].Is("<") && Tokens[Index - 1].IsIdentifier())
					{
						Index = FindClosingAngle(Tokens, Index);
					}
					else if (Tokens[Index].Is(".") && Tokens[Index + 1].Is("."))
					{
						return FFunctionName::AnyNumber;
					}
					Count += Tokens[Index].Is(",") ? 1 : 0;
				}
				return Count;
			}

			void AddFunction(const FDeclarator& Declarator, size_t End, size_t Last)
			{
				FSourceFunction Function;
				bool bFriend = false;
				SkipHeads(First, &bFriend);
				Function.Name.Scope = GetScope(bFriend, Declarator.Qualifiers);
				Function.Name.Name = Declarator.Text;
				Function.Name.Parameters = CountParameters(Declarator);
				Function.Path = Source.Path;
				Function.Line = Tokens[First].Place.Line;
				Function.LastLine = Tokens[Last].Place.Line;
				Function.bBody = End != Last;
				for (size_t Index = First; Index < Declarator.Name; ++Index)
				{
					Function.bVirtual |= Tokens[Index].Is("virtual");
					Function.bConstant |= IsOneOf(Tokens[Index], {"constexpr", "consteval"});
				}
				for (size_t Index = Declarator.Close; Index < End && !Tokens[Index].Is(":"); ++Index)
				{
					Function.bOverride |= IsOneOf(Tokens[Index], {"override", "final"});
					Function.bNothingToCall |= IsOneOf(Tokens[Index], {"default", "delete"});
				}
				Function.bVirtual |= Function.bOverride;
				Function.bNothingToCall |= IsCopyOrDefault(Declarator, Function.Name);
				CollectWords(Tokens, Declarator.Close, Last, Function.Words, Function.Calls);
				std::set<std::string> Ignored;
				CollectWords(Tokens, First, Declarator.Name, Function.Words, Ignored);
				CollectWords(Tokens, Declarator.Open, Declarator.Close, Function.Words, Function.Calls);
				Function.Families = FindFamilies(Tokens, Declarator.Close, Last);
				Source.Functions.push_back(Function);
			}

			/** Copies, moves and default constructors: left out, the class would have others or could not be a member. */
			bool IsCopyOrDefault(const FDeclarator& Declarator, const FFunctionName& Name) const
			{
				const std::string Class = Name.Scope.substr(Name.Scope.rfind(':') + 1);
				if (Name.Parameters == 0)
				{
					return Name.Name == Class;
				}
				const FToken& Type = Tokens[Declarator.Open + (Tokens[Declarator.Open + 1].Is("const") ? 2 : 1)];
				return (Name.Name == "operator=" || Name.Name == Class) && Name.Parameters == 1 && Type.Is(Class.c_str());
			}

			/** A friend belongs to the namespace around its class. */
			std::string GetScope(bool bFriend, const std::vector<std::string>& Qualifiers) const
			{
				std::string Result;
				for (const FScope& Scope : Scopes)
				{
					for (const std::string& Name : Scope.Names)
					{
						if (!bFriend || !Scope.bClass)
						{
							Result += (Result.empty() ? "" : "::") + Name;
						}
					}
				}
				for (const std::string& Name : Qualifiers)
				{
					Result += (Result.empty() ? "" : "::") + Name;
				}
				return Result;
			}

			FSource Source;
			FTokens Tokens;
			std::vector<FScope> Scopes;
			size_t Position = 0;
			size_t First = 0; // of the declaration that is being read
		};
	}

	FSource ReadSource(const std::string& Path, const std::string& Text)
	{
		return SourceReader::FReader(Path, Text).Run();
	}
}
