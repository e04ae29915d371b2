// Copyright Velmorant. All Rights Reserved.

#include "Contract/CompanionTables.h"

#include "HostProblems.h"
#include "HostTextFiles.h"

#include <algorithm>
#include <map>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace CompanionTables
{
	const std::string NamesHeading = "| Header | Type | Given | Chosen | For |";
	const std::string PartsHeading = "| Declaration | Given parts |";
	const std::string SpecifiersHeading = "| Declaration | Specifiers | For |";

	std::vector<std::string> FindAll(const std::string& Text, const std::regex& Pattern)
	{
		std::vector<std::string> Result;
		for (auto Match = std::sregex_iterator(Text.begin(), Text.end(), Pattern); Match != std::sregex_iterator(); ++Match)
		{
			Result.push_back((*Match)[1]);
		}
		return Result;
	}

	/** What stands between back-quotes. */
	std::vector<std::string> CodeIn(const std::string& Cell)
	{
		static const std::regex Code("`([^`]+)`");
		return FindAll(Cell, Code);
	}

	std::string NameOfType(const std::string& Text)
	{
		static const std::regex Delegate("^DECLARE_\\w+\\((\\w+)");
		static const std::regex Type("^(?:enum class|enum|class|struct) (\\w+)");
		std::smatch Match;
		return std::regex_search(Text, Match, Delegate) || std::regex_search(Text, Match, Type) ? Match[1].str() : std::string();
	}

	std::string NameOfMember(const std::string& Text, bool bEnumerator)
	{
		static const std::regex First("^(\\w+)");
		static const std::regex Function("(\\w+)\\(");
		static const std::regex Last("(\\w+)$");
		std::smatch Match;
		if (bEnumerator)
		{
			return std::regex_search(Text, Match, First) ? Match[1].str() : std::string();
		}
		return std::regex_search(Text, Match, Function) || std::regex_search(Text, Match, Last) ? Match[1].str() : std::string();
	}

	class FReader
	{
	public:
		explicit FReader(std::vector<FExpectedName>& InNames)
			: Names(InNames)
		{
		}

		void Read(const std::string& Text)
		{
			std::stringstream Lines(Text);
			for (std::string Line; std::getline(Lines, Line);)
			{
				ReadLine(Line.substr(0, Line.find('\r')));
			}
			for (FExpectedName& Name : Names)
			{
				Name.GivenParts = Parts[Name.GetName()];
				Name.Specifiers = Specifiers[Name.GetName()];
			}
		}

	private:
		void ReadLine(const std::string& Line)
		{
			static const std::regex CellPattern("\\| ([^|]*)");
			if (Line.starts_with("## "))
			{
				Module = Line.substr(3);
			}
			if (!Line.starts_with("|") || Line == NamesHeading || Line == PartsHeading || Line == SpecifiersHeading)
			{
				Table = Line;
			}
			else if (!Line.starts_with("|---") && Table == NamesHeading)
			{
				AddNames(FindAll(Line, CellPattern));
			}
			else if (!Line.starts_with("|---") && Table == PartsHeading)
			{
				AddParts(FindAll(Line, CellPattern));
			}
			else if (!Line.starts_with("|---") && Table == SpecifiersHeading)
			{
				AddSpecifiers(FindAll(Line, CellPattern));
			}
		}

		void AddNames(const std::vector<std::string>& Cells)
		{
			const std::vector<std::string> NewHeader = CodeIn(Cells.at(0));
			Header = NewHeader.empty() ? Header : NewHeader[0];
			static const std::regex TypePattern("^(given|chosen): `");
			std::smatch Origin;
			if (!std::regex_search(Cells.at(1), Origin, TypePattern))
			{
				throw std::out_of_range(Cells[1]);
			}
			const std::string Text = CodeIn(Cells[1]).at(0);
			FExpectedName Name{Module, Header, NameOfType(Text), "", Text, Origin[1] == "given", {}, {}};
			Names.push_back(Name);
			for (const size_t Column : {2, 3})
			{
				for (const std::string& Member : CodeIn(Cells.at(Column)))
				{
					Name.Text = Member;
					Name.Member = NameOfMember(Member, Text.starts_with("enum"));
					Name.bGiven = Column == 2;
					Names.push_back(Name);
				}
			}
		}

		void AddParts(const std::vector<std::string>& Cells)
		{
			static const std::regex Part("([a-z][a-z ]*[a-z])");
			const std::vector<std::string> Given = FindAll(Cells.at(1), Part);
			for (const std::string& Name : CodeIn(Cells.at(0)))
			{
				Parts[Name] = std::set<std::string>(Given.begin(), Given.end());
			}
		}

		void AddSpecifiers(const std::vector<std::string>& Cells)
		{
			const std::vector<std::string> Needed = CodeIn(Cells.at(1));
			for (const std::string& Name : CodeIn(Cells.at(0)))
			{
				Specifiers[Name].insert(Needed.begin(), Needed.end());
			}
		}

		std::vector<FExpectedName>& Names;
		std::map<std::string, std::set<std::string>> Parts; // by name
		std::map<std::string, std::set<std::string>> Specifiers; // by name
		std::string Module;
		std::string Header;
		std::string Table; // heading of the table that the last line was in
	};

	bool Read(const FString& Document, std::vector<FExpectedName>& OutNames)
	{
		std::string Text;
		const HostFiles::ERead Result = HostTextFiles::ReadUtf8(Document, Text);
		if (Result == HostFiles::ERead::Failed)
		{
			return false;
		}
		try
		{
			FReader(OutNames).Read(Text);
		}
		catch (const std::out_of_range&) // a row with too few cells, or without a declaration
		{
			OutNames.clear();
		}
		if (OutNames.empty())
		{
			HostProblems::Report(Document, 0, TEXT("the tables of what the module expects of its companions are not there, or not readable"), TEXT("Restore the file: it belongs to this program."));
		}
		return !OutNames.empty();
	}
}
