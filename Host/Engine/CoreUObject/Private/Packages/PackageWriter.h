// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"
#include "UObject/ObjectMacros.h"

class UObject;
class UPackage;

/** Member names and constants of a package's document. */
namespace PackageFormat
{
	inline const char* const Class = "Class";
	inline const char* const Format = "Format";
	inline const char* const Objects = "Objects";
	inline const char* const Name = "Name";
	inline const char* const Outer = "Outer";
	inline const char* const Flags = "Flags";
	inline const char* const Properties = "Properties";

	inline const int32 CurrentFormat = 1;

	/** The name a file calls an object by in "Outer": names from the package down, joined by dots. Empty for the package. */
	FString PathInPackage(const UObject* Object);

	/** "Public|Standalone|Transactional", of the flags that files keep; "None" without any. */
	FString FlagsToText(EObjectFlags ObjectFlags);
	bool FlagsFromText(const FString& Text, EObjectFlags& OutFlags);

	/** The flags that objects have unless their entry says otherwise. */
	EObjectFlags GetUsualFlags(bool bTopLevel);
}

namespace PackageWriter
{
	/**
	 * The document of a package: its main asset, then all that this refers to within the package, owners before what they own.
	 * What nobody refers to any more is not part of it.
	 */
	FJson Write(UObject* MainAsset);
}
