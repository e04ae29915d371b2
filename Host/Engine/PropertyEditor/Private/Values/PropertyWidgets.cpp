// Copyright Velmorant. All Rights Reserved.

#include "Values/PropertyWidgets.h"

#include "HostParts.h"
#include "IPropertyTypeCustomization.h"
#include "UObject/Package.h"
#include "Values/PropertyChange.h"
#include "Values/PropertyNode.h"
#include "Values/PropertyValue.h"
#include "Values/SPropertyEnum.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace PropertyWidgets
{
	namespace
	{
		using FNode = TSharedRef<FPropertyNode>;

		/** What stands in a text box: numbers without needless digits, everything else in full. */
		FText GetEditText(FNode Node)
		{
			TArray<void*> Values;
			const FPropertyAccess::Result Result = PropertyValue::FindOne(*Node, Values);
			if (Result != FPropertyAccess::Success)
			{
				return Result == FPropertyAccess::MultipleValues ? GetMultipleValuesText() : FText::GetEmpty();
			}
			const FNumericProperty* Number = CastField<FNumericProperty>(Node->GetProperty());
			FString Text;
			if (Number != nullptr && Number->IsFloatingPoint())
			{
				Text = FString::SanitizeFloat(Number->GetFloatingPointPropertyValue(Values[0]));
			}
			else if (const FObjectPropertyBase* ObjectProperty = CastField<FObjectProperty>(Node->GetProperty()))
			{
				const UObject* Object = ObjectProperty->GetObjectPropertyValue(Values[0]);
				Text = Object != nullptr ? Object->GetPathName() : FString(TEXT("None"));
			}
			else
			{
				PropertyValue::ReadText(*Node, Text, PPF_PropertyWindow);
			}
			return FText::FromString(Text);
		}

		/** What is no value of the type leaves the old one. */
		void CommitText(const FText& Typed, ETextCommit::Type, FNode Node)
		{
			if (!Node->HasValues() || Typed.ToString().Equals(GetEditText(Node).ToString()))
			{
				return; // nothing was typed; above all, "Multiple Values" is no value
			}
			if (CastField<FTextProperty>(Node->GetProperty()) == nullptr)
			{
				PropertyValue::WriteText(*Node, Typed.ToString(), EPropertyValueSetFlags::DefaultFlags);
				return;
			}
			FPropertyChange Change(*Node);
			for (int32 Index = 0; Index < Change.Num(); ++Index)
			{
				FTextProperty::SetPropertyValue(Change.GetNewValue(Index), Typed);
			}
			Change.Apply(EPropertyValueSetFlags::DefaultFlags);
		}

		bool CanEdit(FNode Node)
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

		TSharedRef<SWidget> MakeTextBox(const FNode& Node)
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

		ECheckBoxState GetCheckState(FNode Node)
		{
			TArray<void*> Values;
			if (PropertyValue::FindOne(*Node, Values) != FPropertyAccess::Success)
			{
				return ECheckBoxState::Undetermined;
			}
			return FBoolProperty::GetPropertyValue(Values[0]) ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
		}

		void SetCheckState(ECheckBoxState State, FNode Node)
		{
			FPropertyChange Change(*Node);
			for (int32 Index = 0; Index < Change.Num(); ++Index)
			{
				FBoolProperty::SetPropertyValue(Change.GetNewValue(Index), State == ECheckBoxState::Checked);
			}
			Change.Apply(EPropertyValueSetFlags::DefaultFlags);
		}

		TSharedRef<SWidget> MakeCheckBox(const FNode& Node)
		{
			// clang-format off
			return
				SNew(SCheckBox)
				.IsEnabled_Static(&CanEdit, Node)
				.IsChecked_Static(&GetCheckState, Node)
				.OnCheckStateChanged_Static(&SetCheckState, Node);
			// clang-format on
		}

		bool IsStruct(const FProperty* Property, const UScriptStruct* Struct)
		{
			const FStructProperty* StructProperty = CastField<FStructProperty>(Property);
			return StructProperty != nullptr && StructProperty->Struct == Struct;
		}

		bool IsColor(const FProperty* Property)
		{
			return IsStruct(Property, TBaseStructure<FLinearColor>::Get()) || IsStruct(Property, TBaseStructure<FColor>::Get());
		}

		FSlateColor GetColor(FNode Node)
		{
			TArray<void*> Values;
			if (PropertyValue::FindOne(*Node, Values) != FPropertyAccess::Success)
			{
				return FSlateColor(FLinearColor::Black);
			}
			const bool bLinear = IsStruct(Node->GetProperty(), TBaseStructure<FLinearColor>::Get());
			return FSlateColor(bLinear ? *static_cast<const FLinearColor*>(Values[0]) : FLinearColor(*static_cast<const FColor*>(Values[0])));
		}

		TSharedRef<SWidget> MakeSwatch(const FNode& Node)
		{
			return SNew(SBorder).BorderBackgroundColor_Static(&GetColor, Node);
		}

		FText GetElementCount(FNode Node)
		{
			TArray<void*> Values;
			const FPropertyAccess::Result Result = PropertyValue::FindOne(*Node, Values);
			if (Result != FPropertyAccess::Success)
			{
				return Result == FPropertyAccess::MultipleValues ? GetMultipleValuesText() : FText::GetEmpty();
			}
			const int32 Num = Node->GetChildren().Num();
			return Num == 1 ? LOCTEXT("OneElement", "1 element") : FText::Format(LOCTEXT("Elements", "{0} elements"), FText::AsNumber(Num));
		}

		FReply AddElement(FNode Node)
		{
			FPropertyChange Change(*Node); // nothing to do once the objects are gone
			for (int32 Index = 0; Index < Change.Num(); ++Index)
			{
				FScriptArrayHelper(CastFieldChecked<FArrayProperty>(Node->GetProperty()), Change.GetNewValue(Index)).AddValue();
			}
			Change.Apply(EPropertyValueSetFlags::DefaultFlags, EPropertyChangeType::ArrayAdd);
			return FReply::Handled();
		}

		FReply RemoveElements(FNode Node)
		{
			FPropertyChange Change(*Node);
			for (int32 Index = 0; Index < Change.Num(); ++Index)
			{
				Node->GetProperty()->ClearValue(Change.GetNewValue(Index));
			}
			Change.Apply(EPropertyValueSetFlags::DefaultFlags, EPropertyChangeType::ArrayClear);
			return FReply::Handled();
		}

		TSharedRef<SWidget> MakeElementCount(const FNode& Node)
		{
			return SNew(STextBlock).Text_Static(&GetElementCount, Node).Font(IPropertyTypeCustomizationUtils::GetRegularFont());
		}

		bool CanHaveMore(const FPropertyNode& Node)
		{
			const FProperty* Property = Node.GetProperty();
			return Property->IsA<FArrayProperty>() && !Property->HasAnyPropertyFlags(CPF_EditFixedSize) && !Node.IsReadOnly();
		}

		TSharedRef<SWidget> MakeElementButtons(const FNode& Node)
		{
			const TSharedRef<SHostPartList> Buttons = SNew(SHostPartList);
			// clang-format off
			Buttons->AddPart(
				SNew(SButton)
				.ToolTipText(LOCTEXT("AddElement", "Add Element"))
				.IsEnabled_Static(&CanEdit, Node)
				.OnClicked_Static(&AddElement, Node));
			Buttons->AddPart(
				SNew(SButton)
				.ToolTipText(LOCTEXT("RemoveElements", "Remove All Elements"))
				.IsEnabled_Static(&CanEdit, Node)
				.OnClicked_Static(&RemoveElements, Node));
			// clang-format on
			return Buttons;
		}
	}

	FText GetMultipleValuesText()
	{
		return LOCTEXT("MultipleValues", "Multiple Values");
	}

	bool IsShownWhole(const FPropertyNode& Node)
	{
		const FStructProperty* StructProperty = CastField<FStructProperty>(Node.GetProperty());
		return StructProperty == nullptr ? !Node.IsContainer() : StructProperty->Struct->GetOutermost() == TBaseStructure<FVector>::Get()->GetOutermost();
	}

	TSharedRef<SWidget> MakeName(const TSharedRef<FPropertyNode>& Node, const FText& NameOverride, const FText& ToolTipOverride)
	{
		const bool bKnown = Node->HasValues() && !Node->IsRoot();
		const FText Name = !NameOverride.IsEmpty() || !bKnown ? NameOverride : Node->GetDisplayName();
		FText ToolTip = ToolTipOverride;
		if (ToolTip.IsEmpty() && bKnown)
		{
			const bool bExplained = Node->GetProperty()->HasMetaData(TEXT("ToolTip"));
			// Under another name, a property can at least be told by its own.
			ToolTip = bExplained ? Node->GetProperty()->GetToolTipText() : NameOverride.IsEmpty() ? FText::GetEmpty()
																								  : Node->GetDisplayName();
		}
		return SNew(STextBlock).Text(Name).ToolTipText(ToolTip).Font(IPropertyTypeCustomizationUtils::GetRegularFont());
	}

	TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node)
	{
		if (!Node->HasValues() || Node->IsRoot())
		{
			return SNullWidget::NullWidget;
		}
		if (Node->GetProperty()->IsA<FBoolProperty>())
		{
			return MakeCheckBox(Node);
		}
		if (PropertyValue::GetEnum(*Node->GetProperty()) != nullptr)
		{
			return SNew(SPropertyEnum, Node).IsEnabled_Static(&CanEdit, Node);
		}
		if (Node->IsContainer())
		{
			return MakeElementCount(Node);
		}
		return IsShownWhole(*Node) ? MakeTextBox(Node) : SNullWidget::NullWidget;
	}

	TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node, EPropertyButtons Buttons)
	{
		if (!Node->HasValues() || Node->IsRoot())
		{
			return SNullWidget::NullWidget;
		}
		if (IsColor(Node->GetProperty()))
		{
			return MakeSwatch(Node);
		}
		return Buttons == EPropertyButtons::Show && CanHaveMore(*Node) ? MakeElementButtons(Node) : SNullWidget::NullWidget;
	}

	TSharedRef<SWidget> MakeWhole(const TSharedRef<FPropertyNode>& Node, EPropertyButtons Buttons)
	{
		const TSharedRef<SWidget> Value = MakeValue(Node);
		const TSharedRef<SWidget> Extension = MakeExtension(Node, Buttons);
		if (Extension == SNullWidget::NullWidget)
		{
			return Value;
		}
		const TSharedRef<SHostPartList> Parts = SNew(SHostPartList);
		Parts->AddPart(Value);
		Parts->AddPart(Extension);
		return Parts;
	}
}

#undef LOCTEXT_NAMESPACE
