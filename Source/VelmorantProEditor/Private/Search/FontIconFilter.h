// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Search/VelmorantTextSearch.h"
#include "Templates/Function.h"

/** Finds icons of a font by a part of their name or by a whole search word, letter case aside. */
class FFontIconFilter
{
public:
	/** An icon as far as it is looked for. Refers to what its owner has. */
	struct FIcon
	{
		FName Name;

		/** The styles in which the icon exists. */
		const TArray<FName>& Styles;

		/** Further words under which it is found. */
		const TSet<FString>& SearchTags;
	};

	/** Takes the icons in, in place of those before. Later changes of them are not noticed. */
	void SetIcons(int32 NumIcons, TFunctionRef<FIcon(int32 Icon)> GetIcon);

	/** @return the icons that exist in Style and match Text, as indices in ascending order; all of the style for an empty text */
	TArray<int32> Find(const FString& Text, FName Style) const;

private:
	TArray<int32> FindAll() const;
	TArray<int32> FindByText(const FString& Text) const;

	FVelmorantTextSearch Names;
	TMap<FString, TArray<int32>> IconsByTag;
	TArray<TArray<FName>> Styles; // of each icon
};
