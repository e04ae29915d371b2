// Copyright Velmorant. All Rights Reserved.

#include "DetailsCustomization/UI/VelmorantColorCustomization.h"

#include "DetailWidgetRow.h"
#include "DetailsCustomization/UI/VelmorantPropertyOptions.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailPropertyRow.h"
#include "PropertyHandle.h"
#include "SSearchableComboBox.h"
#include "Styling/AppStyle.h"
#include "VelmorantColorHandler.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace VelmorantColorCustomization
{
	// Slate units.
	constexpr float SwatchSize = 25.0f;
	constexpr float SwatchPadding = 2.0f;
}

void FVelmorantColorCustomization::CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils&)
{
	StructHandle = PropertyHandle;
	ColorModeHandle = PropertyHandle->GetChildHandle("ColorMode");
	ColorHandler = PropertyHandle->GetChildHandle("ColorID");
	ContrastHandler = PropertyHandle->GetChildHandle("bUseContrast");
	ColorCustomHandle = PropertyHandle->GetChildHandle("ColorCustom");
	OverrideOpacityHandle = PropertyHandle->GetChildHandle("bOverrideOpacity");
	OpacityOverrideHandle = PropertyHandle->GetChildHandle("OpacityOverride");

	// clang-format off
	HeaderRow
	.NameContent()
	[
		PropertyHandle->CreatePropertyNameWidget()
	]
	.ValueContent()
	[
		MakeSwatch(TAttribute<FSlateColor>::CreateSP(this, &FVelmorantColorCustomization::GetPreviewColor))
	];
	// clang-format on
}

void FVelmorantColorCustomization::CustomizeChildren(TSharedRef<IPropertyHandle>, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils&)
{
	const auto AddDefaultRow = [&ChildBuilder](const TSharedPtr<IPropertyHandle>& Handle) {
		if (Handle.IsValid())
		{
			ChildBuilder.AddProperty(Handle.ToSharedRef());
		}
	};

	// All six rows stay, whatever the mode: a designer can prepare the one colour while the other is in use.
	AddDefaultRow(ColorModeHandle);
	AddColorRow(ChildBuilder);
	AddContrastRow(ChildBuilder);
	AddDefaultRow(ColorCustomHandle);
	AddDefaultRow(OverrideOpacityHandle);
	AddDefaultRow(OpacityOverrideHandle);
}

void FVelmorantColorCustomization::AddColorRow(IDetailChildrenBuilder& ChildBuilder)
{
	if (!ColorHandler.IsValid())
	{
		return;
	}
	ChooseFirstFamily();
	FillOptions();

	// clang-format off
	ChildBuilder.AddProperty(ColorHandler.ToSharedRef())
	.CustomWidget()
	.NameContent()
	[
		VelmorantPropertyOptions::MakeText(LOCTEXT("Color", "Color"))
	]
	.ValueContent()
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		[
			MakeColorComboBox()
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(SButton)
			.ToolTipText(LOCTEXT("SwitchColors", "Switch between colors"))
			.OnClicked(this, &FVelmorantColorCustomization::OnSwitchFamily)
			[
				SNew(SImage)
				.Image(FAppStyle::GetBrush("Icons.Refresh"))
			]
		]
	];
	// clang-format on
}

void FVelmorantColorCustomization::AddContrastRow(IDetailChildrenBuilder& ChildBuilder)
{
	if (!ContrastHandler.IsValid())
	{
		return;
	}

	// clang-format off
	ChildBuilder.AddProperty(ContrastHandler.ToSharedRef())
	.CustomWidget()
	.NameContent()
	[
		ContrastHandler->CreatePropertyNameWidget()
	]
	.ValueContent()
	[
		SNew(SCheckBox)
		.IsChecked(this, &FVelmorantColorCustomization::GetContrastState)
		.OnCheckStateChanged(this, &FVelmorantColorCustomization::OnContrastStateChanged)
	];
	// clang-format on
}

