// Copyright Velmorant. All Rights Reserved.

#include "DeclarationSkipper.h"

#include "Conditionals.h"
#include "TextTools.h"

namespace HeaderTool
{
	namespace DeclarationSkipper
	{
		class FSkipper
		{
		public:
			explicit FSkipper(FTokenCursor& InCursor)
				: Cursor(InCursor)
			{
			}

			FSkippedDeclaration Run()
			{
				while (!bDone && !Cursor.AtEnd() && !StopsHere())
				{
					Step();
				}
				return Result;
			}

		private:
			bool StopsHere() const
			{
				const FToken& Token = Cursor.Peek();
				return Token.Is("}") || (Token.IsIdentifier() && IsReflectionMacro(Token.Text)) || IsAccessSpecifier(Cursor) || (bCall && Token.IsIdentifier() && StartsWith(Token.Text, "DECLARE_DYNAMIC_"));
			}

			void Step()
			{
				if (Cursor.Is(";"))
				{
					Take();
					bDone = true;
				}
				else if (Cursor.Is("("))
				{
					Parentheses();
				}
				else if (Cursor.Is("["))
				{
					Cursor.SkipBalanced();
				}
				else if (Cursor.Is("{"))
				{
					Braces();
				}
				else if (Cursor.Is("operator"))
				{
					OperatorName();
				}
				else if (Cursor.Is("template") && Cursor.Peek(1).Is("<"))
				{
					TemplateHead();
				}
				else
				{
					Word();
				}
			}

			void Word()
			{
				bEquals |= Cursor.Is("=");
				bInitializers |= Cursor.Is(":") && bCall;
				Take();
			}

			void Parentheses()
			{
				const FCallLike Call{Last, BeforeLast, Cursor.SkipBalanced()};
				if (!bEquals && !bInitializers)
				{
					Result.Calls.push_back(Call);
					bCall = true;
				}
				BeforeLast = "(";
				Last = ")";
			}

			void Braces()
			{
				const bool bMemberInitializer = bInitializers && Last != ")" && Last != "}";
				const bool bBlock = (bCall && !bEquals && !bMemberInitializer) || BeforeLast == "extern";
				const size_t First = Cursor.GetPosition();
				Cursor.SkipBalanced();
				FindNestedMacro(First);
				Last = "}";
				if (bBlock)
				{
					Cursor.Accept(";");
					bDone = true;
				}
			}

			void FindNestedMacro(size_t First)
			{
				const size_t End = Cursor.GetPosition();
				for (Cursor.SetPosition(First); Cursor.GetPosition() < End;)
				{
					const FToken& Token = Cursor.Next();
					if (Result.NestedMacro.empty() && Token.IsIdentifier() && IsReflectionMacro(Token.Text))
					{
						Result.NestedMacro = Token.Text;
						Result.NestedMacroPlace = Token.Place;
					}
				}
			}

			void OperatorName()
			{
				Take();
				if (Cursor.Is("(") && Cursor.Peek(1).Is(")"))
				{
					Take();
					Take();
				}
				while (!Cursor.AtEnd() && !Cursor.Is("(") && !Cursor.Is(";"))
				{
					Take();
				}
			}

			void TemplateHead()
			{
				Take();
				int Depth = 0;
				do
				{
					if (Cursor.Is("(") || Cursor.Is("{"))
					{
						Cursor.SkipBalanced();
						continue;
					}
					Depth += Cursor.Is("<") - Cursor.Is(">");
					Take();
				} while (Depth > 0 && !Cursor.AtEnd());
			}

			void Take()
			{
				BeforeLast = Last;
				Last = Cursor.Next().Text;
			}

			FTokenCursor& Cursor;
			FSkippedDeclaration Result;
			std::string Last;
			std::string BeforeLast;
			bool bCall = false; // parentheses of a declarator have been seen
			bool bEquals = false; // in an initializer
			bool bInitializers = false; // in a constructor's member initializers
			bool bDone = false;
		};
	}

	FSkippedDeclaration SkipDeclaration(FTokenCursor& Cursor)
	{
		return DeclarationSkipper::FSkipper(Cursor).Run();
	}

	bool IsAccessSpecifier(const FTokenCursor& Cursor)
	{
		const FToken& Token = Cursor.Peek();
		return (Token.Is("public") || Token.Is("protected") || Token.Is("private")) && Cursor.Peek(1).Is(":");
	}
}
