// Copyright Velmorant. All Rights Reserved.

#include "TextTools.h"

#include <algorithm>
#include <sstream>

namespace HeaderTool
{
	namespace TextTools
	{
		char Lower(char C)
		{
			return C >= 'A' && C <= 'Z' ? static_cast<char>(C - 'A' + 'a') : C;
		}

		size_t EditDistance(const std::string& A, const std::string& B)
		{
			std::vector<size_t> Row(B.size() + 1);
			for (size_t Column = 0; Column <= B.size(); ++Column)
			{
				Row[Column] = Column;
			}
			for (size_t Line = 1; Line <= A.size(); ++Line)
			{
				size_t Diagonal = Row[0];
				Row[0] = Line;
				for (size_t Column = 1; Column <= B.size(); ++Column)
				{
					const size_t Above = Row[Column];
					const size_t Replaced = Diagonal + (A[Line - 1] == B[Column - 1] ? 0 : 1);
					Row[Column] = std::min({Above + 1, Row[Column - 1] + 1, Replaced});
					Diagonal = Above;
				}
			}
			return Row[B.size()];
		}

		bool IsRuler(const std::string& Line)
		{
			return Line.size() >= 3 && Line.find_first_not_of("-=*/_") == std::string::npos;
		}
	}

	std::string Join(const std::vector<std::string>& Parts, const std::string& Separator)
	{
		std::string Result;
		for (size_t Index = 0; Index < Parts.size(); ++Index)
		{
			Result += (Index ? Separator : "") + Parts[Index];
		}
		return Result;
	}

	std::string Trim(const std::string& Text)
	{
		const size_t First = Text.find_first_not_of(" \t\r\n");
		return First == std::string::npos ? "" : Text.substr(First, Text.find_last_not_of(" \t\r\n") - First + 1);
	}

	bool StartsWith(const std::string& Text, const std::string& Prefix)
	{
		return Text.compare(0, Prefix.size(), Prefix) == 0;
	}

	bool EndsWith(const std::string& Text, const std::string& Suffix)
	{
		return Text.size() >= Suffix.size() && Text.compare(Text.size() - Suffix.size(), Suffix.size(), Suffix) == 0;
	}

	bool EqualsIgnoringCase(const std::string& A, const std::string& B)
	{
		return A.size() == B.size() && std::equal(A.begin(), A.end(), B.begin(), [](char X, char Y) { return TextTools::Lower(X) == TextTools::Lower(Y); });
	}

	std::string ToLower(const std::string& Text)
	{
		std::string Result = Text;
		std::transform(Result.begin(), Result.end(), Result.begin(), TextTools::Lower);
		return Result;
	}

	std::string ToIdentifier(const std::string& Text)
	{
		std::string Result = Text;
		for (char& C : Result)
		{
			const bool bPlain = (C >= 'a' && C <= 'z') || (C >= 'A' && C <= 'Z') || (C >= '0' && C <= '9');
			C = bPlain ? C : '_';
		}
		return Result;
	}

	std::string EscapeForLiteral(const std::string& Text)
	{
		std::string Result;
		for (const char C : Text)
		{
			switch (C)
			{
				case '\n':
					Result += "\\n";
					break;
				case '\t':
					Result += "\\t";
					break;
				case '\r':
					break;
				case '"':
					Result += "\\\"";
					break;
				case '\\':
					Result += "\\\\";
					break;
				default:
					Result += C;
					break;
			}
		}
		return Result;
	}

	std::string FindNearest(const std::string& Text, const std::vector<std::string>& Candidates)
	{
		std::string Nearest;
		size_t Best = std::max<size_t>(1, Text.size() / 4) + 1;
		for (const std::string& Candidate : Candidates)
		{
			const size_t Distance = TextTools::EditDistance(ToLower(Text), ToLower(Candidate));
			if (Distance < Best)
			{
				Best = Distance;
				Nearest = Candidate;
			}
		}
		return Nearest;
	}

	std::string ToolTipFromComment(const std::string& Comment)
	{
		const bool bBlock = StartsWith(Comment, "/*");
		std::string Body = bBlock && Comment.size() >= 4 ? Comment.substr(2, Comment.size() - 4) : Comment;
		std::vector<std::string> Lines;
		std::istringstream Stream(Body);
		for (std::string Line; std::getline(Stream, Line);)
		{
			Line = Trim(Line);
			if (TextTools::IsRuler(Line))
			{
				continue;
			}
			size_t First = 0;
			if (bBlock)
			{
				First = Line.find_first_not_of("*");
			}
			else
			{
				First = Line.find_first_not_of("/!");
			}
			Line = First == std::string::npos ? "" : Trim(Line.substr(First));
			Lines.push_back(Line);
		}
		return Trim(Join(Lines, "\n"));
	}
}
