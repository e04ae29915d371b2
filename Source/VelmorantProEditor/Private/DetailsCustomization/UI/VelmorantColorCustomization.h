// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPropertyTypeCustomization.h"
#include "Input/Reply.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

class FPropertyEditorModule;
class SSearchableComboBox;
class SWidget;

/**
 * Shows an FVelmorantColorHandler in the details panel: the palette colour is picked from a list with swatches, which shows one
 * of the palette's two families at a time. The chosen colour lives only in the property.
 */
class FVelmorantColorCustomization : public IPropertyTypeCustomization
{
public:
	static void Register(FPropertyEditorModule& PropertyEditor);
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

	//~ Begin IPropertyTypeCustomization
	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& CustomizationUtils) override;
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& CustomizationUtils) override;
	//~ End IPropertyTypeCustomization

private:
	/** The palette's families of colours. */
	enum class EColorFamily : uint8
	{
		Simple,
		Style
	};

	FName GetColorID() const;
	void SetColorID(const FString& InValue) const;
	bool GetUseContrast() const;
	void SetUseContrast(bool bContrastValue) const;

	/** A colour of the palette, always opaque. Magenta marks a missing palette. */
	FSlateColor GetColorByID(FName ColorID, bool bUseContrast) const;

	/** The colour that the property yields: the free one, or the palette's. */
	FSlateColor GetPreviewColor() const;

	/** Shows the family that has the current colour; the simple colours when none does. */
	void ChooseFirstFamily();
	TArray<FName> GetFamilyColors(EColorFamily InFamily) const;
	void FillOptions();
	FReply OnSwitchFamily();

	void AddColorRow(IDetailChildrenBuilder& ChildBuilder);
	void AddContrastRow(IDetailChildrenBuilder& ChildBuilder);
	TSharedRef<SWidget> MakeColorComboBox();
	TSharedRef<SWidget> MakeSwatch(const TAttribute<FSlateColor>& Color) const;
	TSharedRef<SWidget> MakeSwatchAndText(const TAttribute<FSlateColor>& Color, const TAttribute<FText>& Text) const;
	TSharedRef<SWidget> MakeOptionWidget(TSharedPtr<FString> Option);
	FSlateColor GetOptionColor(TSharedPtr<FString> Option) const;
	FSlateColor GetCurrentColor() const;
	FText GetCurrentText() const;
	void OnOptionsOpening();
	void OnColorChosen(TSharedPtr<FString> Option, ESelectInfo::Type SelectInfo) const;
	ECheckBoxState GetContrastState() const;
	void OnContrastStateChanged(ECheckBoxState NewState) const;

	TSharedPtr<IPropertyHandle> StructHandle;
	TSharedPtr<IPropertyHandle> ColorModeHandle;
	TSharedPtr<IPropertyHandle> ColorHandler; // "ColorID"
	TSharedPtr<IPropertyHandle> ContrastHandler;
	TSharedPtr<IPropertyHandle> ColorCustomHandle;
	TSharedPtr<IPropertyHandle> OverrideOpacityHandle;
	TSharedPtr<IPropertyHandle> OpacityOverrideHandle;

	EColorFamily Family = EColorFamily::Simple;
	TArray<TSharedPtr<FString>> ColorOptions;
	TSharedPtr<SSearchableComboBox> ColorComboBox;
};
