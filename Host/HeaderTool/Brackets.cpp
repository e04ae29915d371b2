// Copyright Velmorant. All Rights Reserved.

#include "Brackets.h"

#include "Diagnostics.h"

namespace HeaderTool
{
	std::string PartnerOf(const std::string& Bracket)
	{
		static const std::string Pairs = "(){}[]";
		const size_t Index = Pairs.find(Bracket);
		return Pairs.substr(Index % 2 ? Index - 1 : Index + 1, 1);
	}

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
				const std::string Partner = PartnerOf(Token.Text);
				if (Open.empty())
				{
					Diagnostics.Error(Path, Token.Place, "'" + Token.Text + "' closes nothing; remove it or add the missing '" + Partner + "'.");
					return false;
				}
				if (Open.back()->Text != Partner)
				{
					Diagnostics.Error(Path, Open.back()->Place, "'" + Open.back()->Text + "' is not closed before the '" + Token.Text + "' in line " + std::to_string(Token.Place.Line) + "; balance the brackets.");
					return false;
				}
				Open.pop_back();
			}
		}
		if (!Open.empty())
		{
			Diagnostics.Error(Path, Open.back()->Place, "'" + Open.back()->Text + "' is never closed; add the missing '" + PartnerOf(Open.back()->Text) + "'.");
			return false;
		}
		return true;
	}
}
