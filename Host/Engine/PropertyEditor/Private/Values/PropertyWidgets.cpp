// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyWidgets.h"

#include "HostParts.h"
#include "IPropertyTypeCustomization.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace PropertyWidgets
{
	FText GetEditText(TSharedRef<FPropertyNode> Node)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = PropertyValue::FindOne(*Node, Values);
		return Result == FPropertyAccess::Success ? FText::FromString(Node->GetKind().GetEditText(*Node, Values[0])) : GetTextInPlaceOfValue(Result);
	}

	void CommitText(const FText& Typed, ETextCommit::Type, TSharedRef<FPropertyNode> Node)
	{
		if (!Node->HasValues() || Typed.ToString().Equals(GetEditText(Node).ToString()))
		{
			return; // nothing was typed; above all, "Multiple Values" is no value
		}
		Node->GetKind().CommitText(*Node, Typed);
	}

	FText FindToolTip(const FPropertyNode& Node, bool bRenamed)
	{
		if (Node.GetProperty()->HasMetaData(TEXT("ToolTip")))
		{
			return Node.GetProperty()->GetToolTipText();
		}
		// Under another name, a property can at least be told by its own.
		return bRenamed ? Node.GetPlace().GetDisplayName() : FText::GetEmpty();
	}
}

bool PropertyWidgets::CanEdit(TSharedRef<FPropertyNode> Node)
{
	for (const UObject* Object : Node->GetObjects())
	{
		if (!Object->CanEditChange(Node->GetProperty()))
		{
			return false;
		}
	}
	return Node->HasValues() && !Node->IsReadOnly();
}

FText PropertyWidgets::GetTextInPlaceOfValue(FPropertyAccess::Result Result)
{
	return Result == FPropertyAccess::MultipleValues ? LOCTEXT("MultipleValues", "Multiple Values") : FText::GetEmpty();
}

TSharedRef<SWidget> PropertyWidgets::MakeTextBox(const TSharedRef<FPropertyNode>& Node)
{
	// clang-format off
	return
		SNew(SEditableTextBox)
		.Text_Static(&GetEditText, Node)
		.Font(IPropertyTypeCustomizationUtils::GetRegularFont())
		.IsReadOnly_Lambda([Node]() { return !CanEdit(Node); })
		.OnTextCommitted_Static(&CommitText, Node);
	// clang-format on
}

TSharedRef<SWidget> PropertyWidgets::MakeName(const TSharedRef<FPropertyNode>& Node, const FText& NameOverride, const FText& ToolTipOverride)
{
	const bool bKnown = Node->HasValues() && !Node->IsRoot();
	const bool bRenamed = !NameOverride.IsEmpty();
	const FText Name = bRenamed || !bKnown ? NameOverride : Node->GetPlace().GetDisplayName();
	const FText ToolTip = ToolTipOverride.IsEmpty() && bKnown ? FindToolTip(*Node, bRenamed) : ToolTipOverride;
	return SNew(STextBlock).Text(Name).ToolTipText(ToolTip).Font(IPropertyTypeCustomizationUtils::GetRegularFont());
}

TSharedRef<SWidget> PropertyWidgets::MakeValue(const TSharedRef<FPropertyNode>& Node)
{
	return Node->HasValues() && !Node->IsRoot() ? Node->GetKind().MakeValue(Node) : SNullWidget::NullWidget;
}

TSharedRef<SWidget> PropertyWidgets::MakeExtension(const TSharedRef<FPropertyNode>& Node)
{
	return Node->HasValues() && !Node->IsRoot() ? Node->GetKind().MakeExtension(Node) : SNullWidget::NullWidget;
}

#undef LOCTEXT_NAMESPACE
