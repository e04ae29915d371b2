// Copyright Velmorant. All Rights Reserved.

#include "DetailsCustomization/UI/VelmorantPropertyOptions.h"

#include "PropertyHandle.h"
#include "Styling/AppStyle.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

TArray<TSharedPtr<FString>> VelmorantPropertyOptions::Make(const TArray<FName>& Names)
{
	TArray<TSharedPtr<FString>> Options;
	Options.Reserve(Names.Num());
	for (const FName& Name : Names)
	{
		Options.Add(MakeShared<FString>(Name.ToString()));
	}
	return Options;
}

TSharedPtr<FString> VelmorantPropertyOptions::Find(const TArray<TSharedPtr<FString>>& Options, FName Name)
{
	const FString Text = Name.ToString();
	const TSharedPtr<FString>* Option = Options.FindByPredicate([&Text](const TSharedPtr<FString>& Candidate) {
		return *Candidate == Text;
	});
	return Option ? *Option : nullptr;
}

FText VelmorantPropertyOptions::GetValueText(const TSharedPtr<IPropertyHandle>& Handle)
{
	FName Value;
	if (Handle.IsValid() && Handle->GetValue(Value) == FPropertyAccess::MultipleValues)
	{
		return LOCTEXT("MultipleValues", "Multiple Values");
	}
	return FText::FromName(Value);
}

TSharedRef<SWidget> VelmorantPropertyOptions::MakeText(const TAttribute<FText>& Text)
{
	// clang-format off
	return SNew(STextBlock)
		.Text(Text)
		.Font(FAppStyle::GetFontStyle("PropertyWindow.NormalFont"));
	// clang-format on
}

#undef LOCTEXT_NAMESPACE
