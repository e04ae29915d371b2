// Copyright Velmorant. All Rights Reserved.

#include "Kinds/PropertyKind.h"

#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"

FPropertyAccess::Result FPropertyKind::ReadObject(const FPropertyNode&, UObject*&) const
{
	return FPropertyAccess::Fail;
}

FPropertyAccess::Result FPropertyKind::WriteObject(FPropertyNode&, UObject*, EPropertyValueSetFlags::Type) const
{
	return FPropertyAccess::Fail;
}

bool FPropertyKind::Import(const FProperty& Property, const FString& Text, void* Value, UObject* Owner) const
{
	const TCHAR* Rest = Property.ImportText_Direct(*Text, Value, Owner, PPF_PropertyWindow);
	return Rest != nullptr && FString(Rest).TrimStartAndEnd().IsEmpty() && !IsEndless(Property, Value);
}

FPropertyAccess::Result FPropertyKind::ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32 PortFlags) const
{
	return PropertyValue::ReadText(Node, OutText, PortFlags);
}

FString FPropertyKind::GetEditText(const FPropertyNode& Node, const void* Value) const
{
	FString Text;
	Node.GetProperty()->ExportTextItem_Direct(Text, Value, Value, Node.GetObjects()[0], PPF_PropertyWindow);
	return Text;
}

void FPropertyKind::CommitText(FPropertyNode& Node, const FText& Typed) const
{
	PropertyValue::WriteText(Node, Typed.ToString(), EPropertyValueSetFlags::DefaultFlags);
}

bool FPropertyKind::IsEndless(const FProperty&, const void*) const
{
	return false;
}

bool FPropertyKind::IsShownWhole(const FProperty&) const
{
	return true;
}

TSharedRef<SWidget> FPropertyKind::MakeValue(const TSharedRef<FPropertyNode>& Node) const
{
	return PropertyWidgets::MakeTextBox(Node);
}

TSharedRef<SWidget> FPropertyKind::MakeExtension(const TSharedRef<FPropertyNode>&) const
{
	return SNullWidget::NullWidget;
}

const UStruct* FPropertyKind::FindStruct(const FProperty&) const
{
	return nullptr;
}

void FPropertyKind::FitElements(const TSharedRef<FPropertyNode>&, const TArray<void*>&, TArray<TSharedRef<FPropertyNode>>&) const
{
}

TArray<FName> FPropertyKind::GetTypeNames(const FProperty& Property) const
{
	return {Property.GetClass()->GetFName()};
}
