// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostJsonMembers.h"

#include <cstddef>
#include <string>

using FJson = FHostJson;

/** Where a value stands in its document. Lives on the stack of whoever descends into the document: a chain up to the root. */
class FJsonPlace
{
public:
	FJsonPlace() = default;
	FJsonPlace(const FJsonPlace& InParent, const std::string& InKey)
		: Parent(&InParent)
		, Key(&InKey)
	{
	}
	FJsonPlace(const FJsonPlace& InParent, size_t InIndex)
		: Parent(&InParent)
		, Index(InIndex)
	{
	}

	/** As a JSON pointer; empty for the whole document. */
	FString ToString() const;

private:
	const FJsonPlace* Parent = nullptr;
	const std::string* Key = nullptr; // null: Index counts, or this is the root
	size_t Index = 0;
};

/** What is wrong with a document. */
struct FJsonProblem
{
	int32 Line = 0; // one-based; 0 when the place says more
	FString Pointer; // JSON pointer
	FString Message; // a sentence without its full stop
	FString Remedy;
};

namespace PackageJson
{
	/** Strict JSON; a key that occurs twice in one object is a problem too, since one of the values would be lost. */
	bool Parse(const std::string& Text, FJson& OutDocument, FJsonProblem& OutProblem);

	/** The string member "Class" of the document, read only as far as needed. False when it is not there or the text is broken before it. */
	bool ReadClass(const std::string& Text, std::string& OutClass);

	/** Tabs, one member a line, a final line end. False for text that is no valid Unicode. */
	bool Print(const FJson& Document, std::string& OutText);

	void Report(const FString& File, const FJsonProblem& Problem);

	FString ToString(const std::string& Utf8);
	std::string FromString(const FString& Text);
}
