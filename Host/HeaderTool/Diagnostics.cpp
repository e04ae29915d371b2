// Copyright Velmorant. All Rights Reserved.

#include "Diagnostics.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

namespace HeaderTool
{
	void FDiagnostics::Error(const std::string& Path, int Line, const std::string& Message)
	{
		Errors.push_back({Path, Line, Message});
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
			return FileA != FileB ? FileA < FileB : A.Line < B.Line; });
		std::set<std::string> Printed;
		for (const FDiagnostic& Diagnostic : Sorted)
		{
			std::string Text = Diagnostic.Path;
			if (Diagnostic.Line > 0)
			{
				Text += "(" + std::to_string(Diagnostic.Line) + ")";
			}
			Text += ": error: " + Diagnostic.Message;
			if (Printed.insert(Text).second)
			{
				Out << Text << "\n";
			}
		}
	}
}
