// Copyright Velmorant. All Rights Reserved.
// Widget layouts: read whole, or refused with everything that is wrong.

#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "HostWidgetLayout.h"

void FuzzTargets::CheckLayout(std::string_view Input)
{
	FuzzEditor::Prepare();
	TArray<HostWidgetLayout::FProblem> Problems;
	const TSharedPtr<const FWidgetLayout> Layout = HostWidgetLayout::Read(FuzzEditor::ToText(Input), Problems);
	Promise(Layout.IsValid() == Problems.IsEmpty(), "there is a layout, or a reason why not");
	for (const HostWidgetLayout::FProblem& Problem : Problems)
	{
		Promise(!Problem.Message.IsEmpty(), "a message says what is wrong");
	}
	Promise(!Layout.IsValid() || HostWidgetLayout::GetParentClass(*Layout) != nullptr, "a layout has a class to be of");
}
