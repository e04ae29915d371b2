// Copyright Velmorant. All Rights Reserved.

#include "ClassParser.h"

#include "Conditionals.h"
#include "DeclarationSkipper.h"
#include "Diagnostics.h"
#include "MemberParser.h"
#include "TextTools.h"
#include "TypeParser.h"

namespace HeaderTool
{
	namespace ClassParser
	{
		EAccess AccessNamed(const std::string& Keyword)
		{
			if (Keyword == "public")
			{
				return EAccess::Public;
			}
			return Keyword == "protected" ? EAccess::Protected : EAccess::Private;
		}

		class FBodyParser
		{
		public:
			FBodyParser(FTokenCursor& InCursor, const std::string& InPath, EBodySide InSide, FClass& InClass, FDiagnostics& InDiagnostics)
				: Cursor(InCursor)
				, Path(InPath)
				, Side(InSide)
				, Class(InClass)
				, Facts(InSide == EBodySide::NativeInterface ? InClass.NativeInterfaceBody : InClass.Body)
				, Name(InSide == EBodySide::NativeInterface ? InClass.NativeInterfaceName() : InClass.CppName)
				, Diagnostics(InDiagnostics)
				, Access(InSide == EBodySide::Struct ? EAccess::Public : EAccess::Private)
			{
			}

			void Run()
			{
				Cursor.Expect("{", "to begin the body of '" + Name + "'");
				while (!Cursor.AtEnd() && !Cursor.Is("}"))
				{
					const size_t Start = Cursor.GetPosition();
					try
					{
						Member();
					}
					catch (const FSyntaxError& Error)
					{
						Diagnostics.Error(Path, Error.Place, Error.Message);
						Recover(Start);
					}
				}
				Cursor.Accept("}");
				Cursor.Accept(";");
			}

		private:
			void Member()
			{
				const FToken& Token = Cursor.Peek();
				if (IsAccessSpecifier(Cursor))
				{
					Access = AccessNamed(Token.Text);
					Cursor.Next();
					Cursor.Next();
				}
				else if (StartsWith(Token.Text, "GENERATED_") && IsReflectionMacro(Token.Text))
				{
					GeneratedBody();
				}
				else if (Token.Is("UPROPERTY"))
				{
					Property();
				}
				else if (Token.Is("UFUNCTION"))
				{
					Function();
				}
				else if (IsDelegateMacro(Token))
				{
					Delegate();
				}
				else if (Token.IsIdentifier() && IsReflectionMacro(Token.Text))
				{
					throw FSyntaxError{Token.Place, Token.Text + " inside of '" + Name + "': a reflected type cannot be nested; move it to file scope."};
				}
				else
				{
					Unreflected();
				}
			}

			void GeneratedBody()
			{
				const FToken& Token = Cursor.Next();
				if (Facts.MacroPlace.IsSet())
				{
					throw FSyntaxError{Token.Place, "'" + Name + "' has " + Facts.Macro + " already in line " + std::to_string(Facts.MacroPlace.Line) + "; keep one."};
				}
				Facts.MacroPlace = Token.Place;
				Facts.Macro = Token.Text;
				Cursor.Expect("(", "after " + Token.Text);
				Cursor.Expect(")", "after " + Token.Text + "(");
				Cursor.Accept(";");
				if (Side != EBodySide::Struct)
				{
					Access = Token.Is("GENERATED_BODY") ? EAccess::Private : EAccess::Public;
				}
			}

			void Property()
			{
				FProperty Parsed = ParseProperty(Cursor, Path, Access, Diagnostics);
				if (Side == EBodySide::NativeInterface || Side == EBodySide::InterfaceUClass)
				{
					Diagnostics.Error(Path, Parsed.Place, "interface '" + Name + "' cannot have the UPROPERTY '" + Parsed.Name + "'; put it into the implementing classes.");
					return;
				}
				Class.Properties.push_back(std::move(Parsed));
			}

			void Function()
			{
				FFunction Parsed = ParseFunction(Cursor, Path, Access, Diagnostics);
				if (Side == EBodySide::InterfaceUClass)
				{
					Diagnostics.Error(Path, Parsed.Place, "UFUNCTION '" + Parsed.Name + "' cannot stand in '" + Name + "'; move it to '" + Class.NativeInterfaceName() + "'.");
					return;
				}
				if (Side == EBodySide::Struct)
				{
					Diagnostics.Error(Path, Parsed.Place, "struct '" + Name + "' cannot have the UFUNCTION '" + Parsed.Name + "'; remove the macro, or move the function to a class.");
					return;
				}
				Class.Functions.push_back(std::move(Parsed));
			}

