// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

/** A brush by style set and key, looked up when it is needed: a set may be registered after the icon was made. */
struct SLATECORE_API FSlateIcon
{
	FSlateIcon() = default;
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName);
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName, const FName& InSmallStyleName);

	bool IsSet() const { return bIsSet; }
	const FName& GetStyleSetName() const { return StyleSetName; }
	const FName& GetStyleName() const { return StyleName; }

	/** The brush; the empty brush when the icon is unset or its set or key unknown. Never null. */
	const FSlateBrush* GetIcon() const;

	friend bool operator==(const FSlateIcon& A, const FSlateIcon& B)
	{
		return A.bIsSet == B.bIsSet && A.StyleSetName == B.StyleSetName && A.StyleName == B.StyleName;
	}

private:
	FName StyleSetName;
	FName StyleName;
	FName SmallStyleName;
	bool bIsSet = false;
};
