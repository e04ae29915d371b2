// Copyright Velmorant. All Rights Reserved.

#include "HostJsonFault.h"

#include "Containers/StringConv.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string>

#include <nlohmann/json.hpp>

namespace HostJsonFault
{
	/** Takes a document in without keeping it, up to the first fault. */
	class FFaultFinder final : public nlohmann::json_sax<nlohmann::json>
	{
	public:
		explicit FFaultFinder(std::string_view InText)
			: Text(InText)
		{
		}

		FHostJsonFault Fault;

		//~ Begin json_sax
		bool null() override { return true; }
		bool boolean(bool) override { return true; }
		bool number_integer(number_integer_t) override { return true; }
		bool number_unsigned(number_unsigned_t) override { return true; }
		bool number_float(number_float_t, const string_t&) override { return true; }
		bool string(string_t&) override { return true; }
		bool binary(binary_t&) override { return true; }
		bool start_object(std::size_t) override { return true; }
		bool key(string_t&) override { return true; }
		bool end_object() override { return true; }
		bool start_array(std::size_t) override { return true; }
		bool end_array() override { return true; }
		bool parse_error(std::size_t Position, const std::string& Token, const nlohmann::detail::exception& Error) override
		{
			const bool bNumber = dynamic_cast<const nlohmann::json::out_of_range*>(&Error) != nullptr;
			const size_t Length = bNumber ? Token.size() : 1; // Position is behind what is at fault
			const std::string_view Before = Text.substr(0, std::min(Position > Length ? Position - Length : 0, Text.size()));
			const size_t LineBegin = Before.rfind('\n') + 1; // npos and one are the beginning
			Fault.Line = 1 + static_cast<int32>(std::count(Before.begin(), Before.end(), '\n'));
			const FString Column = FString::Printf(TEXT("column %d: "), static_cast<int32>(Before.size() - LineBegin) + 1);
			Fault.Message = Column + (bNumber ? ExplainNumber(Token) : Explain(Position));
			return false;
		}
		//~ End json_sax

	private:
		static FString ExplainNumber(const std::string& Number)
		{
			constexpr int32 MaxShown = 40; // characters
			return FString::Printf(TEXT("the number %s is out of range"), *FString(UTF8_TO_TCHAR(Number.c_str())).Left(MaxShown));
		}

		/** Shows signs only: letters and digits may be out of a text. */
		FString Explain(size_t Position) const
		{
			if (Position == 0 || Position > Text.size())
			{
				return TEXT("the text ends before it is complete");
			}
			const char Found = Text[Position - 1];
			return std::ispunct(static_cast<unsigned char>(Found)) != 0 ? FString::Printf(TEXT("'%c' is not expected here"), static_cast<TCHAR>(Found)) : FString(TEXT("what stands here is not expected"));
		}

		std::string_view Text;
	};

	bool IsTooDeep(std::string_view Text, FHostJsonFault& OutFault)
	{
		int32 Depth = 0;
		bool bInString = false;
		for (size_t At = 0; At < Text.size(); ++At)
		{
			const char Letter = Text[At];
			if (bInString)
			{
				At += Letter == '\\' ? 1 : 0;
				bInString = Letter != '"';
				continue;
			}
			bInString = Letter == '"';
			Depth += Letter == '{' || Letter == '[' ? 1 : 0;
			Depth -= Letter == '}' || Letter == ']' ? 1 : 0;
			if (Depth > MaxDepth)
			{
				const std::string_view Before = Text.substr(0, At);
				OutFault.Line = 1 + static_cast<int32>(std::count(Before.begin(), Before.end(), '\n'));
				OutFault.Message = FString::Printf(TEXT("objects and arrays are nested more than %d deep"), MaxDepth);
				return true;
			}
		}
		return false;
	}

	FHostJsonFault Find(std::string_view Text)
	{
		FFaultFinder Finder(Text);
		nlohmann::json::sax_parse(Text.begin(), Text.end(), static_cast<nlohmann::json_sax<nlohmann::json>*>(&Finder));
		return Finder.Fault;
	}
}
