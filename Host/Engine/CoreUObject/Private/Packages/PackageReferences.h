// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"

class UObject;
class UPackage;

/** References to a package as documents hold them: texts that name it or something in it. */
namespace PackageReferences
{
	/** Whether a text of the document, at any depth, names the package. */
	bool Mentions(const FJson& Document, const FString& PackageName);

	/** Puts the new name in the place of the old one, that of the asset behind it included. @return whether anything changed */
	bool Replace(FJson& Document, const FString& OldPackage, const FString& NewPackage);

	/** The same for what an object in memory holds; references to objects have followed by themselves. */
	bool Replace(UObject* Object, const FString& OldPackage, const FString& NewPackage);
}
