// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/** Something in a data file is not as it must be; what() says where and what. Never leaves the reader. */
class FServiceDocumentError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/**
 * What a data file says: its values in one list, in the order of the file, and its texts in one string. So a large file needs few
 * allocations.
 */
class FServiceDocument
{
public:
	/** Throws an FServiceDocumentError for what is no JSON. */
	explicit FServiceDocument(std::string_view Json);

private:
	friend class FServiceDocumentBuilder;
	friend class FServiceDocumentValue;

	enum class EKind : uint8
	{
		Object,
		Array,
		Text,
		Integer,
		Float,
		Other // true, false, null
	};

	/** A piece of Texts, with a null character behind it. */
	struct FPiece
	{
		uint32 Start;
		uint32 Length;
	};

	struct FValue
	{
		EKind Kind = EKind::Other;
		uint32 End = 0; // index behind the last value in this one
		FPiece Name = {}; // of a member of an object
		union
		{
			FPiece Text; // of a text
			double Number = 0.0; // of a number; exact for all whole numbers of 32 bits
		};
	};

	std::string_view GetText(FPiece Piece) const { return std::string_view(Texts).substr(Piece.Start, Piece.Length); }

	std::vector<FValue> Values; // never empty; the first is the document itself
	std::string Texts;
};

/**
 * One value of a data file together with where it stands, so that every complaint can name its place. Refers to the value that it
 * was got from, which must outlive it.
 *
 * Each Get… throws FServiceDocumentError when the value is missing or of another kind.
 */
class FServiceDocumentValue
{
public:
	explicit FServiceDocumentValue(const FServiceDocument& InDocument)
		: Document(InDocument)
		, Value(InDocument.Values[0])
	{
	}

	/** Refuses members that nobody reads: they are most likely misspelt. */
	void AllowMembers(std::initializer_list<std::string_view> Names) const;

	bool Has(std::string_view Name) const { return Find(Name) != nullptr; }
	FServiceDocumentValue Get(std::string_view Name) const;
	FString GetString(std::string_view Name) const { return Get(Name).AsString(); }

	/** The text may be missing, then Default is returned. */
	FString GetString(std::string_view Name, const FString& Default) const { return Has(Name) ? GetString(Name) : Default; }

	/** Not empty. */
	FString GetName(std::string_view Name) const;

	/** At least zero. */
	double GetSeconds(std::string_view Name, double Default) const;

	int32 GetInteger(std::string_view Name) const;
	FString AsString() const;

	/** Calls Function with each element of the array; a missing array has none. */
	template<typename FunctionType>
	void ForEach(std::string_view Name, FunctionType&& Function) const
	{
		if (!Has(Name))
		{
			return;
		}
		const FServiceDocumentValue Array = Get(Name);
		Array.RequireArray();
		size_t Index = 0;
		for (const FServiceDocument::FValue* Element = Array.GetFirst(); Element < Array.GetEnd(); Element = GetNext(Element))
		{
			Function(FServiceDocumentValue(Array, *Element, {}, Index++));
		}
	}

	[[noreturn]] void Fail(const std::string& Problem) const;

private:
	static constexpr int32 MaxTextLength = 1000; // key codes and names are looked up as FName, which holds 1023 characters

	FServiceDocumentValue(const FServiceDocumentValue& InParent, const FServiceDocument::FValue& InValue, std::string_view InName, size_t InIndex)
		: Document(InParent.Document)
		, Value(InValue)
		, Parent(&InParent)
		, OwnName(InName)
		, OwnIndex(InIndex)
	{
	}

	//~ The values directly in this one
	const FServiceDocument::FValue* GetFirst() const { return &Value + 1; }
	const FServiceDocument::FValue* GetEnd() const { return &Document.Values[0] + Value.End; }
	const FServiceDocument::FValue* GetNext(const FServiceDocument::FValue* Child) const { return &Document.Values[0] + Child->End; }

	/** Null for a member that is not there. Of several with that name, the last one counts. */
	const FServiceDocument::FValue* Find(std::string_view Name) const;

	void RequireObject() const;
	void RequireArray() const;

	/** JSON pointer; empty for the document itself. */
	std::string GetPointer() const;

	const FServiceDocument& Document;
	const FServiceDocument::FValue& Value;
	const FServiceDocumentValue* Parent = nullptr;
	std::string_view OwnName; // in an object
	size_t OwnIndex = 0; // in an array
};
