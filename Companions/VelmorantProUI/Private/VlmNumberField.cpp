// Copyright Velmorant. All Rights Reserved.

#include "VlmNumberField.h"

#include <charconv>
#include <limits>

#define LOCTEXT_NAMESPACE "VelmorantProUI"

namespace VlmNumberField
{
	template<typename NumberType>
	FString ToDigits(NumberType Number)
	{
		char Digits[512]; // enough for any number without exponent
		const std::to_chars_result End = std::to_chars(Digits, Digits + sizeof(Digits) - 1, Number, std::chars_format::fixed);
		*End.ptr = 0;
		return FString(Digits);
	}
}

TSharedRef<SWidget> UVlmNumberField::RebuildWidget()
{
	OnTextCommitted.AddUniqueDynamic(this, &UVlmNumberField::ReceivedTextCommitted);
	return Super::RebuildWidget();
}

TOptional<double> UVlmNumberField::ReadNumber(FText& OutError) const
{
	const FString Entered = GetText().ToString().TrimStartAndEnd();
	if (Entered.IsEmpty())
	{
		OutError = bWhole ? LOCTEXT("EnterWholeNumber", "Enter a whole number") : LOCTEXT("EnterNumber", "Enter a number");
		return {};
	}
	bool bHasDigit = false; // a lone point may pass for numeric
	for (const TCHAR Character : Entered)
	{
		bHasDigit |= FChar::IsDigit(Character);
	}
	if (!bHasDigit || !Entered.IsNumeric() || (bWhole && Entered.Contains(TEXT("."))))
	{
		OutError = FText::Format(bWhole ? LOCTEXT("NoWholeNumber", "'{0}' is not a whole number") : LOCTEXT("NoNumber", "'{0}' is not a number"), GetText());
		return {};
	}
	const double Number = FCString::Atod(*Entered);
	const double Largest = bWhole ? static_cast<double>(std::numeric_limits<int32>::max()) : static_cast<double>(std::numeric_limits<float>::max());
	if (Number > Largest || Number < -Largest)
	{
		OutError = FText::Format(LOCTEXT("TooLarge", "'{0}' is too large"), GetText());
		return {};
	}
	return Number;
}

bool UVlmNumberField::CheckNumber()
{
	FText Error;
	const bool bNumber = ReadNumber(Error).IsSet();
	SetError(Error);
	return bNumber;
}

double UVlmNumberField::GetNumber() const
{
	FText Error;
	return ReadNumber(Error).Get(0.0);
}

void UVlmNumberField::SetNumber(double InNumber)
{
	SetDigits(VlmNumberField::ToDigits(InNumber));
}

void UVlmNumberField::SetSingleNumber(float InNumber)
{
	SetDigits(VlmNumberField::ToDigits(InNumber));
}

void UVlmNumberField::SetDigits(const FString& Digits)
{
	SetText(FText::FromString(Digits));
	ClearError();
}

void UVlmNumberField::ClearNumber()
{
	SetDigits(FString());
}

void UVlmNumberField::ReceivedTextCommitted(const FText& InText, ETextCommit::Type)
{
	if (InText.IsEmpty())
	{
		ClearError(); // nothing was entered; it counts as wrong when a number is asked for
		return;
	}
	CheckNumber();
}

#undef LOCTEXT_NAMESPACE
