// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PackageJson.h"
#include "UObject/ObjectMacros.h"

#include <initializer_list>

class UClass;
class UObject;
class UPackage;

/**
 * Makes a package from its document: checks everything first, then makes all objects, then sets their values, so that objects may
 * refer to each other and a refused document leaves nothing behind.
 */
class FPackageReader
{
public:
	/** PackageName as the file has it. Document must outlive the reader. */
	FPackageReader(const FString& InPackageName, const FJson& InDocument)
		: PackageName(InPackageName)
		, Document(InDocument)
	{
	}

	/** Null, with the problem noted, when the document is refused. */
	UPackage* Read();

	const FJsonProblem& GetProblem() const { return Problem; }

	/** References that led nowhere; they are null in the objects. */
	const TArray<FJsonProblem>& GetUnresolved() const { return Unresolved; }

private:
	/** One element of "Objects". */
	struct FEntry
	{
		FName Name;
		FString Outer; // path in the package; empty for the package itself
		UClass* Class = nullptr;
		EObjectFlags Flags = RF_NoFlags;
		const FJson* Properties = nullptr;
		UObject* Object = nullptr;
		bool bCreated = false; // not made by its owner
	};

	bool CheckDocument();
	bool CheckEntry(const FJson& Json, const FJsonPlace& Place);
	bool CheckEntryName(const FEntry& Entry, const FString& Name, const FJsonPlace& Place);
	bool CheckMembers(const FJson& Json, const FJsonPlace& Place, std::initializer_list<const char*> Known);
	bool ReadString(const FJson& Json, const char* Member, const FJsonPlace& Place, FString& OutText);
	UClass* FindClass(const FString& ClassPath, const FJsonPlace& Place);

	bool MakeObjects(UPackage* Package);
	void SetValues();
	void TakeBack();

	/** Notes the problem; always false. */
	bool Refuse(const FJsonPlace& Place, const FString& Message, const FString& Remedy);
	bool RefuseEntry(const FEntry& Entry, const FString& Message, const FString& Remedy);

	/** Entry must be an element of Entries. */
	FString PointerTo(const FEntry& Entry) const;

	FString PackageName;
	const FJson& Document;
	TArray<FEntry> Entries;
	TMap<FString, int32> EntriesByPath; // path in the package; case does not count, as with names
	FJsonProblem Problem;
	TArray<FJsonProblem> Unresolved;
};
