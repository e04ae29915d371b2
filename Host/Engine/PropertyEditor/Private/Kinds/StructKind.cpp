// Copyright Velmorant. All Rights Reserved.

#include "Kinds/StructKind.h"

#include "Kinds/TypeNames.h"
#include "UObject/Package.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Values/PropertyWidgets.h"
#include "Widgets/Layout/SBorder.h"

namespace StructKind
{
	const UScriptStruct* GetStruct(const FProperty& Property)
	{
		return CastFieldChecked<FStructProperty>(&Property)->Struct;
	}

	FSlateColor GetColor(TSharedRef<FPropertyNode> Node)
	{
		TArray<void*> Values;
		if (PropertyValue::FindOne(*Node, Values) != FPropertyAccess::Success)
		{
			return FSlateColor(FLinearColor::Black);
		}
		const bool bLinear = GetStruct(*Node->GetProperty()) == TBaseStructure<FLinearColor>::Get();
		return FSlateColor(bLinear ? *static_cast<const FLinearColor*>(Values[0]) : FLinearColor(*static_cast<const FColor*>(Values[0])));
	}
}

bool FStructKind::IsEndless(const FProperty& Property, const void* Value) const
{
	for (const FProperty* Member : TFieldRange<FProperty>(StructKind::GetStruct(Property)))
	{
		if (Of(Member).IsEndless(*Member, Member->ContainerPtrToValuePtr<void>(Value)))
		{
			return true;
		}
	}
	return false;
}

bool FStructKind::IsShownWhole(const FProperty& Property) const
{
	return StructKind::GetStruct(Property)->GetOutermost() == TBaseStructure<FVector>::Get()->GetOutermost();
}

TSharedRef<SWidget> FStructKind::MakeValue(const TSharedRef<FPropertyNode>& Node) const
{
	return IsShownWhole(*Node->GetProperty()) ? PropertyWidgets::MakeTextBox(Node) : SNullWidget::NullWidget;
}

TSharedRef<SWidget> FStructKind::MakeExtension(const TSharedRef<FPropertyNode>& Node) const
{
	const UScriptStruct* Struct = StructKind::GetStruct(*Node->GetProperty());
	if (Struct == TBaseStructure<FLinearColor>::Get() || Struct == TBaseStructure<FColor>::Get())
	{
		return SNew(SBorder).BorderBackgroundColor_Static(&StructKind::GetColor, Node);
	}
	return SNullWidget::NullWidget;
}

const UStruct* FStructKind::FindStruct(const FProperty& Property) const
{
	return StructKind::GetStruct(Property);
}

TArray<FName> FStructKind::GetTypeNames(const FProperty& Property) const
{
	return TypeNames::GetChain(StructKind::GetStruct(Property));
}
