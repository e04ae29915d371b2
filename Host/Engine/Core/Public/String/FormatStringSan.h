// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <type_traits>

/**
 * Format strings that are read by the compiler: a directive that does not fit its argument, a missing or surplus argument and a
 * format that is no literal are compile errors, as in the engine.
 *
 * Accepted: %d %i %u %x %X %o (integers up to 32 bits; with ll, 64 bits; with z, size_t), %f %e %g (float, double),
 * %s (const TCHAR*), %hs %S (const ANSICHAR*), %c (a character), %p (a pointer), %%. Flags, width and precision as in C, '*' included.
 */
namespace UE::Core
{
	/** An argument of a formatted message, with what it is: nothing is read through a C variadic list. */
	class FFormatArgument
	{
	public:
		enum class EKind : uint8
		{
			None,
			Signed,
			Unsigned,
			Real,
			Wide,
			Ansi,
			Pointer
		};

		constexpr FFormatArgument() = default;
		template<typename T>
		requires(std::is_integral_v<T> || (std::is_enum_v<T> && std::is_convertible_v<T, int64>)) constexpr FFormatArgument(T InValue)
			: Kind((std::is_signed_v<T> || std::is_enum_v<T>) ? EKind::Signed : EKind::Unsigned)
			, Bytes(sizeof(T))
			, Integer(static_cast<int64>(InValue))
		{
		}
		constexpr FFormatArgument(double InValue)
			: Kind(EKind::Real)
			, Real(InValue)
		{
		}
		constexpr FFormatArgument(const TCHAR* InValue)
			: Kind(EKind::Wide)
			, Wide(InValue)
		{
		}
		constexpr FFormatArgument(const ANSICHAR* InValue)
			: Kind(EKind::Ansi)
			, Ansi(InValue)
		{
		}
		constexpr FFormatArgument(const void* InValue)
			: Kind(EKind::Pointer)
			, Pointer(InValue)
		{
		}

		EKind Kind = EKind::None;
		uint8 Bytes = 0; // of an integer
		union
		{
			int64 Integer = 0;
			double Real;
			const TCHAR* Wide;
			const ANSICHAR* Ansi;
			const void* Pointer;
		};
	};

	namespace Private
	{
		enum class EFormatArg : uint8
		{
			Unsupported,
			Integer, // up to 32 bits
			LongInteger, // 64 bits
			Long, // the C type 'long', whose size differs between platforms
			Real,
			Wide,
			Ansi,
			Pointer
		};

		template<typename T>
		consteval EFormatArg ClassifyFormatArg()
		{
			using Value = std::remove_cv_t<T>;
			if constexpr (std::is_same_v<Value, long> || std::is_same_v<Value, unsigned long>)
			{
				return EFormatArg::Long;
			}
			else if constexpr (std::is_integral_v<Value> || (std::is_enum_v<Value> && std::is_convertible_v<Value, int64>))
			{
				return sizeof(Value) <= 4 ? EFormatArg::Integer : EFormatArg::LongInteger;
			}
			else if constexpr (std::is_same_v<Value, float> || std::is_same_v<Value, double>)
			{
				return EFormatArg::Real;
			}
			else if constexpr (std::is_pointer_v<Value>)
			{
				using Pointee = std::remove_cv_t<std::remove_pointer_t<Value>>;
				return std::is_same_v<Pointee, TCHAR> ? EFormatArg::Wide : std::is_same_v<Pointee, ANSICHAR> ? EFormatArg::Ansi
																											 : EFormatArg::Pointer;
			}
			else
			{
				return EFormatArg::Unsupported;
			}
		}

		// Deliberately no constant expressions: the compiler names the one that the check ran into.
		void FormatStringHasMoreDirectivesThanArguments();
		void FormatStringHasFewerDirectivesThanArguments();
		void FormatDirectiveNeedsAnIntegerOfThatSize();
		void FormatDirectiveNeedsAFloatingPointNumber();
		void FormatDirectiveNeedsAConstTCharPointer();
		void FormatDirectiveNeedsAConstAnsiCharPointer();
		void FormatDirectiveNeedsAPointer();
		void FormatDirectiveIsUnknown();

		constexpr void CheckFormatInteger(EFormatArg Arg, int32 NumL, bool bSize)
		{
			const bool bLong = Arg == EFormatArg::Long;
			const bool bLongInteger = Arg == EFormatArg::LongInteger;
			const bool bEitherLong = bSize || NumL == 2;
			const bool bPlain = NumL == 1 ? bLong : Arg == EFormatArg::Integer;
			const bool bFits = bEitherLong ? bLong || bLongInteger : bPlain;
			if (!bFits)
			{
				FormatDirectiveNeedsAnIntegerOfThatSize();
			}
		}

