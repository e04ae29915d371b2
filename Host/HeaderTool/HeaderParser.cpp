// Copyright Velmorant. All Rights Reserved.

#include "HeaderParser.h"

#include "Brackets.h"
#include "ClassParser.h"
#include "Conditionals.h"
#include "DeclarationSkipper.h"
#include "Diagnostics.h"
#include "EnumParser.h"
#include "MemberParser.h"
#include "SpecifierParser.h"
#include "TextTools.h"
#include "TypeParser.h"

#include <utility>

namespace HeaderTool
{
	namespace HeaderParser
	{
		class FHeaderParser
		{
		public:
			FHeaderParser(const std::vector<FToken>& Tokens, FHeader& InHeader, FDiagnostics& InDiagnostics)
				: Cursor(Tokens)
				, Header(InHeader)
				, Diagnostics(InDiagnostics)
			{
			}

			void Run()
			{
				while (!Cursor.AtEnd())
				{
					const size_t Start = Cursor.GetPosition();
					try
					{
						Declaration();
					}
					catch (const FSyntaxError& Error)
					{
						Diagnostics.Error(Header.Path, Error.Place, Error.Message);
						Cursor.SetPosition(Start);
						Cursor.Next();
						SkipDeclaration(Cursor);
					}
				}
				for (const std::unique_ptr<FClass>& Class : Header.Classes)
				{
					if (Class->Kind == EClassKind::Interface && !Class->bHasNativeInterface)
					{
						Diagnostics.Error(Header.Path, Class->Place, "interface '" + Class->CppName + "' has no 'class " + Class->NativeInterfaceName() + "' in this header; add it with GENERATED_BODY().");
					}
				}
			}

		private:
			void Declaration()
			{
				const FToken& Token = Cursor.Peek();
				if (Token.Is("UCLASS") || Token.Is("USTRUCT") || Token.Is("UINTERFACE") || Token.Is("UENUM"))
				{
					Reflected();
				}
				else if (IsDelegateMacro(Token))
				{
					Delegate();
				}
				else if (Token.Is("UDELEGATE"))
				{
					throw FSyntaxError{Token.Place, "UDELEGATE() is known to the engine, not supported here; remove it, the DECLARE_DYNAMIC_ macro is all that is needed."};
				}
				else if (Token.IsIdentifier() && IsReflectionMacro(Token.Text))
				{
					throw FSyntaxError{Token.Place, Token.Text + " stands outside of a reflected class; move it into one."};
				}
				else if (Token.Is("namespace") || (Token.Is("inline") && Cursor.Peek(1).Is("namespace")))
				{
					Namespace();
				}
				else if (Token.Is("extern") && Cursor.Peek(1).Kind == ETokenKind::String && Cursor.Peek(2).Is("{"))
				{
					Cursor.SetPosition(Cursor.GetPosition() + 3);
					NamespacePlaces.push_back({});
				}
				else if (Token.Is("}"))
				{
					Cursor.Next();
					if (!NamespacePlaces.empty()) // empty only behind a declaration that could not be read
					{
						NamespacePlaces.pop_back();
					}
				}
				else if (FClass* Interface = FindInterfaceFor())
				{
					NativeInterface(*Interface);
				}
				else
				{
					Unreflected();
				}
			}

			void NoteReflected(const FToken& Token)
			{
				if (!Header.FirstReflectedPlace.IsSet())
				{
					Header.FirstReflectedPlace = Token.Place;
				}
			}

			void Reflected()
			{
				const FToken& Token = Cursor.Peek();
				NoteReflected(Token);
				for (const FPlace& Place : NamespacePlaces)
				{
					if (Place.IsSet())
					{
						Diagnostics.Error(Header.Path, Token.Place, Token.Text + " inside of the namespace of line " + std::to_string(Place.Line) + ": reflected types must stand at file scope; move it out.");
						break;
					}
				}
				const FSpecifierList List = ParseSpecifiers(Cursor, Header.Path);
				if (List.Macro == "UENUM")
				{
					FEnum Enum = ParseEnum(Cursor, List, Diagnostics);
					Enum.Header = &Header;
					Header.Enums.push_back(std::make_unique<FEnum>(std::move(Enum)));
					return;
				}
				Type(List);
			}

