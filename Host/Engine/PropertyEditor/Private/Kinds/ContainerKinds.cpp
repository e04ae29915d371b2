// Copyright Velmorant. All Rights Reserved.

#include "Kinds/ContainerKinds.h"

#include "HostParts.h"
#include "IPropertyTypeCustomization.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyPlace.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace ContainerKinds
{
	FText GetElementCount(TSharedRef<FPropertyNode> Node)
	{
		TArray<void*> Values;
		const FPropertyAccess::Result Result = PropertyValue::FindOne(*Node, Values);
		if (Result != FPropertyAccess::Success)
		{
			return PropertyWidgets::GetTextInPlaceOfValue(Result);
		}
		const int32 Num = Node->GetChildren().Num();
		return Num == 1 ? LOCTEXT("OneElement", "1 element") : FText::Format(LOCTEXT("Elements", "{0} elements"), FText::AsNumber(Num));
	}

	FReply AddElement(TSharedRef<FPropertyNode> Node)
	{
		FPropertyChange Change(*Node); // nothing to do once the objects are gone
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			FScriptArrayHelper(CastFieldChecked<FArrayProperty>(Node->GetProperty()), Change.GetNewValue(Index)).AddValue();
		}
		Change.Apply(EPropertyValueSetFlags::DefaultFlags, EPropertyChangeType::ArrayAdd);
		return FReply::Handled();
	}

	FReply RemoveElements(TSharedRef<FPropertyNode> Node)
	{
		FPropertyChange Change(*Node);
		for (int32 Index = 0; Index < Change.Num(); ++Index)
		{
			Node->GetProperty()->ClearValue(Change.GetNewValue(Index));
		}
		Change.Apply(EPropertyValueSetFlags::DefaultFlags, EPropertyChangeType::ArrayClear);
		return FReply::Handled();
	}

	TSharedRef<SWidget> MakeElementButtons(const TSharedRef<FPropertyNode>& Node)
	{
		const TSharedRef<SHostPartList> Buttons = SNew(SHostPartList);
		// clang-format off
		Buttons->AddPart(
			SNew(SButton)
			.ToolTipText(LOCTEXT("AddElement", "Add Element"))
			.IsEnabled_Static(&PropertyWidgets::CanEdit, Node)
			.OnClicked_Static(&AddElement, Node));
		Buttons->AddPart(
			SNew(SButton)
			.ToolTipText(LOCTEXT("RemoveElements", "Remove All Elements"))
			.IsEnabled_Static(&PropertyWidgets::CanEdit, Node)
			.OnClicked_Static(&RemoveElements, Node));
		// clang-format on
		return Buttons;
	}
}

bool FContainerKind::IsShownWhole(const FProperty&) const
{
	return false;
}

TSharedRef<SWidget> FContainerKind::MakeValue(const TSharedRef<FPropertyNode>& Node) const
{
	return SNew(STextBlock).Text_Static(&ContainerKinds::GetElementCount, Node).Font(IPropertyTypeCustomizationUtils::GetRegularFont());
}

TSharedRef<SWidget> FArrayKind::MakeExtension(const TSharedRef<FPropertyNode>& Node) const
{
	const bool bCanHaveMore = !Node->GetProperty()->HasAnyPropertyFlags(CPF_EditFixedSize) && !Node->IsReadOnly();
	return bCanHaveMore ? ContainerKinds::MakeElementButtons(Node) : SNullWidget::NullWidget;
}

void FArrayKind::FitElements(const TSharedRef<FPropertyNode>& Node, const TArray<void*>& Values, TArray<TSharedRef<FPropertyNode>>& InOutElements) const
{
	const FArrayProperty* Array = CastFieldChecked<FArrayProperty>(Node->GetProperty());
	int32 Num = MAX_int32;
	for (const void* Value : Values)
	{
		Num = FMath::Min(Num, FScriptArrayHelper(Array, Value).Num());
	}
	if (InOutElements.Num() > Num)
	{
		InOutElements.RemoveAt(Num, InOutElements.Num() - Num);
	}
	while (InOutElements.Num() < Num)
	{
		InOutElements.Add(FPropertyNode::MakeBelow(Node, Array->Inner, MakeUnique<FIndexPlace>(*Array, InOutElements.Num())));
	}
}

/** Pointers into the first object's container. */
TArray<const void*> FKeyedKind::CollectCommonKeys(const UE::Reflection::FKeyedOps& Ops, const TArray<void*>& Values)
{
	TArray<const void*> Keys;
	Ops.ForEach(
		Values[0], [](void* Context, const void* EachKey, void*) { static_cast<TArray<const void*>*>(Context)->Add(EachKey); }, &Keys);
	for (void* Value : Values)
	{
		bool bSame = Ops.Num(Value) == Keys.Num();
		for (int32 Each = 0; Each < Keys.Num() && bSame; ++Each)
		{
			bSame = Ops.Find(Value, Keys[Each]) != nullptr;
		}
		if (!bSame)
		{
			return TArray<const void*>();
		}
	}
	return Keys;
}

void FKeyedKind::FitElements(const TSharedRef<FPropertyNode>& Node, const TArray<void*>& Values, TArray<TSharedRef<FPropertyNode>>& InOutElements) const
{
	const FLayout Layout = GetLayout(*Node->GetProperty());
	const TArray<TSharedRef<FPropertyNode>> Before = MoveTemp(InOutElements);
	InOutElements.Empty();
	for (const void* Key : CollectCommonKeys(Layout.Ops, Values))
	{
		const int32 Place = InOutElements.Num();
		if (Before.IsValidIndex(Place) && Before[Place]->GetPlace().IsOfKey(Key))
		{
			InOutElements.Add(Before[Place]);
			continue;
		}
		InOutElements.Add(FPropertyNode::MakeBelow(Node, &Layout.Element, MakeUnique<FKeyPlace>(Layout.Ops, Layout.Key, Key, Layout.bFixed)));
	}
}

FKeyedKind::FLayout FSetKind::GetLayout(const FProperty& Property) const
{
	const FSetProperty* Set = CastFieldChecked<FSetProperty>(&Property);
	return {Set->GetOps(), *Set->ElementProp, *Set->ElementProp, true};
}

FKeyedKind::FLayout FMapKind::GetLayout(const FProperty& Property) const
{
	const FMapProperty* Map = CastFieldChecked<FMapProperty>(&Property);
	return {Map->GetOps(), *Map->KeyProp, *Map->ValueProp, false};
}

#undef LOCTEXT_NAMESPACE
