// Copyright Velmorant. All Rights Reserved.

#include "Brackets.h"

#include "Diagnostics.h"

namespace HeaderTool
{
	bool CheckBrackets(const std::string& Path, const std::vector<FToken>& Tokens, FDiagnostics& Diagnostics)
	{
		std::vector<const FToken*> Open;
		for (const FToken& Token : Tokens)
		{
			if (Token.Kind != ETokenKind::Symbol)
			{
				continue;
			}
			if (Token.Is("(") || Token.Is("{") || Token.Is("["))
			{
				Open.push_back(&Token);
			}
			else if (Token.Is(")") || Token.Is("}") || Token.Is("]"))
			{
				const std::string Partner = Token.Is(")") ? "(" : Token.Is("}") ? "{"
																				: "[";
				if (Open.empty())
				{
					Diagnostics.Error(Path, Token.Line, "'" + Token.Text + "' closes nothing; remove it or add the missing '" + Partner + "'.");
					return false;
				}
				if (Open.back()->Text != Partner)
				{
					Diagnostics.Error(Path, Open.back()->Line, "'" + Open.back()->Text + "' is not closed before the '" + Token.Text + "' in line " + std::to_string(Token.Line) + "; balance the brackets.");
					return false;
				}
				Open.pop_back();
			}
		}
		if (!Open.empty())
		{
			Diagnostics.Error(Path, Open.back()->Line, "'" + Open.back()->Text + "' is never closed; add the missing '" + std::string(Open.back()->Is("(") ? ")" : Open.back()->Is("{") ? "}"
																																														: "]") +
					"'.");
			return false;
		}
		return true;
	}
}