			void Type(const FSpecifierList& List)
			{
				const FClassHead Head = ParseClassHead(Cursor, "after " + List.Macro + "()");
				std::unique_ptr<FClass> Class = std::make_unique<FClass>();
				Class->CppName = Head.Name;
				Class->Header = &Header;
				Class->Place = Head.Place;
				Class->bExported = Head.bExported;
				Class->Bases = Head.Bases;
				if ((List.Macro == "USTRUCT") != (Head.Keyword == "struct"))
				{
					Diagnostics.Error(Header.Path, Head.Place, List.Macro + "() must stand before a " + (List.Macro == "USTRUCT" ? "struct" : "class") + ", but '" + Head.Name + "' is a " + Head.Keyword + ".");
				}
				EBodySide Side = EBodySide::Class;
				if (List.Macro == "USTRUCT")
				{
					Class->Kind = EClassKind::Struct;
					Side = EBodySide::Struct;
					ApplyStructSpecifiers(List, *Class, Diagnostics);
				}
				else if (List.Macro == "UINTERFACE")
				{
					Class->Kind = EClassKind::Interface;
					Side = EBodySide::InterfaceUClass;
					ApplyInterfaceSpecifiers(List, *Class, Diagnostics);
				}
				else
				{
					ApplyClassSpecifiers(List, *Class, Diagnostics);
				}
				ParseClassBody(Cursor, Header.Path, Side, *Class, Diagnostics);
				Header.Classes.push_back(std::move(Class));
			}

			void Delegate()
			{
				NoteReflected(Cursor.Peek());
				Header.Delegates.push_back(std::make_unique<FDelegateType>(ParseDelegate(Cursor)));
			}

			void Namespace()
			{
				const FPlace Place = Cursor.Peek().Place;
				while (!Cursor.AtEnd() && !Cursor.Is("{") && !Cursor.Is(";"))
				{
					Cursor.Next();
				}
				if (Cursor.Next().Is("{"))
				{
					NamespacePlaces.push_back(Place);
				}
			}

			/** The UINTERFACE whose I class is defined here; null if anything else stands here. */
			FClass* FindInterfaceFor() const
			{
				size_t Offset = 1;
				while (EndsWith(Cursor.Peek(Offset).Text, "_API"))
				{
					++Offset;
				}
				const FToken& Name = Cursor.Peek(Offset);
				const FToken& After = Cursor.Peek(Offset + 1);
				if (!Cursor.Is("class") || !Name.IsIdentifier() || !(After.Is("{") || After.Is(":") || After.Is("final")))
				{
					return nullptr;
				}
				for (const std::unique_ptr<FClass>& Class : Header.Classes)
				{
					if (Class->Kind == EClassKind::Interface && Class->NativeInterfaceName() == Name.Text)
					{
						return Class.get();
					}
				}
				return nullptr;
			}

			void NativeInterface(FClass& Interface)
			{
				const FClassHead Head = ParseClassHead(Cursor, "of the interface");
				Interface.bHasNativeInterface = true;
				Interface.NativeInterfacePlace = Head.Place;
				Interface.NativeInterfaceBases = Head.Bases;
				ParseClassBody(Cursor, Header.Path, EBodySide::NativeInterface, Interface, Diagnostics);
			}

			void Unreflected()
			{
				const size_t Start = Cursor.GetPosition();
				const FSkippedDeclaration Skipped = SkipDeclaration(Cursor);
				if (Cursor.GetPosition() == Start)
				{
					Cursor.Next();
				}
				if (!Skipped.NestedMacro.empty())
				{
					Diagnostics.Error(Header.Path, Skipped.NestedMacroPlace, Skipped.NestedMacro + " in a type that is not reflected; put UCLASS(), USTRUCT() or UINTERFACE() before the type.");
				}
			}

			FTokenCursor Cursor;
			FHeader& Header;
			FDiagnostics& Diagnostics;
			std::vector<FPlace> NamespacePlaces; // of the namespaces around; unset for extern "C"
		};

		void NoteIncludes(const std::vector<FIncludeLine>& Includes, FHeader& Header)
		{
			for (const FIncludeLine& Include : Includes)
			{
				Header.LastInclude = Include.Path;
				Header.LastIncludePlace = Include.Place;
				if (EndsWith(Include.Path, ".generated.h"))
				{
					Header.GeneratedInclude = Include.Path;
					Header.GeneratedIncludePlace = Include.Place;
				}
			}
		}
	}

	void ParseHeader(const std::string& Source, FHeader& Header, FDiagnostics& Diagnostics)
	{
		std::vector<FToken> Tokens;
		if (!Tokenize(Header.Path, Source, Tokens, Diagnostics))
		{
			return;
		}
		const FConditionedSource Conditioned = ResolveConditionals(Header.Path, std::move(Tokens), Diagnostics);
		HeaderParser::NoteIncludes(Conditioned.Includes, Header);
		if (CheckBrackets(Header.Path, Conditioned.Tokens, Diagnostics))
		{
			HeaderParser::FHeaderParser(Conditioned.Tokens, Header, Diagnostics).Run();
		}
	}
}
