// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

class FText;

/** Longest name, with its terminator. */
enum
{
	NAME_SIZE = 1024
};

#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_INTERNAL_TO_EXTERNAL(x) ((x)-1)
#define NAME_EXTERNAL_TO_INTERNAL(x) ((x) + 1)
#define NAME_NO_NUMBER NAME_INTERNAL_TO_EXTERNAL(NAME_NO_NUMBER_INTERNAL)

#define INVALID_NAME_CHARACTERS TEXT("\"' ,\n\r\t")
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_OBJECTPATH_CHARACTERS TEXT("\"' ,|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")

/** Names that exist before anybody asks for them. */
enum class EName : uint32
{
	None = 0
};

constexpr EName NAME_None = EName::None;

enum EFindName
{
	FNAME_Find, // NAME_None when nobody has made the name yet
	FNAME_Add
};

enum class ENameCase : uint8
{
	CaseSensitive,
	IgnoreCase
};

/** A text in the name table. The table belongs to the process and only grows. */
struct FNameEntryId
{
	constexpr FNameEntryId() = default;
	constexpr explicit FNameEntryId(uint32 InValue)
		: Value(InValue)
	{
	}

	constexpr bool IsNone() const { return Value == 0; }
	constexpr explicit operator bool() const { return Value != 0; }
	constexpr uint32 ToUnstableInt() const { return Value; }

	/** Any order that holds within the process. */
	constexpr bool FastLess(FNameEntryId Rhs) const { return Value < Rhs.Value; }

	friend constexpr bool operator==(FNameEntryId A, FNameEntryId B) { return A.Value == B.Value; }
	friend constexpr uint32 GetTypeHash(FNameEntryId Id) { return Id.Value * 2654435761u; }

private:
	uint32 Value = 0;
};

/**
 * An identifier: a text from the name table, and a number that "Text_<number>" is split into. Costs nothing to copy and to compare.
 *
 * Two names are equal when they differ in case only; each instance prints in the case it was made with. An empty text and "None" in
 * any case are NAME_None. Texts longer than 1023 characters are a fatal error.
 */
class FName
{
public:
	constexpr FName() = default;
	constexpr FName(EName InName)
		: ComparisonIndex(static_cast<uint32>(InName))
		, DisplayIndex(static_cast<uint32>(InName))
	{
	}
	constexpr FName(EName InName, int32 InNumber)
		: ComparisonIndex(static_cast<uint32>(InName))
		, Number(static_cast<uint32>(InNumber))
		, DisplayIndex(static_cast<uint32>(InName))
	{
	}
	/** The same text with another number, in the table's form: NAME_EXTERNAL_TO_INTERNAL. */
	constexpr FName(const FName& Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, Number(static_cast<uint32>(InNumber))
		, DisplayIndex(Other.DisplayIndex)
	{
	}

	/** A trailing "_<digits>" without leading zeros becomes the number. Null counts as empty; 8-bit strings are UTF-8. */
	FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	explicit FName(FStringView Name, EFindName FindType = FNAME_Add);
	explicit FName(const FString& Name, EFindName FindType = FNAME_Add);

	/** With an explicit number nothing is split. */
	FName(const TCHAR* Name, int32 InNumber);
	FName(const ANSICHAR* Name, int32 InNumber);

	constexpr bool IsNone() const { return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL; }
	/** Whether this refers into the name table. True for every name made through a constructor, NAME_None included. */
	bool IsValid() const;

	constexpr int32 GetNumber() const { return static_cast<int32>(Number); }
	constexpr void SetNumber(int32 NewNumber) { Number = static_cast<uint32>(NewNumber); }

	FString ToString() const;
	void AppendString(FString& Out) const;
	/** Without the number. */
	FString GetPlainNameString() const;

	constexpr bool IsEqual(const FName& Rhs, ENameCase CompareMethod = ENameCase::IgnoreCase, bool bCompareNumber = true) const
	{
		const bool bTextEqual = CompareMethod == ENameCase::IgnoreCase ? ComparisonIndex == Rhs.ComparisonIndex : DisplayIndex == Rhs.DisplayIndex;
		return bTextEqual && (!bCompareNumber || Number == Rhs.Number);
	}
	constexpr bool FastLess(const FName& Other) const
	{
		return ComparisonIndex == Other.ComparisonIndex ? Number < Other.Number : ComparisonIndex.FastLess(Other.ComparisonIndex);
	}

	friend constexpr bool operator==(FName A, FName B) { return A.ComparisonIndex == B.ComparisonIndex && A.Number == B.Number; }
	friend constexpr bool operator==(FName A, EName B) { return A == FName(B); }
	friend bool operator==(FName A, const TCHAR* B) { return A.EqualsText(FStringView(B)); }
	friend bool operator==(FName A, const ANSICHAR* B) { return A.EqualsText(FString(B)); }

	friend constexpr uint32 GetTypeHash(FName Name) { return GetTypeHash(Name.ComparisonIndex) + Name.Number; }

	/** Whether Name has none of InvalidChars and some text; if not, OutReason tells a person why. */
	static bool IsValidXName(FStringView Name, FStringView InvalidChars, FText* OutReason = nullptr);
	bool IsValidXName(FStringView InvalidChars = FStringView(INVALID_NAME_CHARACTERS), FText* OutReason = nullptr) const;

private:
	bool EqualsText(FStringView Text) const;

	FNameEntryId ComparisonIndex; // the text, whatever its case
	uint32 Number = NAME_NO_NUMBER_INTERNAL;
	FNameEntryId DisplayIndex; // the text in the case of this instance
};

/** Sorts names in any order that holds within the process. */
struct FNameFastLess
{
	constexpr bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
	constexpr bool operator()(FNameEntryId A, FNameEntryId B) const { return A.FastLess(B); }
};

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}
