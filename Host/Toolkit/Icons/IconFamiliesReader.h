// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Icons/FontIconImporter.h"
#include "Icons/PackageIcon.h"

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

/**
 * Reads the icons out of the text of an icon-families.json.
 *
 * Takes the file as a stream of events and forgets at once what nobody asks for: four fifths of it are drawings.
 * Wants an object of icons by name, each with "unicode" (hexadecimal), "label", "familyStylesByLicense": {"free": [{"family",
 * "style"}]} and perhaps "search": {"terms": []}. An icon without free style is left out: no font of the package has it.
 */
class FIconFamiliesReader : private nlohmann::json_sax<nlohmann::json>
{
public:
	/** @param Json UTF-8. @return false with OutError, whose File is not set; OutIcons is empty then. */
	static bool Read(std::string_view Json, TArray<FPackageIcon>& OutIcons, FFontIconImportError& OutError);

private:
	/** What a value is, by where it stands. */
	enum class ENode : uint8
	{
		Root,
		Icon,
		CodePoint,
		Label,
		Search,
		SearchTerms,
		SearchTerm,
		Licenses,
		FreeStyles,
		FreeStyle,
		Family,
		Style,
		Ignored,
	};

	enum class EKind : uint8
	{
		Object,
		Array,
		Text,
		Other,
	};

	struct FRule
	{
		ENode Parent;
		const char* Key; // null: any key, or any element
		ENode Child;
		EKind Kind;
	};

	/** An object or array that is being read. */
	struct FLevel
	{
		ENode Node;
		std::string Key; // of its current member
		int32 Index = -1; // of its current element; -1 in objects
	};

	FIconFamiliesReader(std::string_view InJson, TArray<FPackageIcon>& OutIcons, FFontIconImportError& OutError)
		: Json(InJson)
		, Icons(OutIcons)
		, Error(OutError)
	{
	}

	//~ Begin json_sax
	bool null() override { return TakeOther("null"); }
	bool boolean(bool) override { return TakeOther("true or false"); }
	bool number_integer(number_integer_t) override { return TakeOther("a number"); }
	bool number_unsigned(number_unsigned_t) override { return TakeOther("a number"); }
	bool number_float(number_float_t, const string_t&) override { return TakeOther("a number"); }
	bool binary(binary_t&) override { return TakeOther("binary data"); }
	bool string(string_t& Text) override;
	bool key(string_t& Key) override;
	bool start_object(std::size_t) override { return Open(EKind::Object); }
	bool start_array(std::size_t) override { return Open(EKind::Array); }
	bool end_object() override { return Close(); }
	bool end_array() override { return Close(); }
	bool parse_error(std::size_t Position, const std::string& LastToken, const nlohmann::json::exception& Exception) override;
	//~ End json_sax

	/** What the value that comes now is; moves an array on to its next element. */
	const FRule& Classify();

	bool TakeOther(const char* Found);
	bool Open(EKind Kind);
	bool Close();
	bool StartIcon();
	bool EndIcon();
	bool EndFreeStyle();
	bool TakeCodePoint(const FString& Text);
	bool TakeStyleName(FString& OutName, const FString& Text);

	/** Where the current value stands within its icon: "search.terms[2]". */
	FString GetField() const;

	bool Fail(const FString& Reason, const FString& Remedy = FString());
	bool FailKind(EKind Wanted, const char* Found);

	const std::string_view Json;
	TArray<FPackageIcon>& Icons;
	FFontIconImportError& Error;
	TArray<FLevel> Levels;
	TSet<FName> Names; // of the icons so far; names ignore case
	int32 IgnoredDepth = 0; // open containers below the first ignored one, itself included
	FPackageIcon Icon; // being read
	bool bHasFreeStyles = false;
};
