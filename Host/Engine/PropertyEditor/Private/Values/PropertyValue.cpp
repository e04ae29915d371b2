// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyValue.h"

#include "Kinds/PropertyKind.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"

FPropertyAccess::Result PropertyValue::FindOne(const FPropertyNode& Node, TArray<void*>& OutValues)
{
	if (Node.IsRoot() || !Node.GetValues(OutValues))
	{
		OutValues.Empty();
		return FPropertyAccess::Fail;
	}
	for (int32 Index = 1; Index < OutValues.Num(); ++Index)
	{
		if (!Node.GetProperty()->Identical(OutValues[0], OutValues[Index]))
		{
			OutValues.Empty();
			return FPropertyAccess::MultipleValues;
		}
	}
	return FPropertyAccess::Success;
}

FPropertyAccess::Result PropertyValue::ReadText(const FPropertyNode& Node, FString& OutText, int32 PortFlags)
{
	TArray<void*> Values;
	const FPropertyAccess::Result Result = FindOne(Node, Values);
	if (Result == FPropertyAccess::Success)
	{
		FString Text;
		Node.GetProperty()->ExportTextItem_Direct(Text, Values[0], Values[0], Node.GetObjects()[0], PortFlags);
		OutText = Text;
	}
	return Result;
}

FPropertyAccess::Result PropertyValue::WriteText(FPropertyNode& Node, const FString& Text, EPropertyValueSetFlags::Type Flags)
{
	FPropertyChange Change(Node);
	const TArray<UObject*> Owners = Node.GetObjects();
	for (int32 Index = 0; Index < Change.Num(); ++Index)
	{
		if (!Node.GetKind().Import(*Node.GetProperty(), Text, Change.GetNewValue(Index), Owners[Index]))
		{
			return FPropertyAccess::Fail;
		}
	}
	return Change.Apply(Flags);
}
