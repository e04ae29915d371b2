// Copyright Velmorant. All Rights Reserved.

#include "Kinds/BoolKind.h"

#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"
#include "Widgets/Input/SCheckBox.h"

namespace BoolKind
{
	ECheckBoxState GetState(TSharedRef<FPropertyNode> Node)
	{
		TArray<void*> Values;
		if (PropertyValue::FindOne(*Node, Values) != FPropertyAccess::Success)
		{
			return ECheckBoxState::Undetermined;
		}
		return FBoolProperty::GetPropertyValue(Values[0]) ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	}

	void SetState(ECheckBoxState State, TSharedRef<FPropertyNode> Node)
	{
		FPropertyChange Change(*Node);
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			FBoolProperty::SetPropertyValue(Change.GetNewValue(Index), State == ECheckBoxState::Checked);
		}
		Change.Apply(EPropertyValueSetFlags::DefaultFlags);
	}
}

TSharedRef<SWidget> FBoolKind::MakeValue(const TSharedRef<FPropertyNode>& Node) const
{
	// clang-format off
	return
		SNew(SCheckBox)
		.IsEnabled_Static(&PropertyWidgets::CanEdit, Node)
		.IsChecked_Static(&BoolKind::GetState, Node)
		.OnCheckStateChanged_Static(&BoolKind::SetState, Node);
	// clang-format on
}
