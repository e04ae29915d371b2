// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** Help for whoever mistyped a name. */
namespace Suggestions
{
	enum class EList
	{
		Yes,
		No // there are too many to be read
	};

	/** The name that Text most likely meant; null when none is like it. Letter case does not count. */
	const FString* FindClosest(const FString& Text, const TArray<FString>& Names);

	/**
	 * The message with what helps behind it: `… Did you mean "SummitButton"? There are: CloseButton, SummitButton`. As it was when there
	 * is no name to tell; long lists are cut.
	 */
	FString Append(const FString& Message, const FString& Text, const TArray<FString>& Names, EList List = EList::Yes);
}
