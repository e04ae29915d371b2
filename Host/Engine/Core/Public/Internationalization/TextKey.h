// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** A namespace or a key of a localizable text. Case matters. */
class FTextKey
{
public:
	FTextKey() = default;
	FTextKey(const TCHAR* InText)
		: Text(InText)
	{
	}
	FTextKey(const FString& InText)
		: Text(InText)
	{
	}
	FTextKey(FString&& InText)
		: Text(MoveTemp(InText))
	{
	}
	explicit FTextKey(FStringView InText)
		: Text(InText)
	{
	}

	const FString& ToString() const { return Text; }
	bool IsEmpty() const { return Text.IsEmpty(); }

	friend bool operator==(const FTextKey& A, const FTextKey& B) { return A.Text.Equals(B.Text); }
	friend uint32 GetTypeHash(const FTextKey& Key) { return GetTypeHash(Key.Text); }

private:
	FString Text;
};

/** What a localizable text is called. */
class FTextId
{
public:
	FTextId() = default;
	FTextId(const FTextKey& InNamespace, const FTextKey& InKey)
		: Namespace(InNamespace)
		, Key(InKey)
	{
	}

	bool IsEmpty() const { return Namespace.IsEmpty() && Key.IsEmpty(); }

	friend bool operator==(const FTextId& A, const FTextId& B) { return A.Namespace == B.Namespace && A.Key == B.Key; }

private:
	FTextKey Namespace;
	FTextKey Key;
};
