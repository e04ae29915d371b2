// Copyright Velmorant. All Rights Reserved.

#include "TypeParser.h"

#include "Brackets.h"
#include "SpecifierParser.h"
#include "TextTools.h"

#include <set>

namespace HeaderTool
{
	namespace TypeParser
	{
		bool IsBuiltInWord(const std::string& Text)
		{
			static const std::set<std::string> Words = {"unsigned", "signed", "long", "short", "int", "char", "double"};
			return Words.count(Text) > 0;
		}

		/** `unsigned long long` and the like are one name. */
		std::string ParseBuiltIn(FTokenCursor& Cursor)
		{
			std::string Name = Cursor.Next().Text;
			while (Cursor.Peek().IsIdentifier() && IsBuiltInWord(Cursor.Peek().Text))
			{
				Name += " " + Cursor.Next().Text;
			}
			return Name;
		}

		std::string ParseQualifiedName(FTokenCursor& Cursor)
		{
			Cursor.Accept("::");
			if (Cursor.Peek().IsIdentifier() && IsBuiltInWord(Cursor.Peek().Text))
			{
				return ParseBuiltIn(Cursor);
			}
			std::string Name = Cursor.ExpectIdentifier("a type");
			while (Cursor.Is("::") && Cursor.Peek(1).IsIdentifier())
			{
				Cursor.Next();
				Name += "::" + Cursor.Next().Text;
			}
			return Name;
		}

		/** Behind a type there is a place where the argument ends; anything else is raw text such as a function signature. */
		FTypeUse ParseArgument(FTokenCursor& Cursor, int Depth)
		{
			const size_t Start = Cursor.GetPosition();
			if (Cursor.Peek().IsIdentifier() || Cursor.Is("::"))
			{
				const FTypeUse Type = ParseType(Cursor, Depth + 1);
				if (Cursor.Is(",") || Cursor.Is(">"))
				{
					return Type;
				}
				Cursor.SetPosition(Start);
			}
			FTypeUse Raw;
			Raw.Place = Cursor.Peek().Place;
			Raw.bUnparsed = true;
			for (int Angles = 0; !Cursor.AtEnd() && !(Angles == 0 && (Cursor.Is(",") || Cursor.Is(">"))) && !Cursor.Is(";");)
			{
				if (Cursor.Is("(") || Cursor.Is("["))
				{
					Raw.Name += Cursor.Peek().Text;
					const std::string Close = PartnerOf(Cursor.Peek().Text);
					Raw.Name += Cursor.SkipBalanced() + Close;
					continue;
				}
				Angles += Cursor.Is("<") - Cursor.Is(">");
				AppendToken(Raw.Name, Cursor.Next());
			}
			return Raw;
		}

		void ParseArguments(FTokenCursor& Cursor, FTypeUse& Type, int Depth)
		{
			Cursor.Expect("<", "in the type");
			while (!Cursor.Is(">"))
			{
				Type.Arguments.push_back(ParseArgument(Cursor, Depth));
				if (!Cursor.Accept(",") && !Cursor.Is(">"))
				{
					throw FSyntaxError{Type.Place, "the template arguments of '" + Type.Name + "' are never closed; add the missing '>'."};
				}
			}
			Cursor.Next();
		}

		/** The text up to the comma or parenthesis that ends a default argument. */
		std::string ParseDefault(FTokenCursor& Cursor)
		{
			std::string Text;
			for (int Angles = 0; !Cursor.AtEnd();)
			{
				if (Cursor.Is(")") || (Cursor.Is(",") && Angles == 0))
				{
					break;
				}
				if (Cursor.Is("(") || Cursor.Is("{") || Cursor.Is("["))
				{
					const std::string Open = Cursor.Peek().Text;
					Text += Open + Cursor.SkipBalanced() + PartnerOf(Open);
					continue;
				}
				Angles += Cursor.Is("<") - (Cursor.Is(">") && Angles > 0);
				AppendToken(Text, Cursor.Next());
			}
			return Text;
		}
	}

