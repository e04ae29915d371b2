// Copyright Velmorant. All Rights Reserved.

#include "Internationalization/TextFormatter.h"

#include "Internationalization/TextData.h"

namespace TextFormatter
{
	/** Reads a format from left to right, as literal characters and placeholders. */
	class FReader
	{
	public:
		explicit FReader(FStringView InFormat)
			: Rest(InFormat)
		{
		}

		/** @return false at the end. Otherwise either a placeholder's name or text that is displayed as it stands. */
		bool Next(FStringView& OutName, FStringView& OutLiteral)
		{
			OutName = FStringView();
			OutLiteral = FStringView();
			if (Rest.IsEmpty())
			{
				return false;
			}
			if (Rest[0] == '`' && Rest.Len() > 1 && (Rest[1] == '{' || Rest[1] == '}' || Rest[1] == '`'))
			{
				OutLiteral = Rest.Mid(1, 1);
				Rest = Rest.RightChop(2);
				return true;
			}
			int32 Close = INDEX_NONE;
			if (Rest[0] == '{' && Rest.FindChar('}', Close) && !Rest.Mid(1, Close - 1).Contains(FStringView(TEXT("{"))))
			{
				OutName = Rest.Mid(1, Close - 1).TrimStartAndEnd();
				OutLiteral = Rest.Left(Close + 1); // what stays when there is no such argument
				Rest = Rest.RightChop(Close + 1);
				return true;
			}
			int32 Len = 1;
			while (Len < Rest.Len() && Rest[Len] != '`' && Rest[Len] != '{')
			{
				++Len;
			}
			OutLiteral = Rest.Left(Len);
			Rest = Rest.RightChop(Len);
			return true;
		}

	private:
		FStringView Rest;
	};

	/** FindArgument takes a placeholder's name and gives the argument, or null. */
	template<typename FindType>
	FString Format(const FString& Source, FindType FindArgument)
	{
		FString Result;
		Result.Reserve(Source.Len());
		FReader Reader{FStringView(Source)};
		FStringView Name;
		FStringView Literal;
		while (Reader.Next(Name, Literal))
		{
			const FFormatArgumentValue* const Argument = Name.IsEmpty() ? nullptr : FindArgument(Name);
			if (Argument)
			{
				Result += Argument->ToFormattedString();
			}
			else
			{
				Result += Literal;
			}
		}
		return Result;
	}

	/** The number that a name consists of, or INDEX_NONE. */
	int32 ToIndex(FStringView Name)
	{
		constexpr int32 MaxDigits = 6;
		int32 Index = 0;
		for (const TCHAR Char : Name)
		{
			if (!FChar::IsDigit(Char) || Name.Len() > MaxDigits)
			{
				return INDEX_NONE;
			}
			Index = Index * 10 + FChar::ConvertCharDigitToInt(Char);
		}
		return Index;
	}
}

FString FFormatArgumentValue::ToFormattedString() const
{
	switch (Type)
	{
		case EFormatArgumentType::Int:
		{
			const bool bNegative = static_cast<int64>(Integer) < 0;
			return UE::Text::Private::FormatInteger(bNegative, bNegative ? 0ull - Integer : Integer);
		}
		case EFormatArgumentType::UInt:
			return UE::Text::Private::FormatInteger(false, Integer);
		case EFormatArgumentType::Float:
		case EFormatArgumentType::Double:
			return UE::Text::Private::FormatReal(Real);
		case EFormatArgumentType::Text:
			break;
	}
	return TextValue.ToString();
}

FText FText::Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments)
{
	return MakeGenerated(TextFormatter::Format(Fmt.GetSourceString(), [&InArguments](FStringView Name) { return InArguments.Find(FString(Name)); }));
}

FText FText::Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments)
{
	return MakeGenerated(TextFormatter::Format(Fmt.GetSourceString(), [&InArguments](FStringView Name) -> const FFormatArgumentValue* {
		const int32 Index = TextFormatter::ToIndex(Name);
		return InArguments.IsValidIndex(Index) ? &InArguments[Index] : nullptr; }));
}
