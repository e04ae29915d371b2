// Copyright Velmorant. All Rights Reserved.

#include "SpecifierParser.h"

#include "TextTools.h"

namespace HeaderTool
{
	namespace SpecifierParser
	{
		/** A value up to the next comma or closing parenthesis: strings joined, or words as written. */
		std::string ParseValue(FTokenCursor& Cursor, const std::string& Macro)
		{
			std::string Value;
			if (Cursor.Peek().Kind == ETokenKind::String)
			{
				while (Cursor.Peek().Kind == ETokenKind::String)
				{
					// Kept as separate literals: joining "\x41" and "B" would change the first.
					Value += (Value.empty() ? "" : "\" \"") + LiteralInside(Cursor.Next());
				}
			}
			else
			{
				while (!Cursor.AtEnd() && !Cursor.Is(",") && !Cursor.Is(")"))
				{
					if (Cursor.Peek().Kind == ETokenKind::String || Cursor.Is("=") || Cursor.Is("("))
					{
						throw FSyntaxError{Cursor.Peek().Place, "cannot make sense of '" + Value + Cursor.Peek().Text + "' in " + Macro + "(); separate specifiers by commas and quote values."};
					}
					AppendToken(Value, Cursor.Next());
				}
				Value = EscapeForLiteral(Value);
			}
			if (!Cursor.Is(",") && !Cursor.Is(")"))
			{
				throw FSyntaxError{Cursor.Peek().Place, "expected ',' or ')' in " + Macro + "(), but found '" + Cursor.Peek().Text + "'."};
			}
			return Value;
		}

		void ParseMeta(FTokenCursor& Cursor, FSpecifierList& List)
		{
			Cursor.Expect("=", "after 'meta'");
			Cursor.Expect("(", "after 'meta='");
			while (!Cursor.Is(")"))
			{
				FSpecifier Key;
				Key.bKey = true;
				Key.Place = Cursor.Peek().Place;
				Key.Name = Cursor.ExpectIdentifier("a metadata key in " + List.Macro + "()");
				while (Cursor.Is("-") || Cursor.Is(".") || Cursor.Is("|"))
				{
					Key.Name += Cursor.Next().Text + Cursor.ExpectIdentifier("a metadata key in " + List.Macro + "()");
				}
				if (Cursor.Accept("="))
				{
					Key.Values.push_back(ParseValue(Cursor, List.Macro));
				}
				List.Specifiers.push_back(Key);
				if (!Cursor.Is(")"))
				{
					Cursor.Expect(",", "between metadata of " + List.Macro + "()");
				}
			}
			Cursor.Next();
		}

		void ParseSpecifier(FTokenCursor& Cursor, FSpecifierList& List)
		{
			FSpecifier Specifier;
			Specifier.Place = Cursor.Peek().Place;
			Specifier.Name = Cursor.ExpectIdentifier("a specifier in " + List.Macro + "()");
			if (EqualsIgnoringCase(Specifier.Name, "meta"))
			{
				ParseMeta(Cursor, List);
				return;
			}
			if (Cursor.Accept("="))
			{
				if (Cursor.Accept("("))
				{
					while (!Cursor.Is(")"))
					{
						Specifier.Values.push_back(ParseValue(Cursor, List.Macro));
						Cursor.Accept(",");
					}
					Cursor.Next();
				}
				else
				{
					Specifier.Values.push_back(ParseValue(Cursor, List.Macro));
				}
			}
			List.Specifiers.push_back(Specifier);
		}
	}

	FSpecifierList ParseSpecifiers(FTokenCursor& Cursor, const std::string& Path)
	{
		FSpecifierList List;
		List.Path = Path;
		List.Place = Cursor.Peek().Place;
		List.Comment = Cursor.Peek().Comment;
		List.Macro = Cursor.Next().Text;
		Cursor.Expect("(", "after " + List.Macro);
		while (!Cursor.Is(")"))
		{
			SpecifierParser::ParseSpecifier(Cursor, List);
			if (!Cursor.Is(")"))
			{
				Cursor.Expect(",", "between the specifiers of " + List.Macro + "()");
			}
		}
		Cursor.Next();
		return List;
	}

	std::string LiteralInside(const FToken& Token)
	{
		const size_t Quote = Token.Text.find('"');
		if (Quote > 0 && Token.Text[Quote - 1] == 'R')
		{
			const size_t Open = Token.Text.find('(');
			const size_t Close = Token.Text.rfind(')');
			return EscapeForLiteral(Token.Text.substr(Open + 1, Close - Open - 1));
		}
		return Token.Text.substr(Quote + 1, Token.Text.size() - Quote - 2);
	}
}
