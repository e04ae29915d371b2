// Copyright Velmorant. All Rights Reserved.

#include "CompanionDeclarations.h"

#include "SourceText.h"

namespace CompanionDeclarations
{
	/** Up to body, initial value or end of the declaration. */
	std::string CutDeclaration(const std::string& Line)
	{
		int Depth = 0;
		size_t Index = 0;
		for (; Index < Line.size(); ++Index)
		{
			Depth += Line[Index] == '(' ? 1 : 0;
			Depth -= Line[Index] == ')' ? 1 : 0;
			const bool bEnd = Line[Index] == ';' || Line[Index] == '{' || Line.compare(Index, 3, " = ") == 0;
			if (Depth == 0 && bEnd)
			{
				break;
			}
		}
		return std::regex_replace(Line.substr(0, Index), std::regex("\\s+$"), "");
	}

	/** Reads one header line by line, and writes the marked copy. */
	class FReader
	{
	public:
		FReader(const std::filesystem::path& File, std::vector<FCompanionDeclaration>& InDeclarations)
			: Header(File.filename().string())
			, Declarations(InDeclarations)
		{
			std::stringstream Text(SourceText::Read(File));
			for (std::string Line; std::getline(Text, Line);)
			{
				Marked += ReadLine(Line) + "\n";
			}
		}

		std::string Marked;

	private:
		/** @return the line, with the mark where it declares a member. */
		std::string ReadLine(const std::string& Line)
		{
			static const std::regex Begin("^(class|struct|enum class|enum) (?:\\w+_API )?(\\w+)([^;]*)$");
			static const std::regex Delegate("^DECLARE_\\w+\\((\\w+).*\\);$");
			static const std::regex NoMember("^\t(?:[^A-Za-z]|(?:UPROPERTY|UFUNCTION|GENERATED_\\w+|public|protected|private|friend|using|template|DECLARE_\\w+|virtual ~)\\b).*");
			std::smatch Match;
			if (std::regex_match(Line, Match, Begin))
			{
				Type = Match[2];
				bEnum = Match[1].str().rfind("enum", 0) == 0;
				Declarations.push_back({Header, Type, "", Match[1].str() + " " + Type + Match[3].str()});
			}
			else if (std::regex_match(Line, Match, Delegate))
			{
				const std::string Text = std::regex_replace(Line, std::regex(" /\\*\\w+\\*/|;$"), "");
				Declarations.push_back({Header, Match[1], "", Text});
			}
			else if (Line == "};")
			{
				Type.clear();
			}
			else if (!Type.empty() && Line.rfind("\t", 0) == 0 && !std::regex_match(Line, NoMember))
			{
				return MarkMember(Line.substr(1));
			}
			return Line;
		}

		std::string MarkMember(const std::string& Line)
		{
			static const std::regex Enumerator("^(\\w+)(?: = (-?\\d+))?.*$");
			static const std::regex Function("^.*?(\\w+)\\(.*$");
			static const std::regex Field("^.*?(\\w+)(?:\\[.*)?$");
			std::string Text = bEnum ? std::regex_replace(Line, Enumerator, "$1 = $2") : CutDeclaration(Line);
			std::smatch Match;
			if (!std::regex_match(Text, Match, bEnum ? Enumerator : Function) && !std::regex_match(Text, Match, Field))
			{
				return "\t" + Line;
			}
			const std::string Mark = "[[deprecated(\"" + Type + "::" + Match[1].str() + "\")]]";
			Declarations.push_back({Header, Type, Match[1], Text});
			return "\t" + (bEnum ? Match[1].str() + " " + Mark + Line.substr(Match[1].length()) : Mark + " " + Line);
		}

		const std::string Header;
		std::vector<FCompanionDeclaration>& Declarations;
		std::string Type; // whose body is being read; empty outside
		bool bEnum = false;
	};
}

std::vector<FCompanionDeclaration> ReadCompanionHeaders(const std::filesystem::path& MarkedFolder)
{
	std::vector<FCompanionDeclaration> Declarations;
	std::filesystem::create_directories(MarkedFolder);
	for (const char* Module : CompanionModules)
	{
		for (const std::filesystem::path& File : SourceText::FindSources(SourceText::Root / "Companions" / Module / "Public"))
		{
			std::ofstream(MarkedFolder / File.filename()) << CompanionDeclarations::FReader(File, Declarations).Marked;
		}
	}
	return Declarations;
}
