// Copyright Velmorant. All Rights Reserved.

#include "Install/PlacedJson.h"

#include <algorithm>

namespace PlacedJson
{
	constexpr int MaxDepth = 64; // descriptors have a depth of three

	struct FFault
	{
		size_t Offset;
		const char* Reason;
	};

	void AppendUtf8(unsigned Code, std::string& Out)
	{
		if (Code < 0x80)
		{
			Out += static_cast<char>(Code);
			return;
		}
		if (Code < 0x800)
		{
			Out += static_cast<char>(0xC0 | (Code >> 6));
		}
		else
		{
			Out += static_cast<char>(0xE0 | (Code >> 12));
			Out += static_cast<char>(0x80 | ((Code >> 6) & 0x3F));
		}
		Out += static_cast<char>(0x80 | (Code & 0x3F));
	}

	class FParser
	{
	public:
		explicit FParser(std::string_view InText)
			: Text(InText)
		{
		}

		FPlacedJson Run()
		{
			Skip();
			const FPlacedJson Root = ParseValue(0);
			Skip();
			if (At < Text.size())
			{
				throw FFault{At, "nothing may stand behind the object"};
			}
			return Root;
		}

	private:
		char Peek(size_t Offset = 0) const
		{
			return At + Offset < Text.size() ? Text[At + Offset] : '\0';
		}

		/** Blanks and comments. */
		void Skip()
		{
			for (;;)
			{
				if (Peek() == ' ' || Peek() == '\t' || Peek() == '\r' || Peek() == '\n')
				{
					++At;
				}
				else if (Peek() == '/' && Peek(1) == '/')
				{
					At = std::min(Text.find('\n', At), Text.size());
				}
				else if (Peek() == '/' && Peek(1) == '*')
				{
					const size_t Close = Text.find("*/", At + 2);
					if (Close == std::string_view::npos)
					{
						throw FFault{At, "this comment is never closed"};
					}
					At = Close + 2;
				}
				else
				{
					return;
				}
			}
		}

		FPlacedJson ParseValue(int Depth)
		{
			if (Depth > MaxDepth)
			{
				throw FFault{At, "it is nested too deeply"};
			}
			FPlacedJson Value;
			Value.Begin = At;
			if (Peek() == '{')
			{
				Value.Kind = FPlacedJson::EKind::Object;
				ParseItems('}', [&] { Value.Members.push_back(ParseMember(Depth)); return &Value.Members.back().Value; });
			}
			else if (Peek() == '[')
			{
				Value.Kind = FPlacedJson::EKind::Array;
				ParseItems(']', [&] { Value.Elements.push_back(ParseValue(Depth + 1)); return &Value.Elements.back(); });
			}
			else if (Peek() == '"')
			{
				Value.Kind = FPlacedJson::EKind::Text;
				Value.Value = ParseText();
			}
			else
			{
				Value.Value = ParseWord();
			}
			Value.End = At;
			return Value;
		}

		template<typename ParseItemType>
		void ParseItems(char Close, const ParseItemType& ParseItem)
		{
			++At;
			Skip();
			while (Peek() != Close)
			{
				FPlacedJson* const Item = ParseItem();
				Skip();
				if (Peek() == ',')
				{
					Item->Comma = At++;
					Skip();
				}
				else if (Peek() != Close)
				{
					throw FFault{At, Close == '}' ? "a comma or a closing brace is expected" : "a comma or a closing bracket is expected"};
				}
			}
			++At;
		}

		FPlacedMember ParseMember(int Depth)
		{
			FPlacedMember Member;
			Member.Begin = At;
			if (Peek() != '"')
			{
				throw FFault{At, "the name of a member in quotes is expected"};
			}
			Member.Name = ParseText();
			Skip();
			if (Peek() != ':')
			{
				throw FFault{At, "a colon is expected"};
			}
			Member.Colon = At++;
			Skip();
			Member.Value = ParseValue(Depth + 1);
			return Member;
		}

		std::string ParseText()
		{
			const size_t Begin = At++;
			std::string Value;
			while (Peek() != '"')
			{
				if (At >= Text.size() || Peek() == '\n')
				{
					throw FFault{Begin, "this text is not closed on its line"};
				}
				if (Peek() == '\\')
				{
					ParseEscape(Value);
				}
				else
				{
					Value += Text[At++];
				}
			}
			++At;
			return Value;
		}

		void ParseEscape(std::string& OutValue)
		{
			static constexpr std::string_view Letters = "\"\\/bfnrt";
			static constexpr std::string_view Meanings = "\"\\/\b\f\n\r\t";
			const size_t Letter = Letters.find(Peek(1));
			if (Peek(1) == 'u')
			{
				const std::string Digits(Text.substr(At + 2, 4));
				if (Digits.size() < 4 || Digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
				{
					throw FFault{At, "four digits are expected behind \\u"};
				}
				AppendUtf8(static_cast<unsigned>(std::stoul(Digits, nullptr, 16)), OutValue);
				At += 6;
			}
			else if (Peek(1) != '\0' && Letter != std::string_view::npos)
			{
				OutValue += Meanings[Letter];
				At += 2;
			}
			else
			{
				throw FFault{At, "there is no such escape"};
			}
		}

		std::string ParseWord()
		{
			const size_t Begin = At;
			while (std::string_view("+-.0123456789abcdefghijklmnopqrstuvwxyzE").find(Peek()) != std::string_view::npos && At < Text.size())
			{
				++At;
			}
			const std::string Word(Text.substr(Begin, At - Begin));
			const bool bNumber = !Word.empty() && std::string_view("-0123456789").find(Word[0]) != std::string_view::npos;
			if (!bNumber && Word != "true" && Word != "false" && Word != "null")
			{
				throw FFault{Begin, "a value is expected"};
			}
			return Word;
		}

		const std::string_view Text;
		size_t At = 0;
	};

	std::optional<FPlacedJson> Parse(std::string_view Text, size_t& OutOffset, std::string& OutReason)
	{
		try
		{
			return FParser(Text).Run();
		}
		catch (const FFault& Fault)
		{
			OutOffset = Fault.Offset;
			OutReason = Fault.Reason;
			return std::nullopt;
		}
	}

	bool EqualsIgnoringCase(std::string_view A, std::string_view B)
	{
		const auto Lower = [](char C) { return C >= 'A' && C <= 'Z' ? static_cast<char>(C + 32) : C; };
		return std::equal(A.begin(), A.end(), B.begin(), B.end(), [&Lower](char X, char Y) { return Lower(X) == Lower(Y); });
	}
}

const FPlacedMember* FPlacedJson::Find(std::string_view Name) const
{
	const auto Found = std::find_if(Members.begin(), Members.end(), [Name](const FPlacedMember& Member) { return PlacedJson::EqualsIgnoringCase(Member.Name, Name); });
	return Found != Members.end() ? &*Found : nullptr;
}

size_t FPlacedJson::Count(std::string_view Name) const
{
	return static_cast<size_t>(std::count_if(Members.begin(), Members.end(), [Name](const FPlacedMember& Member) { return PlacedJson::EqualsIgnoringCase(Member.Name, Name); }));
}
