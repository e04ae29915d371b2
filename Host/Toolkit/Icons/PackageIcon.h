// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** A style as the package names it, in lower case. */
struct FPackageStyle
{
	FString Family; // "classic" for one
	FString Style; // "solid" for one

	/** Styles become names of typefaces and parts of file names: lower-case letters, digits and hyphens. */
	static bool IsValidPart(const FString& Text);

	bool operator==(const FPackageStyle& Other) const { return Family == Other.Family && Style == Other.Style; }

	/** As the project names it: "Solid", "SharpSolid". */
	FName GetName() const;
};

/** An icon as the package describes it. */
struct FPackageIcon
{
	FString Name;
	FString Label;
	FString Character; // one, as a surrogate pair where it lies beyond U+FFFF
	TArray<FPackageStyle> Styles; // those in which the free fonts have it; never empty
	TSet<FString> SearchTags;

	/** The character of a hexadecimal number such as "f015"; empty when it is none. */
	static FString ParseCharacter(const FString& Hexadecimal);
};