		constexpr void CheckFormatDirective(TCHAR Directive, EFormatArg Arg, int32 NumL, bool bSize, bool bHalf)
		{
			switch (Directive)
			{
				case 'd':
				case 'i':
				case 'u':
				case 'x':
				case 'X':
				case 'o':
					return CheckFormatInteger(Arg, NumL, bSize);
				case 'c':
					return CheckFormatInteger(Arg, 0, false);
				case 'f':
				case 'F':
				case 'e':
				case 'E':
				case 'g':
				case 'G':
					return Arg == EFormatArg::Real ? void() : FormatDirectiveNeedsAFloatingPointNumber();
				case 's':
					if (bHalf)
					{
						return Arg == EFormatArg::Ansi ? void() : FormatDirectiveNeedsAConstAnsiCharPointer();
					}
					return Arg == EFormatArg::Wide ? void() : FormatDirectiveNeedsAConstTCharPointer();
				case 'S':
					return Arg == EFormatArg::Ansi ? void() : FormatDirectiveNeedsAConstAnsiCharPointer();
				case 'p':
					return (Arg == EFormatArg::Pointer || Arg == EFormatArg::Wide || Arg == EFormatArg::Ansi) ? void() : FormatDirectiveNeedsAPointer();
				default:
					return FormatDirectiveIsUnknown();
			}
		}

		constexpr bool IsFormatFlag(TCHAR Char)
		{
			return Char == '-' || Char == '+' || Char == ' ' || Char == '#' || Char == '0';
		}

		/** Args holds NumArgs entries and one more, so that it is never an empty array. */
		constexpr void CheckFormatString(const TCHAR* Format, const EFormatArg* Args, int32 NumArgs)
		{
			int32 Next = 0;
			const auto Take = [&Next, Args, NumArgs]() -> EFormatArg {
				if (Next >= NumArgs)
				{
					FormatStringHasMoreDirectivesThanArguments();
				}
				return Args[Next++];
			};
			const auto SkipNumber = [&Format, &Take]() {
				if (*Format == '*')
				{
					CheckFormatInteger(Take(), 0, false);
					++Format;
				}
				while (*Format >= '0' && *Format <= '9')
				{
					++Format;
				}
			};
			while (*Format)
			{
				if (*Format++ != '%')
				{
					continue;
				}
				if (*Format == '%')
				{
					++Format;
					continue;
				}
				while (IsFormatFlag(*Format))
				{
					++Format;
				}
				SkipNumber();
				if (*Format == '.')
				{
					++Format;
					SkipNumber();
				}
				int32 NumL = 0;
				bool bSize = false;
				bool bHalf = false;
				for (;; ++Format)
				{
					if (*Format == 'l')
					{
						++NumL;
					}
					else if (*Format == 'z')
					{
						bSize = true;
					}
					else if (*Format == 'h')
					{
						bHalf = true;
					}
					else
					{
						break;
					}
				}
				if (*Format == 0)
				{
					FormatDirectiveIsUnknown();
				}
				CheckFormatDirective(*Format, Take(), NumL, bSize, bHalf);
				++Format;
			}
			if (Next != NumArgs)
			{
				FormatStringHasFewerDirectivesThanArguments();
			}
		}

		/** A literal that has been found to fit Types. Only the compiler can make one. */
		template<typename... Types>
		class TCheckedFormatString
		{
		public:
			template<SIZE_T Num>
			consteval TCheckedFormatString(const TCHAR (&InFormat)[Num])
				: Format(InFormat)
			{
				static_assert(((ClassifyFormatArg<Types>() != EFormatArg::Unsupported) && ...),
					"A formatted argument must be a number, a character or a pointer; pass *Str for an FString, *Name.ToString() for a name, *Text.ToString() for a text.");
				const EFormatArg Args[] = {ClassifyFormatArg<Types>()..., EFormatArg::Unsupported};
				CheckFormatString(InFormat, Args, sizeof...(Types));
			}

			const TCHAR* Format;
		};
	}

	/** The type of a format parameter; the arguments' types come from the arguments alone. */
	template<typename CharType, typename... Types>
	using TCheckedFormatString = Private::TCheckedFormatString<std::type_identity_t<Types>...>;
}
