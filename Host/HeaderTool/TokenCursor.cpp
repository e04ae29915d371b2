// Copyright Velmorant. All Rights Reserved.

#include "TokenCursor.h"

namespace HeaderTool
{
	const FToken& FTokenCursor::Peek(size_t Offset) const
	{
		return Position + Offset < Tokens.size() ? Tokens[Position + Offset] : Tokens.back();
	}

	const FToken& FTokenCursor::Next()
	{
		const FToken& Token = Peek();
		Position += Token.Kind == ETokenKind::End ? 0 : 1;
		return Token;
	}

	bool FTokenCursor::Accept(const char* Text)
	{
		if (!Is(Text))
		{
			return false;
		}
		Next();
		return true;
	}

	void FTokenCursor::Expect(const char* Text, const std::string& Where)
	{
		if (!Accept(Text))
		{
			const std::string Found = AtEnd() ? "the end of the file" : "'" + Peek().Text + "'";
			throw FSyntaxError{Peek().Place, "expected '" + std::string(Text) + "' " + Where + ", but found " + Found + "."};
		}
	}

	std::string FTokenCursor::ExpectIdentifier(const std::string& What)
	{
		if (!Peek().IsIdentifier())
		{
			const std::string Found = AtEnd() ? "the end of the file" : "'" + Peek().Text + "'";
			throw FSyntaxError{Peek().Place, "expected " + What + ", but found " + Found + "."};
		}
		return Next().Text;
	}

	std::string FTokenCursor::SkipBalanced()
	{
		std::string Inside;
		int Depth = 0;
		do
		{
			const FToken& Token = Next();
			const bool bOpens = Token.Is("(") || Token.Is("{") || Token.Is("[");
			const bool bCloses = Token.Is(")") || Token.Is("}") || Token.Is("]");
			Depth += bOpens - bCloses;
			if (Depth > (bOpens ? 1 : 0))
			{
				AppendToken(Inside, Token);
			}
		} while (Depth > 0 && !AtEnd());
		return Inside;
	}

	void AppendToken(std::string& Text, const FToken& Token)
	{
		const auto IsWord = [](char C) { return C == '_' || (C >= '0' && C <= '9') || (C >= 'a' && C <= 'z') || (C >= 'A' && C <= 'Z'); };
		const bool bWords = !Text.empty() && !Token.Text.empty() && IsWord(Text.back()) && IsWord(Token.Text.front());
		const bool bAfterComma = !Text.empty() && Text.back() == ',';
		Text += (bWords || bAfterComma ? " " : "") + Token.Text;
	}
}
