// Copyright Velmorant. All Rights Reserved.
// Descriptors of projects and plugins: read, or refused with a message; what an installation adds leaves all else as it was.

#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "HostProject.h"
#include "Install/DescriptorEdit.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace DescriptorFuzz
{
	const FDescriptorEntry Entries[] = {
		{"Modules", "FuzzEditor", {{"Type", "\"Editor\""}, {"LoadingPhase", "\"Default\""}}, {"LoadingPhase"}},
		{"Plugins", "Fuzz", {{"Enabled", "true"}}, {}},
	};

	/** Whether something that was there is written otherwise now; then it is told. */
	bool HasReplaced(const FDescriptorEdit& Edit)
	{
		return std::any_of(Edit.GetChanges().begin(), Edit.GetChanges().end(), [](const std::string& Change) { return Change.find(" becomes ") != std::string::npos; });
	}

	/** Without blanks and line ends: those between what is added may go. */
	std::string Condense(std::string_view Text)
	{
		std::string Result;
		std::copy_if(Text.begin(), Text.end(), std::back_inserter(Result), [](char Char) { return std::strchr(" \t\r\n", Char) == nullptr; });
		return Result;
	}

	/** Whether Whole becomes Part by leaving characters out. */
	bool Contains(std::string_view Whole, std::string_view Part)
	{
		size_t Found = 0;
		for (size_t Place = 0; Place < Whole.size() && Found < Part.size(); ++Place)
		{
			Found += Whole[Place] == Part[Found] ? 1 : 0;
		}
		return Found == Part.size();
	}

	void CheckEdit(std::string_view Input)
	{
		FDescriptorEdit Edit{std::string(Input)};
		FuzzTargets::Promise(Edit.IsReadable() == Edit.GetReason().empty(), "a descriptor is readable, or there is a reason why not");
		for (const FDescriptorEntry& Entry : Entries)
		{
			if (Edit.IsReadable())
			{
				Edit.Require(Entry);
			}
		}
		if (!Edit.IsReadable())
		{
			FuzzTargets::Promise(!Edit.GetReason().empty(), "what cannot be changed has a reason");
			return;
		}
		FuzzTargets::Promise(Edit.GetChanges().empty() == (Edit.GetText() == Input), "changes are told");
		FuzzTargets::Promise(HasReplaced(Edit) || Contains(Condense(Edit.GetText()), Condense(Input)), "nothing that was there goes");
		FDescriptorEdit Again(Edit.GetText());
		for (const FDescriptorEntry& Entry : Entries)
		{
			FuzzTargets::Promise(Again.IsReadable(), "what was changed can be read: " + Again.GetReason());
			Again.Require(Entry);
		}
		FuzzTargets::Promise(Again.GetText() == Edit.GetText(), "what is there is not added twice");
	}
}

void FuzzTargets::CheckDescriptor(std::string_view Input)
{
	FuzzEditor::Prepare();
	const FString Path = FuzzEditor::Write(TEXT("Fuzz.uproject"), Input);
	FHostProject Project;
	FuzzEditor::PromiseMessages(!HostProject::Read(Path, Project));
	DescriptorFuzz::CheckEdit(Input);
}