			void Delegate()
			{
				std::unique_ptr<FDelegateType> Parsed = std::make_unique<FDelegateType>(ParseDelegate(Cursor));
				Parsed->Outer = &Class;
				Class.Delegates.push_back(std::move(Parsed));
			}

			void Unreflected()
			{
				const size_t Start = Cursor.GetPosition();
				const FSkippedDeclaration Skipped = SkipDeclaration(Cursor);
				if (Cursor.GetPosition() == Start)
				{
					Cursor.Next(); // a stray token; the compiler has more to say about it
				}
				if (!Skipped.NestedMacro.empty())
				{
					Diagnostics.Error(Path, Skipped.NestedMacroPlace, Skipped.NestedMacro + " inside of a type nested in '" + Name + "': a reflected type cannot be nested; move it to file scope.");
				}
				for (const FCallLike& Call : Skipped.Calls)
				{
					Note(Call);
				}
			}

			void Note(const FCallLike& Call)
			{
				if (Call.Name != Name)
				{
					Facts.DeclaredFunctions.insert(Call.Name);
					return;
				}
				if (Call.Before == "~")
				{
					Facts.bDestructor = true;
				}
				else if (Call.Parameters.find("FObjectInitializer") != std::string::npos)
				{
					Facts.bInitializerConstructor = true;
				}
				else if (Call.Parameters.empty() || Call.Parameters == "void")
				{
					Facts.bDefaultConstructor = true;
				}
				else
				{
					Facts.bOtherConstructor = true;
				}
			}

			/** Behind the macro whose declaration could not be read, to where the next member may begin. */
			void Recover(size_t Start)
			{
				Cursor.SetPosition(Start);
				Cursor.Next();
				if (Cursor.Is("("))
				{
					Cursor.SkipBalanced();
				}
				const size_t Before = Cursor.GetPosition();
				SkipDeclaration(Cursor);
				if (Cursor.GetPosition() == Before && Cursor.Is(";"))
				{
					Cursor.Next();
				}
			}

			FTokenCursor& Cursor;
			const std::string& Path;
			const EBodySide Side;
			FClass& Class;
			FBodyFacts& Facts;
			const std::string Name;
			FDiagnostics& Diagnostics;
			EAccess Access;
		};

		FBaseSpecifier ParseBase(FTokenCursor& Cursor)
		{
			while (Cursor.Accept("public") || Cursor.Accept("protected") || Cursor.Accept("private") || Cursor.Accept("virtual"))
			{
			}
			const FTypeUse Type = ParseType(Cursor);
			return {Type.Spell(), Type.Place};
		}
	}

	FClassHead ParseClassHead(FTokenCursor& Cursor, const std::string& Where)
	{
		FClassHead Head;
		SkipDecorations(Cursor);
		if (!Cursor.Is("class") && !Cursor.Is("struct"))
		{
			throw FSyntaxError{Cursor.Peek().Place, "expected a class or struct " + Where + ", but found '" + Cursor.Peek().Text + "'."};
		}
		Head.Keyword = Cursor.Next().Text;
		Head.bExported = SkipDecorations(Cursor);
		Head.Place = Cursor.Peek().Place;
		Head.Name = Cursor.ExpectIdentifier("the name of the " + Head.Keyword + " " + Where);
		Cursor.Accept("final");
		if (Cursor.Accept(":"))
		{
			do
			{
				Head.Bases.push_back(ClassParser::ParseBase(Cursor));
			} while (Cursor.Accept(","));
		}
		if (!Cursor.Is("{"))
		{
			throw FSyntaxError{Cursor.Peek().Place, "expected '{' after '" + Head.Keyword + " " + Head.Name + "', but found '" + Cursor.Peek().Text + "'."};
		}
		return Head;
	}

	void ParseClassBody(FTokenCursor& Cursor, const std::string& Path, EBodySide Side, FClass& Class, FDiagnostics& Diagnostics)
	{
		ClassParser::FBodyParser(Cursor, Path, Side, Class, Diagnostics).Run();
	}
}
