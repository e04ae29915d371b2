// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"

class FProperty;
class UScriptStruct;

/** Structs that are one JSON string instead of an object of their fields: paths, identifiers, points in time. */
struct FPackageStructFormat
{
	FString (*Write)(const void* Value);

	/** False when the text is no value of the type. Value may be null: then the text is only checked. */
	bool (*Read)(const FString& Text, void* Value);

	const TCHAR* Example; // for the message to whoever wrote something else

	/** Null for structs that are stored field by field. */
	static const FPackageStructFormat* Find(const UScriptStruct* Struct);
};

/** Which properties are part of a file: all but transient ones and delegates, whose bindings belong to a session. */
bool IsStoredInPackages(const FProperty* Property);
