// Copyright Velmorant. All Rights Reserved.

#include "Contract/DeclaredTypes.h"

#include "TokenCursor.h"

#include <algorithm>

std::string FDeclaredType::ConstructorName(const std::string& Type, size_t NumParameters)
{
	return Type + "/" + std::to_string(NumParameters);
}

namespace DeclaredTypes
{
	using HeaderTool::ETokenKind;
	using HeaderTool::FToken;
	using HeaderTool::FTokenCursor;

	bool Opens(const FToken& Token)
	{
		return Token.Is("{") || Token.Is("(") || Token.Is("[");
	}

	bool Closes(const FToken& Token)
	{
		return Token.Is("}") || Token.Is(")") || Token.Is("]");
	}

	/** Export macros, attributes and whatever else looks like a call stand between the keyword and the name. */
	void SkipDecorations(FTokenCursor& Cursor)
	{
		for (;;)
		{
			if (Cursor.Is("["))
			{
				Cursor.SkipBalanced();
			}
			else if (Cursor.Peek().IsIdentifier() && Cursor.Peek(1).Is("("))
			{
				Cursor.Next();
				Cursor.SkipBalanced();
			}
			else if (Cursor.Peek().IsIdentifier() && Cursor.Peek().Text.ends_with("_API"))
			{
				Cursor.Next();
			}
			else
			{
				return;
			}
		}
	}

	/** Behind the colon, up to the body. An enum's underlying type counts as a base, too. */
	std::vector<std::string> ReadBases(FTokenCursor& Cursor)
	{
		std::vector<std::string> Bases;
		bool bExpected = true;
		while (!Cursor.AtEnd() && !Cursor.Is("{") && !Cursor.Is(";"))
		{
			const FToken& Token = Cursor.Next();
			const bool bWord = Token.Is("public") || Token.Is("protected") || Token.Is("private") || Token.Is("virtual");
			if (bExpected && Token.IsIdentifier() && !bWord)
			{
				Bases.push_back(Token.Text);
				bExpected = false;
			}
			bExpected |= Token.Is(",");
		}
		return Bases;
	}

	size_t CountParameters(FTokenCursor Cursor)
	{
		size_t Commas = 0;
		int Depth = 0;
		const bool bNone = Cursor.Peek(1).Is(")") || (Cursor.Peek(1).Is("void") && Cursor.Peek(2).Is(")"));
		do
		{
			const FToken& Token = Cursor.Next();
			Depth += (Opens(Token) || Token.Is("<")) - (Closes(Token) || Token.Is(">"));
			Commas += Token.Is(",") && Depth == 1;
		} while (Depth > 0 && !Cursor.AtEnd());
		return bNone ? 0 : Commas + 1;
	}

	/** What names in a body declare something, and what is only used there. */
	class FBodyState
	{
	public:
		/** To be told of every word of the body's own level. */
		void Next(const FToken& Token, bool bEnum)
		{
			bValue = (bValue || Token.Is("=")) && !Token.Is(bEnum ? "," : ";") && !Token.Is("}");
			bInitializers = bInitializers || (Token.Is(":") && Before == ")");
			Before = Token.Text;
		}

		/** To be told of what stands behind a brace that was closed: a constructor's body ends what initialises its members. */
		void EndBlock(const FTokenCursor& Cursor)
		{
			bInitializers = bInitializers && (Cursor.Is(",") || Cursor.Is("{"));
			Before = "}";
		}

		bool Declares() const { return !bValue && !bInitializers; }

	private:
		bool bValue = false; // behind an equals sign
		bool bInitializers = false; // behind a constructor's colon
		std::string Before;
	};

	/** From the opening brace. The cursor is a copy: types within are found on their own. */
	void ReadMembers(FTokenCursor Cursor, bool bEnum, FDeclaredType& Type)
	{
		FBodyState State;
		int Depth = 0;
		do
		{
			const FToken& Token = Cursor.Next();
			Depth += Opens(Token) - Closes(Token);
			if (Depth == 1 && Token.Is("}"))
			{
				State.EndBlock(Cursor);
			}
			else if (Depth == 1)
			{
				State.Next(Token, bEnum);
				if (Token.IsIdentifier() && State.Declares())
				{
					const bool bConstructor = Token.Text == Type.Name && Cursor.Is("(");
					Type.Members.emplace(bConstructor ? FDeclaredType::ConstructorName(Type.Name, CountParameters(Cursor)) : Token.Text, Token.Place.Line);
				}
			}
		} while (Depth > 0 && !Cursor.AtEnd());
	}

	/** The cursor stands behind `class`, `struct` or `enum`. */
	void ReadType(FTokenCursor Cursor, bool bEnum, std::vector<FDeclaredType>& OutTypes)
	{
		if (bEnum && !Cursor.Accept("class"))
		{
			Cursor.Accept("struct");
		}
		SkipDecorations(Cursor);
		FDeclaredType Type;
		Type.Line = Cursor.Peek().Place.Line;
		Type.Name = Cursor.Peek().IsIdentifier() ? Cursor.Next().Text : std::string();
		Cursor.Accept("final");
		Type.Bases = Cursor.Is(":") ? ReadBases(Cursor) : std::vector<std::string>();
		if (!Type.Name.empty() && Cursor.Is("{"))
		{
			ReadMembers(Cursor, bEnum, Type);
			OutTypes.push_back(std::move(Type));
		}
	}

	bool DeclaresDelegate(const FToken& Token)
	{
		const bool bKind = Token.Text.find("DELEGATE") != std::string::npos || Token.Text.find("EVENT") != std::string::npos;
		return Token.IsIdentifier() && Token.Text.starts_with("DECLARE_") && bKind;
	}

	/** The cursor stands behind the macro. An event's owner and a result come before the name. */
	void ReadDelegate(FTokenCursor Cursor, const std::string& Macro, std::vector<FDeclaredType>& OutTypes)
	{
		const bool bSecond = Macro.find("_RetVal") != std::string::npos || Macro.find("EVENT") != std::string::npos;
		Cursor.Accept("(");
		for (int Depth = 0; bSecond && !Cursor.AtEnd() && !(Depth == 0 && Cursor.Is(","));)
		{
			const FToken& Token = Cursor.Next();
			Depth += (Opens(Token) || Token.Is("<")) - (Closes(Token) || Token.Is(">"));
		}
		Cursor.Accept(",");
		if (Cursor.Peek().IsIdentifier())
		{
			OutTypes.push_back({Cursor.Peek().Text, Cursor.Peek().Place.Line, {}, {}});
		}
	}

	std::vector<FDeclaredType> Find(const std::vector<FToken>& Tokens)
	{
		std::vector<FToken> Code;
		std::copy_if(Tokens.begin(), Tokens.end(), std::back_inserter(Code), [](const FToken& Token) { return Token.Kind != ETokenKind::Directive; });
		std::vector<FDeclaredType> Types;
		FTokenCursor Cursor(Code);
		std::string Before;
		while (!Cursor.AtEnd())
		{
			const FToken& Token = Cursor.Next();
			const bool bParameter = Before == "<" || Before == ","; // of a template
			if ((Token.Is("class") || Token.Is("struct") || Token.Is("enum")) && Before != "enum" && Before != "friend" && !bParameter)
			{
				ReadType(Cursor, Token.Is("enum"), Types);
			}
			else if (DeclaresDelegate(Token))
			{
				ReadDelegate(Cursor, Token.Text, Types);
			}
			Before = Token.Text;
		}
		return Types;
	}
}