TSharedRef<SWidget> FVelmorantColorCustomization::MakeColorComboBox()
{
	// clang-format off
	return SAssignNew(ColorComboBox, SSearchableComboBox)
		.OptionsSource(&ColorOptions)
		.OnComboBoxOpening(this, &FVelmorantColorCustomization::OnOptionsOpening)
		.OnGenerateWidget(this, &FVelmorantColorCustomization::MakeOptionWidget)
		.OnSelectionChanged(this, &FVelmorantColorCustomization::OnColorChosen)
		[
			MakeSwatchAndText(
				TAttribute<FSlateColor>::CreateSP(this, &FVelmorantColorCustomization::GetCurrentColor),
				TAttribute<FText>::CreateSP(this, &FVelmorantColorCustomization::GetCurrentText))
		];
	// clang-format on
}

TSharedRef<SWidget> FVelmorantColorCustomization::MakeSwatch(const TAttribute<FSlateColor>& Color) const
{
	// clang-format off
	return SNew(SBox)
		.WidthOverride(VelmorantColorCustomization::SwatchSize)
		.HeightOverride(VelmorantColorCustomization::SwatchSize)
		[
			SNew(SBorder)
			.BorderImage(FAppStyle::GetBrush("WhiteBrush"))
			.BorderBackgroundColor(Color)
		];
	// clang-format on
}

TSharedRef<SWidget> FVelmorantColorCustomization::MakeSwatchAndText(const TAttribute<FSlateColor>& Color, const TAttribute<FText>& Text) const
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(VelmorantColorCustomization::SwatchPadding)
		[
			MakeSwatch(Color)
		]
		+ SHorizontalBox::Slot()
		.VAlign(VAlign_Center)
		[
			VelmorantPropertyOptions::MakeText(Text)
		];
	// clang-format on
}

TSharedRef<SWidget> FVelmorantColorCustomization::MakeOptionWidget(TSharedPtr<FString> Option)
{
	using FColorAttribute = TAttribute<FSlateColor>;
	return MakeSwatchAndText(
		FColorAttribute::Create(FColorAttribute::FGetter::CreateSP(this, &FVelmorantColorCustomization::GetOptionColor, Option)),
		FText::FromString(*Option));
}

FSlateColor FVelmorantColorCustomization::GetOptionColor(TSharedPtr<FString> Option) const
{
	return GetColorByID(FName(*Option), GetUseContrast());
}

FSlateColor FVelmorantColorCustomization::GetCurrentColor() const
{
	return GetColorByID(GetColorID(), GetUseContrast());
}

FText FVelmorantColorCustomization::GetCurrentText() const
{
	return VelmorantPropertyOptions::GetValueText(ColorHandler);
}

void FVelmorantColorCustomization::OnOptionsOpening()
{
	// The palette may have changed since, and the property may have been written elsewhere: the list tells only of a choice that
	// differs from the one before.
	FillOptions();
	ColorComboBox->RefreshOptions();
	ColorComboBox->SetSelectedItem(VelmorantPropertyOptions::Find(ColorOptions, GetColorID()), ESelectInfo::Direct);
}

void FVelmorantColorCustomization::OnColorChosen(TSharedPtr<FString> Option, ESelectInfo::Type SelectInfo) const
{
	if (Option.IsValid() && SelectInfo != ESelectInfo::Direct)
	{
		SetColorID(*Option);
	}
}

ECheckBoxState FVelmorantColorCustomization::GetContrastState() const
{
	bool bUnused = false;
	if (ContrastHandler->GetValue(bUnused) == FPropertyAccess::MultipleValues)
	{
		return ECheckBoxState::Undetermined;
	}
	return GetUseContrast() ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

void FVelmorantColorCustomization::OnContrastStateChanged(ECheckBoxState NewState) const
{
	SetUseContrast(NewState == ECheckBoxState::Checked);
}

#undef LOCTEXT_NAMESPACE
