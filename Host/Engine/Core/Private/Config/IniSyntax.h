// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>

/**
 * What a line of an ini file means. Works on UTF-8 and on UTF-16 alike: the readers keep big files as UTF-8, the writer works on UTF-16.
 */
namespace IniSyntax
{
	template<typename CharType>
	using TView = std::basic_string_view<CharType>;

	template<typename CharType>
	struct TEntry
	{
		TView<CharType> Key; // with its prefix
		TView<CharType> Value;
	};

	template<typename CharType>
	TView<CharType> Trim(TView<CharType> Text)
	{
		const auto IsBlank = [](CharType Character) { return Character == CharType(' ') || (Character >= CharType('\t') && Character <= CharType('\r')); };
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
	template<typename CharType>
	bool ParseHeader(TView<CharType> Line, TView<CharType>& OutName)
	{
		const TView<CharType> Trimmed = Trim(Line);
		if (Trimmed.size() < 2 || Trimmed.front() != CharType('[') || Trimmed.back() != CharType(']'))
		{
			return false;
		}
		OutName = Trimmed.substr(1, Trimmed.size() - 2);
		return true;
	}

	template<typename CharType>
	bool IsComment(TView<CharType> Line)
	{
		const TView<CharType> Trimmed = Trim(Line);
		return !Trimmed.empty() && Trimmed.front() == CharType(';');
	}

	/** "Key=Value"; not comments and not lines without '=' or without a key. The value is as written, quotes included. */
	template<typename CharType>
	bool ParseEntry(TView<CharType> Line, TEntry<CharType>& OutEntry)
	{
		const size_t Equals = Line.find(CharType('='));
		if (Equals == TView<CharType>::npos || IsComment(Line))
		{
			return false;
		}
		OutEntry.Key = Trim(Line.substr(0, Equals));
		OutEntry.Value = Trim(Line.substr(Equals + 1));
		return !OutEntry.Key.empty();
	}

	/** A backslash at the end of a line that is no comment joins the next line to it. */
	template<typename CharType>
	bool IsContinued(TView<CharType> Line)
	{
		return !Line.empty() && Line.back() == CharType('\\') && !IsComment(Line);
	}

	template<typename CharType>
	bool IsPrefix(CharType Character)
	{
		return Character == CharType('+') || Character == CharType('-') || Character == CharType('.') || Character == CharType('!') || Character == CharType('@') || Character == CharType('*');
	}

	/** The key without the operation in front of it. */
	template<typename CharType>
	TView<CharType> WithoutPrefix(TView<CharType> Key)
	{
		return !Key.empty() && IsPrefix(Key.front()) ? Trim(Key.substr(1)) : Key;
	}

	/** Takes quotes away when the whole value begins with one; \" \\ and \n stand for what they say then. */
	template<typename CharType>
	std::basic_string<CharType> Unquote(TView<CharType> Value)
	{
		if (Value.empty() || Value.front() != CharType('"'))
		{
			return std::basic_string<CharType>(Value);
		}
		std::basic_string<CharType> Result;
		for (size_t At = 1; At < Value.size() && Value[At] != CharType('"'); ++At)
		{
			const CharType Next = At + 1 < Value.size() ? Value[At + 1] : CharType(0);
			const bool bEscape = Value[At] == CharType('\\') && (Next == CharType('"') || Next == CharType('\\') || Next == CharType('n'));
			const CharType Escaped = Next == CharType('n') ? CharType('\n') : Next;
			Result.push_back(bEscape ? Escaped : Value[At]);
			At += bEscape ? 1 : 0;
		}
		return Result;
	}

	/** How a value must be written to be read back: in quotes when blanks at its ends, line breaks or its first character need them. */
	std::u16string Quote(std::u16string_view Value);

	/** For comparing names of sections and keys: ASCII letters in lower case; names beyond ASCII compare as they are. */
	template<typename CharType>
	std::basic_string<CharType> Fold(TView<CharType> Name)
	{
		std::basic_string<CharType> Result(Name);
		for (CharType& Character : Result)
		{
			Character = Character >= CharType('A') && Character <= CharType('Z') ? static_cast<CharType>(Character + ('a' - 'A')) : Character;
		}
		return Result;
	}
}
