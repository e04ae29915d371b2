// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Lexer.h"

#include <string>
#include <vector>

namespace HeaderTool
{
	/** Ends the parsing of one declaration; caught by the parser of the scope around it, which reports it and goes on. */
	struct FSyntaxError
	{
		FPlace Place;
		std::string Message;
	};

	/** A position in tokens whose brackets are known to be balanced. */
	class FTokenCursor
	{
	public:
		explicit FTokenCursor(const std::vector<FToken>& InTokens)
			: Tokens(InTokens)
		{
		}

		/** The token Offset places ahead; End for ever behind the last one. */
		const FToken& Peek(size_t Offset = 0) const;
		const FToken& Next();
		bool AtEnd() const { return Peek().Kind == ETokenKind::End; }
		bool Is(const char* Text) const { return Peek().Is(Text); }

		/** Steps over the next token if it is Text. */
		bool Accept(const char* Text);

		/** Steps over Text; throws FSyntaxError that names Where if something else stands there. */
		void Expect(const char* Text, const std::string& Where);
		std::string ExpectIdentifier(const std::string& What);

		/** From an opening bracket to behind its partner; what stands between comes back as it would be written. */
		std::string SkipBalanced();

		size_t GetPosition() const { return Position; }
		void SetPosition(size_t InPosition) { Position = InPosition; }

	private:
		const std::vector<FToken>& Tokens;
		size_t Position = 0;
	};

	/** Text of tokens, with the blanks that keep words apart. */
	void AppendToken(std::string& Text, const FToken& Token);
}