	FTypeUse ParseType(FTokenCursor& Cursor, int Depth)
	{
		FTypeUse Type;
		Type.Place = Cursor.Peek().Place;
		if (Depth > MaxTypeDepth)
		{
			throw FSyntaxError{Type.Place, "template arguments are nested more than " + std::to_string(MaxTypeDepth) + " deep; give a part of the type a name of its own."};
		}
		for (;;)
		{
			if (Cursor.Accept("const"))
			{
				Type.bConst = true;
			}
			else if (!Cursor.Accept("class") && !Cursor.Accept("struct") && !Cursor.Accept("enum") && !Cursor.Accept("typename") && !Cursor.Accept("volatile"))
			{
				break;
			}
		}
		Type.Name = TypeParser::ParseQualifiedName(Cursor);
		if (Cursor.Is("<"))
		{
			TypeParser::ParseArguments(Cursor, Type, Depth);
			if (Cursor.Is("::"))
			{
				throw FSyntaxError{Type.Place, "type '" + Type.Spell() + "::…' is not supported here; name the type directly."};
			}
		}
		for (;;)
		{
			if (Cursor.Accept("const"))
			{
				Type.bConst = Type.bConst || Type.Pointers == 0;
			}
			else if (Cursor.Accept("*"))
			{
				++Type.Pointers;
			}
			else if (Cursor.Accept("&"))
			{
				Type.bRvalue = Type.bReference;
				Type.bReference = true;
			}
			else
			{
				return Type;
			}
		}
	}

	std::vector<FProperty> ParseParameters(FTokenCursor& Cursor, const std::string& Path, FDiagnostics& Diagnostics)
	{
		std::vector<FProperty> Parameters;
		Cursor.Expect("(", "before the parameters");
		if (Cursor.Is("void") && Cursor.Peek(1).Is(")"))
		{
			Cursor.Next();
		}
		while (!Cursor.Is(")"))
		{
			FProperty Parameter;
			if (Cursor.Is("UPARAM"))
			{
				ApplyParameterSpecifiers(ParseSpecifiers(Cursor, Path), Parameter, Diagnostics);
			}
			Parameter.Type = ParseType(Cursor);
			Parameter.Place = Parameter.Type.Place;
			if (Cursor.Peek().IsIdentifier())
			{
				Parameter.Place = Cursor.Peek().Place;
				Parameter.Name = Cursor.Next().Text;
			}
			if (Cursor.Is("["))
			{
				throw FSyntaxError{Parameter.Place, "parameter '" + Parameter.Name + "' is a C array, which is not supported here; use TArray<" + Parameter.Type.Spell() + ">."};
			}
			if (Cursor.Accept("="))
			{
				Parameter.DefaultText = TypeParser::ParseDefault(Cursor);
			}
			Parameters.push_back(Parameter);
			if (!Cursor.Is(")"))
			{
				Cursor.Expect(",", "between parameters");
			}
		}
		Cursor.Next();
		return Parameters;
	}

	bool SkipDecorations(FTokenCursor& Cursor)
	{
		bool bApi = false;
		for (;;)
		{
			const FToken& Token = Cursor.Peek();
			if (Token.Is("[") && Cursor.Peek(1).Is("["))
			{
				Cursor.SkipBalanced();
			}
			else if (Token.IsIdentifier() && EndsWith(Token.Text, "_API"))
			{
				Cursor.Next();
				bApi = true;
			}
			else if (Token.IsIdentifier() && (Token.Is("UE_DEPRECATED") || Token.Is("alignas") || Token.Is("UE_INTERNAL") || Token.Is("UE_EXPERIMENTAL") || Token.Is("DEPRECATED")))
			{
				Cursor.Next();
				if (Cursor.Is("("))
				{
					Cursor.SkipBalanced();
				}
			}
			else
			{
				return bApi;
			}
		}
	}
}
