// Copyright Velmorant. All Rights Reserved.

#include "DetailsCustomization/UI/VelmorantColorCustomization.h"

#include "DetailsCustomization/UI/VelmorantPropertyOptions.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "SSearchableComboBox.h"
#include "VelmorantColorHandler.h"
#include "VelmorantUISubsystem.h"

namespace VelmorantColorCustomization
{
	const FLinearColor MissingPalette(1.0f, 0.0f, 1.0f, 1.0f);
}

void FVelmorantColorCustomization::Register(FPropertyEditorModule& PropertyEditor)
{
	PropertyEditor.RegisterCustomPropertyTypeLayout(FVelmorantColorHandler::StaticStruct()->GetFName(), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FVelmorantColorCustomization::MakeInstance));
}

TSharedRef<IPropertyTypeCustomization> FVelmorantColorCustomization::MakeInstance()
{
	return MakeShareable(new FVelmorantColorCustomization);
}

FName FVelmorantColorCustomization::GetColorID() const
{
	FName CurrentPoseName = NAME_None;
	if (ColorHandler.IsValid())
	{
		ensure(ColorHandler->GetValue(CurrentPoseName) != FPropertyAccess::Fail);
	}
	return CurrentPoseName;
}

void FVelmorantColorCustomization::SetColorID(const FString& InValue) const
{
	if (ColorHandler.IsValid())
	{
		ensure(ColorHandler->SetValue(FName(InValue)) != FPropertyAccess::Fail);
	}
}

bool FVelmorantColorCustomization::GetUseContrast() const
{
	bool ContrastValue = false;
	if (ContrastHandler.IsValid())
	{
		ensure(ContrastHandler->GetValue(ContrastValue) != FPropertyAccess::Fail);
	}
	return ContrastValue;
}

void FVelmorantColorCustomization::SetUseContrast(bool bContrastValue) const
{
	if (ContrastHandler.IsValid())
	{
		ensure(ContrastHandler->SetValue(bContrastValue) != FPropertyAccess::Fail);
	}
}

FSlateColor FVelmorantColorCustomization::GetColorByID(FName ColorID, bool bUseContrast) const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	if (!UISubsystem)
	{
		return VelmorantColorCustomization::MissingPalette;
	}
	return UISubsystem->GetVelmorantColorByID(ColorID, bUseContrast).CopyWithNewOpacity(1.0f);
}

FSlateColor FVelmorantColorCustomization::GetPreviewColor() const
{
	uint8 ColorMode = 0;
	if (ColorModeHandle.IsValid() && ColorModeHandle->GetValue(ColorMode) == FPropertyAccess::Success && ColorMode == static_cast<uint8>(EVelmorantColorMode::Custom))
	{
		FString CustomText;
		FLinearColor CustomColor;
		if (ColorCustomHandle.IsValid() && ColorCustomHandle->GetValueAsFormattedString(CustomText) == FPropertyAccess::Success && CustomColor.InitFromString(CustomText))
		{
			return CustomColor;
		}
		return VelmorantColorCustomization::MissingPalette; // no colour to read, or several objects with different ones
	}

	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	return UISubsystem ? UISubsystem->GetVelmorantColorByID(GetColorID(), GetUseContrast()) : VelmorantColorCustomization::MissingPalette;
}

void FVelmorantColorCustomization::ChooseFirstFamily()
{
	const FName ColorID = GetColorID();
	const bool bOnlyStyle = GetFamilyColors(EColorFamily::Style).Contains(ColorID) && !GetFamilyColors(EColorFamily::Simple).Contains(ColorID);
	Family = bOnlyStyle ? EColorFamily::Style : EColorFamily::Simple;
}

TArray<FName> FVelmorantColorCustomization::GetFamilyColors(EColorFamily InFamily) const
{
	const UVelmorantUISubsystem* UISubsystem = UVelmorantUISubsystem::Get();
	if (!UISubsystem)
	{
		return {};
	}
	return InFamily == EColorFamily::Simple ? UISubsystem->GetAllColorSimpleOptions() : UISubsystem->GetAllColorStyleOptions();
}

void FVelmorantColorCustomization::FillOptions()
{
	ColorOptions = VelmorantPropertyOptions::Make(GetFamilyColors(Family));
}

FReply FVelmorantColorCustomization::OnSwitchFamily()
{
	Family = Family == EColorFamily::Simple ? EColorFamily::Style : EColorFamily::Simple;
	FillOptions();
	if (ColorComboBox.IsValid())
	{
		ColorComboBox->RefreshOptions();
	}
	return FReply::Handled(); // the chosen colour stays, even if the family now shown does not have it
}
