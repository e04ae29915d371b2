// Copyright Velmorant. All Rights Reserved.

#include "String/FormatMessage.h"

#include "Containers/StringConv.h"

#include <cstdio>
#include <memory>

namespace FormatMessage
{
	using UE::Core::FFormatArgument;

	/** One directive: '%', flags, width and precision, length, conversion. */
	struct FDirective
	{
		char Flags[6] = {}; // each flag once, terminated
		int32 Width = -1;
		int32 Precision = -1;
		TCHAR Conversion = 0;

		bool HasFlag(char Flag) const
		{
			for (const char* At = Flags; *At; ++At)
			{
				if (*At == Flag)
				{
					return true;
				}
			}
			return false;
		}

		void AddFlag(char Flag)
		{
			if (!HasFlag(Flag))
			{
				char* At = Flags;
				while (*At)
				{
					++At;
				}
				At[0] = Flag;
				At[1] = 0;
			}
		}
	};

	/** A number in the format, or the next argument for '*'; -1 when there is neither. */
	int32 ReadNumber(const TCHAR*& Format, const FFormatArgument*& Args)
	{
		if (*Format == '*')
		{
			++Format;
			return static_cast<int32>((Args++)->Integer);
		}
		int32 Result = -1;
		for (; FChar::IsDigit(*Format); ++Format)
		{
			Result = (Result < 0 ? 0 : Result) * 10 + FChar::ConvertCharDigitToInt(*Format);
		}
		return Result;
	}

	/** Format stands behind the '%', and behind the directive afterwards. */
	FDirective ReadDirective(const TCHAR*& Format, const FFormatArgument*& Args)
	{
		FDirective Result;
		for (; *Format == '-' || *Format == '+' || *Format == ' ' || *Format == '#' || *Format == '0'; ++Format)
		{
			Result.AddFlag(static_cast<char>(*Format));
		}
		const bool bWidthGiven = *Format == '*' || FChar::IsDigit(*Format);
		Result.Width = ReadNumber(Format, Args);
		if (bWidthGiven && Result.Width < 0)
		{
			Result.AddFlag('-'); // a negative '*' means: to the left
			Result.Width = -Result.Width;
		}
		if (*Format == '.')
		{
			++Format;
			const bool bArgument = *Format == '*';
			Result.Precision = ReadNumber(Format, Args);
			if (Result.Precision < 0 && !bArgument)
			{
				Result.Precision = 0; // "%.f"
			}
		}
		while (*Format == 'l' || *Format == 'h' || *Format == 'z')
		{
			++Format;
		}
		Result.Conversion = *Format++;
		return Result;
	}

	void AppendPadded(FString& Out, const TCHAR* Text, int32 Len, const FDirective& Directive)
	{
		const int32 Padding = Directive.Width - Len;
		if (Padding > 0 && !Directive.HasFlag('-'))
		{
			Out += FString::ChrN(Padding, ' ');
		}
		Out.Append(Text, Len);
		if (Padding > 0 && Directive.HasFlag('-'))
		{
			Out += FString::ChrN(Padding, ' ');
		}
	}

	void AppendString(FString& Out, const TCHAR* Text, const FDirective& Directive)
	{
		Text = Text ? Text : TEXT("(null)");
		int32 Len = 0;
		while ((Directive.Precision < 0 || Len < Directive.Precision) && Text[Len])
		{
			++Len;
		}
		AppendPadded(Out, Text, Len, Directive);
	}

	void AppendAscii(FString& Out, const char* Text, int32 Len)
	{
		for (int32 Index = 0; Index < Len; ++Index)
		{
			Out.AppendChar(static_cast<TCHAR>(Text[Index]));
		}
	}

	/** Numbers are written by the C library, which knows all their forms. Length is the C length modifier. */
	template<typename ValueType>
	void AppendNumber(FString& Out, const FDirective& Directive, const char* Length, ValueType Value)
	{
		char Format[24];
		std::snprintf(Format, sizeof(Format), "%%%s*.*%s%c", Directive.Flags, Length, static_cast<char>(Directive.Conversion));
		const int32 Width = Directive.Width < 0 ? 0 : Directive.Width;
		char Buffer[128];
		const int32 Len = std::snprintf(Buffer, sizeof(Buffer), Format, Width, Directive.Precision, Value);
		if (Len < static_cast<int32>(sizeof(Buffer)))
		{
			AppendAscii(Out, Buffer, Len);
			return;
		}
		const std::unique_ptr<char[]> Long = std::make_unique<char[]>(Len + 1);
		std::snprintf(Long.get(), Len + 1, Format, Width, Directive.Precision, Value);
		AppendAscii(Out, Long.get(), Len);
	}

	void AppendInteger(FString& Out, const FDirective& Directive, const FFormatArgument& Arg)
	{
		const bool bSigned = Directive.Conversion == 'd' || Directive.Conversion == 'i';
		// Smaller integers are promoted to 32 bits, as in a C call.
		const int64 Promoted = bSigned ? static_cast<int64>(static_cast<int32>(Arg.Integer)) : static_cast<int64>(static_cast<uint32>(Arg.Integer));
		const int64 Value = Arg.Bytes == 8 ? Arg.Integer : Promoted;
		AppendNumber(Out, Directive, "ll", Value);
	}

	void AppendPointer(FString& Out, const FDirective& Directive, const void* Value)
	{
		char Buffer[24];
		const int32 Len = std::snprintf(Buffer, sizeof(Buffer), "0x%016llx", static_cast<uint64>(reinterpret_cast<UPTRINT>(Value)));
		FString Text;
		AppendAscii(Text, Buffer, Len);
		AppendPadded(Out, *Text, Text.Len(), Directive);
	}

	void AppendDirective(FString& Out, const FDirective& Directive, const FFormatArgument& Arg)
	{
		switch (Arg.Kind)
		{
			case FFormatArgument::EKind::Signed:
			case FFormatArgument::EKind::Unsigned:
				if (Directive.Conversion == 'c')
				{
					const TCHAR Char = static_cast<TCHAR>(Arg.Integer);
					return AppendPadded(Out, &Char, 1, Directive);
				}
				return AppendInteger(Out, Directive, Arg);
			case FFormatArgument::EKind::Real:
				return AppendNumber(Out, Directive, "", Arg.Real);
			case FFormatArgument::EKind::Wide:
				return Directive.Conversion == 'p' ? AppendPointer(Out, Directive, Arg.Wide) : AppendString(Out, Arg.Wide, Directive);
			case FFormatArgument::EKind::Ansi:
				return Directive.Conversion == 'p' ? AppendPointer(Out, Directive, Arg.Ansi) : AppendString(Out, Arg.Ansi ? ANSI_TO_TCHAR(Arg.Ansi) : nullptr, Directive);
			case FFormatArgument::EKind::Pointer:
				return AppendPointer(Out, Directive, Arg.Pointer);
			case FFormatArgument::EKind::None:
				break;
		}
		checkNoEntry();
	}
}

void UE::String::Private::AppendFormatted(FString& Out, const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	while (*Format)
	{
		const TCHAR* const Begin = Format;
		while (*Format && *Format != '%')
		{
			++Format;
		}
		Out.Append(Begin, static_cast<int32>(Format - Begin));
		if (!*Format)
		{
			return;
		}
		++Format;
		if (*Format == '%')
		{
			Out.AppendChar(*Format++);
			continue;
		}
		const FormatMessage::FDirective Directive = FormatMessage::ReadDirective(Format, Args);
		FormatMessage::AppendDirective(Out, Directive, *Args++);
	}
}
