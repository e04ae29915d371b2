// Copyright Velmorant. All Rights Reserved.

#include "Kinds/TextKind.h"

#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"

void FTextKind::CommitText(FPropertyNode& Node, const FText& Typed) const
{
	FPropertyChange Change(Node);
	for (int32 Index = 0; Index < Change.Num(); ++Index)
	{
		FTextProperty::SetPropertyValue(Change.GetNewValue(Index), Typed);
	}
	Change.Apply(EPropertyValueSetFlags::DefaultFlags);
}
