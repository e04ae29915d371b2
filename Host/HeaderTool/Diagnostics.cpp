// Copyright Velmorant. All Rights Reserved.

#include "Diagnostics.h"

#include "TerminalText.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

namespace HeaderTool
{
	void FDiagnostics::Error(const std::string& Path, const FPlace& Place, const std::string& Message)
	{
		Errors.push_back({Path, Place, Message});
	}

	void FDiagnostics::Print(std::ostream& Out) const
	{
		std::map<std::string, size_t> FileOrder;
		for (const FDiagnostic& Diagnostic : Errors)
		{
			FileOrder.emplace(Diagnostic.Path, FileOrder.size());
		}
		std::vector<FDiagnostic> Sorted = Errors;
		std::stable_sort(Sorted.begin(), Sorted.end(), [&FileOrder](const FDiagnostic& A, const FDiagnostic& B) {
			const size_t FileA = FileOrder[A.Path];
			const size_t FileB = FileOrder[B.Path];
			return FileA != FileB ? FileA < FileB : A.Place < B.Place; });
		std::set<std::string> Printed;
		for (const FDiagnostic& Diagnostic : Sorted)
		{
			std::string Text = Diagnostic.Path;
			if (Diagnostic.Place.IsSet())
			{
				const std::string Column = Diagnostic.Place.Column > 0 ? "," + std::to_string(Diagnostic.Place.Column) : "";
				Text += "(" + std::to_string(Diagnostic.Place.Line) + Column + ")";
			}
			Text += ": error: " + Diagnostic.Message;
			if (Printed.insert(Text).second)
			{
				Out << TerminalText::Escape(Text, TerminalText::ELineFeeds::Keep) << "\n";
			}
		}
	}
}
