// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/ContainersFwd.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Internationalization/TextKey.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <type_traits>

class FFormatArgumentValue;
class FTextFormat;

using FFormatNamedArguments = TMap<FString, FFormatArgumentValue>;
using FFormatOrderedArguments = TArray<FFormatArgumentValue>;

namespace ETextFlag
{
	enum Type
	{
		Transient = 1 << 0,
		CultureInvariant = 1 << 1,
		ConvertedProperty = 1 << 2,
		Immutable = 1 << 3,
		InitializedFromString = 1 << 4
	};
}

namespace ETextComparisonLevel
{
	enum Type
	{
		Default, // as Tertiary
		Primary, // letters; Host: as Secondary, accents always count
		Secondary, // letters and accents
		Tertiary, // and case
		Quaternary,
		Quinary
	};
}

namespace UE::Text::Private
{
	struct FTextData;
}

/**
 * What people read: a display string, and where it came from. Immutable and shared: cheap to copy.
 *
 * Host: there are no translations; a localizable text displays its source string. There is no operator== on purpose: say whether
 * the display strings (EqualTo) or the texts themselves (IdenticalTo) are meant.
 */
class FText
{
public:
	FText() = default;

	static const FText& GetEmpty();

	/** A text that somebody typed or that was put together: the same in every culture until edited. */
	static FText FromString(const FString& String);
	static FText FromString(FString&& String);
	static FText FromString(FStringView String);
	static FText FromString(const TCHAR* String) { return FromString(FStringView(String)); }
	static FText FromName(const FName& Name);

	/** A text that is never to be translated. */
	static FText AsCultureInvariant(const TCHAR* String) { return AsCultureInvariant(FStringView(String)); }
	static FText AsCultureInvariant(FStringView String) { return AsCultureInvariant(FString(String)); }
	static FText AsCultureInvariant(FString&& String);
	static FText AsCultureInvariant(FText Text);

	/** NSLOCTEXT for values that are known at run time only. */
	static FText AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, const TCHAR* String);
	static FText AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, FStringView String);
	static FText AsLocalizable_Advanced(const FTextKey& Namespace, const FTextKey& Key, FString&& String);

	/** English digit groups, and up to three digits behind the point: "1,234.5". */
	static FText AsNumber(float Value);
	static FText AsNumber(double Value);
	static FText AsNumber(int8 Value);
	static FText AsNumber(int16 Value);
	static FText AsNumber(int32 Value);
	static FText AsNumber(int64 Value);
	static FText AsNumber(uint8 Value);
	static FText AsNumber(uint16 Value);
	static FText AsNumber(uint32 Value);
	static FText AsNumber(uint64 Value);

	/** {Name}: names ignore case. Placeholders without an argument stay as they are; a backtick takes the meaning from { and }. */
	static FText Format(FTextFormat Fmt, const FFormatNamedArguments& InArguments);
	/** {0}, {1}, … */
	static FText Format(FTextFormat Fmt, const FFormatOrderedArguments& InArguments);
	/** With the arguments in order: texts and numbers. A string or a name has to be made a text first. */
	template<typename... ArgTypes>
	requires(std::is_constructible_v<FFormatArgumentValue, ArgTypes>&&...) static FText Format(FTextFormat Fmt, ArgTypes&&... Args);

	const FString& ToString() const;

	bool IsEmpty() const { return ToString().IsEmpty(); }
	bool IsCultureInvariant() const { return HasFlag(ETextFlag::CultureInvariant); }

	/** Compares what is displayed. */
	int32 CompareTo(const FText& Other, ETextComparisonLevel::Type Level = ETextComparisonLevel::Default) const;
	bool EqualTo(const FText& Other, ETextComparisonLevel::Type Level = ETextComparisonLevel::Default) const { return CompareTo(Other, Level) == 0; }
	/** Whether both are copies of one text, or the same localizable text. */
	bool IdenticalTo(const FText& Other) const;

private:
	friend class FTextInspector;

	explicit FText(UE::Text::Private::FTextData&& InData);

	static FText MakeGenerated(FString&& Display);
	bool HasFlag(ETextFlag::Type Flag) const;

	TSharedPtr<const UE::Text::Private::FTextData> Data; // null: empty
};

/** Where a text came from. */
class FTextInspector
{
public:
	/** Unset for texts that cannot be translated. */
	static TOptional<FString> GetNamespace(const FText& Text);
	static TOptional<FString> GetKey(const FText& Text);
	static FTextId GetTextId(const FText& Text);
	static const FString* GetSourceString(const FText& Text);
};

/** Texts as assets and configuration files write them: NSLOCTEXT("Namespace", "Key", "Source"), INVTEXT("Text"), or just the text. */
class FTextStringHelper
{
public:
	static void WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes = false);
	/** @return behind what was read; null, and nothing written, when Buffer holds no text. Without quotes a plain text is all of Buffer. */
	static const TCHAR* ReadFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace = nullptr, const TCHAR* PackageNamespace = nullptr, bool bRequiresQuotes = false);
};

#include "Internationalization/TextFormatter.h"
