// Copyright Velmorant. All Rights Reserved.

#include "Install/ContractText.h"

#include "Console.h"

#include <algorithm>

namespace ContractText
{
	const char* Spell(EPresence Presence)
	{
		const char* const Words[] = {"found", "in another place", "missing"};
		return Words[static_cast<size_t>(Presence)];
	}

	std::string Pad(std::string Text, size_t Width)
	{
		Text.resize(std::max(Text.size(), Width), ' ');
		return Text;
	}

	void PrintTable(const std::string& Heading, const std::vector<FContractPlace>& Places)
	{
		Console::PrintUtf8(Heading);
		size_t Width = 0;
		for (const FContractPlace& Place : Places)
		{
			Width = std::max(Width, Place.Name.size());
		}
		for (const FContractPlace& Place : Places)
		{
			const std::string Line = "  " + Pad(Place.Name, Width) + "  " + Spell(Place.Presence);
			Console::PrintUtf8(Place.Path.empty() ? Line : Pad(Line, Width + 22) + Place.Path);
		}
	}

	void PrintDifferences(const std::string& Heading, const std::vector<FContractDifference>& Differences)
	{
		if (!Differences.empty())
		{
			Console::PrintUtf8(Heading);
		}
		for (const FContractDifference& Each : Differences)
		{
			const std::string Line = Each.Line > 0 ? "(" + std::to_string(Each.Line) + ")" : "";
			Console::PrintUtf8("  " + Each.Path + Line + ": " + Each.Message);
		}
	}

	void Print(const FContractReport& Report)
	{
		PrintTable("Companion modules", Report.Modules);
		PrintTable("Headers that the module includes", Report.Headers);
		PrintDifferences("Given by the toolkit, and not so", Report.Given);
		PrintDifferences("Chosen here, and not so: these do not keep the module from being installed, but it has to be edited, or the companion", Report.Chosen);
		if (!Report.Unread.empty())
		{
			Console::PrintUtf8("Unread, and not compared");
		}
		for (const std::string& Line : Report.Unread)
		{
			Console::PrintUtf8("  " + Line);
		}
		Console::PrintUtf8(std::to_string(Report.NumCompared) + " names compared, " + std::to_string(Report.NumExact) + " of them by their declarations: " + std::to_string(Report.Given.size()) + " given and " + std::to_string(Report.Chosen.size()) + " chosen ones differ.");
	}
}
