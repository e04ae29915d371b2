// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"

class FInternationalization
{
public:
	/** What the macros below expand to. */
	static FText ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
	{
		return FText::AsLocalizable_Advanced(InNamespace, InKey, InTextLiteral);
	}
};

// Localizable texts from literals without TEXT(). LOCTEXT takes its namespace from LOCTEXT_NAMESPACE, which a .cpp defines and undefines.
#define LOCTEXT(InKey, InTextLiteral) \
	FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(LOCTEXT_NAMESPACE), TEXT(InKey))
#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) \
	FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(TEXT(InTextLiteral))
