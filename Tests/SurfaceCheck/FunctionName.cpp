// Copyright Velmorant. All Rights Reserved.

#include "FunctionName.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace SurfaceCheck
{
	namespace FunctionName
	{
		const std::string Operator = "operator";

		bool IsWordPart(char C)
		{
			return std::isalnum(static_cast<unsigned char>(C)) || C == '_';
		}

		/** The position behind an operator's name that starts at Position, or Position when there is none. */
		size_t SkipOperator(const std::string& Text, size_t Position)
		{
			const bool bStartsWord = Position == 0 || !IsWordPart(Text[Position - 1]);
			if (!bStartsWord || Text.compare(Position, Operator.size(), Operator) != 0)
			{
				return Position;
			}
			size_t End = Position + Operator.size();
			if (End < Text.size() && IsWordPart(Text[End]))
			{
				return Position;
			}
			for (const char* Symbol : {"()", "[]", "<<=", ">>=", "<=>", "->*", "<<", ">>", "<=", ">=", "->", "<", ">"})
			{
				if (Text.compare(End, std::char_traits<char>::length(Symbol), Symbol) == 0)
				{
					return End + std::char_traits<char>::length(Symbol);
				}
			}
			return End;
		}

		void Replace(std::string& Text, const std::string& From, const std::string& To)
		{
			for (size_t Found = Text.find(From); Found != std::string::npos; Found = Text.find(From, Found + To.size()))
			{
				Text.replace(Found, From.size(), To);
			}
		}

		/** Where the parameters of the innermost function open and close; both npos when there are none. */
		struct FParameters
		{
			size_t Open = std::string::npos;
			size_t Close = std::string::npos;
			int Count = 0;
		};

		FParameters FindParameters(const std::string& Text)
		{
			FParameters Result;
			int Depth = 0;
			for (size_t Position = 0; Position < Text.size(); ++Position)
			{
				if (Depth == 0)
				{
					const size_t Behind = SkipOperator(Text, Position);
					if (Behind != Position)
					{
						Position = Behind - 1;
						continue;
					}
				}
				const char C = Text[Position];
				const bool bArrow = C == '>' && Position > 0 && Text[Position - 1] == '-';
				if (C == '(' && Depth == 0)
				{
					Result = {Position, std::string::npos, 0};
				}
				if (C == '(' || C == '<' || C == '{' || C == '[')
				{
					++Depth;
				}
				else if (C == ')' || C == '}' || C == ']' || (C == '>' && !bArrow))
				{
					--Depth;
					if (C == ')' && Depth == 0)
					{
						Result.Close = Position;
						Result.Count += Position > Result.Open + 1 ? 1 : 0;
					}
				}
				else if (C == ',' && Depth == 1 && Result.Open != std::string::npos && Result.Close == std::string::npos)
				{
					++Result.Count;
				}
			}
			return Result;
		}

		/** The name of the operator that Text starts with, without template arguments. Behind: after "operator" and a bracket-like symbol. */
		std::string GetOperatorName(const std::string& Text, size_t Behind)
		{
			if (Text.compare(Behind, 1, " ") == 0 && Text.compare(Behind, 2, " <") != 0)
			{
				const std::string Word = Text.substr(Behind + 1);
				return Word.starts_with("new") || Word.starts_with("delete") ? Text : FFunctionName::ConversionName;
			}
			return Text.substr(0, Text.find_first_of("< ", Behind));
		}

		/** Text in pieces at the "::" outside of brackets, without template arguments and return type. */
		std::vector<std::string> SplitScopes(const std::string& Text)
		{
			std::vector<std::string> Pieces(1);
			int Depth = 0;
			for (size_t Position = 0; Position < Text.size(); ++Position)
			{
				const size_t Behind = Depth == 0 ? SkipOperator(Text, Position) : Position;
				if (Behind != Position)
				{
					Pieces.back() = GetOperatorName(Text.substr(Position), Behind - Position);
					return Pieces;
				}
				const char C = Text[Position];
				if (C == '<' || C == '(' || C == '[' || C == '{')
				{
					++Depth;
				}
				else if (C == '>' || C == ')' || C == ']' || C == '}')
				{
					--Depth;
				}
				else if (Depth == 0 && C == ' ')
				{
					Pieces.assign(1, ""); // what stood before was the return type
				}
				else if (Depth == 0 && Text.compare(Position, 2, "::") == 0)
				{
					Pieces.emplace_back();
					++Position;
				}
				else if (Depth == 0)
				{
					Pieces.back() += C;
				}
			}
			return Pieces;
		}
	}

	bool IsCalled(const std::set<std::string>& CalledNames, const std::string& Name)
	{
		const std::string Suffix = "_Implementation";
		if (!Name.ends_with(Suffix))
		{
			return CalledNames.contains(Name);
		}
		const std::string Event = Name.substr(0, Name.size() - Suffix.size());
		return CalledNames.contains(Name) || CalledNames.contains(Event) || CalledNames.contains("Execute_" + Event);
	}

	std::string Demangle(const std::string& Mangled)
	{
		int Status = 0;
		const std::unique_ptr<char, decltype(&std::free)> Text(abi::__cxa_demangle(Mangled.c_str(), nullptr, nullptr, &Status), &std::free);
		return Text ? Text.get() : "";
	}

	FFunctionName ParseDemangled(std::string Text)
	{
		using namespace FunctionName;
		Replace(Text, "(anonymous namespace)", FFunctionName::AnonymousNamespace);
		Replace(Text, "[abi:cxx11]", "");
		for (const char* Prefix : {"non-virtual thunk to ", "virtual thunk to ", "covariant return thunk to "})
		{
			if (Text.starts_with(Prefix))
			{
				Text.erase(0, std::char_traits<char>::length(Prefix));
			}
		}
		const FParameters Parameters = FindParameters(Text);
		FFunctionName Result;
		if (Parameters.Close == std::string::npos)
		{
			return Result;
		}
		const std::vector<std::string> Pieces = SplitScopes(Text.substr(0, Parameters.Open));
		Result.Name = Pieces.back();
		Result.Parameters = Parameters.Count;
		for (size_t Index = 0; Index + 1 < Pieces.size(); ++Index)
		{
			Result.Scope += (Index == 0 ? "" : "::") + Pieces[Index];
		}
		return Result;
	}
}
