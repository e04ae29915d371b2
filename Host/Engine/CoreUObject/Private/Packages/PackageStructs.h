// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"

class FProperty;
class UScriptStruct;

/** Structs that are one JSON string instead of an object of their fields: paths. Any text will do, as with the engine: a path may lead nowhere. */
struct FPackageStructFormat
{
	FString (*Write)(const void* Value);

	/** Value may be null: then the text is only looked at. */
	void (*Read)(const FString& Text, void* Value);

	/** Null for structs that are stored field by field. */
	static const FPackageStructFormat* Find(const UScriptStruct* Struct);
};

/** Which properties are part of a file: all but transient ones and delegates, whose bindings belong to a session. */
bool IsStoredInPackages(const FProperty* Property);
