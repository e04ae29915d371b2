// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>

/** What a line of an ini file, in UTF-8, means. */
namespace IniSyntax
{
	struct FEntry
	{
		std::string_view Key; // with its prefix
		std::string_view Value;
	};

	inline std::string_view Trim(std::string_view Text)
	{
		const auto IsBlank = [](char Character) { return Character == ' ' || (Character >= '\t' && Character <= '\r'); };
		while (!Text.empty() && IsBlank(Text.front()))
		{
			Text.remove_prefix(1);
		}
		while (!Text.empty() && IsBlank(Text.back()))
		{
			Text.remove_suffix(1);
		}
		return Text;
	}

	/** "[Name]", blanks around it allowed. */
	inline bool ParseHeader(std::string_view Line, std::string_view& OutName)
	{
		const std::string_view Trimmed = Trim(Line);
		if (Trimmed.size() < 2 || Trimmed.front() != '[' || Trimmed.back() != ']')
		{
			return false;
		}
		OutName = Trimmed.substr(1, Trimmed.size() - 2);
		return true;
	}

	inline bool IsComment(std::string_view Line)
	{
		const std::string_view Trimmed = Trim(Line);
		return !Trimmed.empty() && Trimmed.front() == ';';
	}

	/** "Key=Value"; not comments and not lines without '=' or without a key. The value is as written, quotes included. */
	inline bool ParseEntry(std::string_view Line, FEntry& OutEntry)
	{
		const size_t Equals = Line.find('=');
		if (Equals == std::string_view::npos || IsComment(Line))
		{
			return false;
		}
		OutEntry.Key = Trim(Line.substr(0, Equals));
		OutEntry.Value = Trim(Line.substr(Equals + 1));
		return !OutEntry.Key.empty();
	}

	/** A backslash at the end of a line that is no comment joins the next line to it. */
	inline bool IsContinued(std::string_view Line)
	{
		return !Line.empty() && Line.back() == '\\' && !IsComment(Line);
	}

	inline bool IsPrefix(char Character)
	{
		return Character == '+' || Character == '-' || Character == '.' || Character == '!' || Character == '@' || Character == '*';
	}

	/** The key without the operation in front of it. */
	inline std::string_view WithoutPrefix(std::string_view Key)
	{
		return !Key.empty() && IsPrefix(Key.front()) ? Trim(Key.substr(1)) : Key;
	}

	/** Takes quotes away when the whole value begins with one; \" \\ and \n stand for what they say then. */
	inline std::string Unquote(std::string_view Value)
	{
		if (Value.empty() || Value.front() != '"')
		{
			return std::string(Value);
		}
		std::string Result;
		for (size_t At = 1; At < Value.size() && Value[At] != '"'; ++At)
		{
			const char Next = At + 1 < Value.size() ? Value[At + 1] : '\0';
			const bool bEscape = Value[At] == '\\' && (Next == '"' || Next == '\\' || Next == 'n');
			const char Escaped = Next == 'n' ? '\n' : Next;
			Result.push_back(bEscape ? Escaped : Value[At]);
			At += bEscape ? 1 : 0;
		}
		return Result;
	}

	/** How a value must be written to be read back: in quotes when blanks at its ends, line breaks or its first character need them. */
	std::string Quote(std::string_view Value);

	/** For comparing names of sections and keys: ASCII letters in lower case; names beyond ASCII compare as they are. */
	inline std::string Fold(std::string_view Name)
	{
		std::string Result(Name);
		for (char& Character : Result)
		{
			Character = Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character + ('a' - 'A')) : Character;
		}
		return Result;
	}
}
