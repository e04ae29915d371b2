// Copyright Velmorant. All Rights Reserved.

#include "Icons/IconFamiliesReader.h"

#include <algorithm>

namespace IconFamiliesReader
{
	const TCHAR* const ReinstallRemedy = TEXT("install the package @fortawesome/fontawesome-free 6.7.2 again");

	FString ToText(const std::string& Utf8)
	{
		return FString(UTF8_TO_TCHAR(Utf8.c_str()));
	}

	const TCHAR* GetKindText(int32 Kind)
	{
		const TCHAR* const Texts[] = {TEXT("an object"), TEXT("an array"), TEXT("text")};
		return Texts[Kind];
	}
}

bool FIconFamiliesReader::Read(std::string_view Json, TArray<FPackageIcon>& OutIcons, FFontIconImportError& OutError)
{
	OutIcons.Reset();
	FIconFamiliesReader Reader(Json, OutIcons, OutError);
	bool bRead = nlohmann::json::sax_parse(Json.begin(), Json.end(), static_cast<nlohmann::json_sax<nlohmann::json>*>(&Reader));
	if (bRead && OutIcons.IsEmpty())
	{
		OutError.Reason = TEXT("there are no icons in it");
		OutError.Remedy = IconFamiliesReader::ReinstallRemedy;
		bRead = false;
	}
	if (!bRead)
	{
		OutIcons.Reset();
	}
	return bRead;
}

const FIconFamiliesReader::FRule& FIconFamiliesReader::Classify()
{
	static const FRule Root = {ENode::Ignored, nullptr, ENode::Root, EKind::Object};
	static const FRule Ignored = {ENode::Ignored, nullptr, ENode::Ignored, EKind::Other};
	static const FRule Rules[] = {
		{ENode::Root, nullptr, ENode::Icon, EKind::Object},
		{ENode::Icon, "unicode", ENode::CodePoint, EKind::Text},
		{ENode::Icon, "label", ENode::Label, EKind::Text},
		{ENode::Icon, "search", ENode::Search, EKind::Object},
		{ENode::Search, "terms", ENode::SearchTerms, EKind::Array},
		{ENode::SearchTerms, nullptr, ENode::SearchTerm, EKind::Text},
		{ENode::Icon, "familyStylesByLicense", ENode::Licenses, EKind::Object},
		{ENode::Licenses, "free", ENode::FreeStyles, EKind::Array},
		{ENode::FreeStyles, nullptr, ENode::FreeStyle, EKind::Object},
		{ENode::FreeStyle, "family", ENode::Family, EKind::Text},
		{ENode::FreeStyle, "style", ENode::Style, EKind::Text},
	};
	if (Levels.IsEmpty())
	{
		return Root;
	}
	FLevel& Level = Levels.Last();
	Level.Index += Level.Node == ENode::SearchTerms || Level.Node == ENode::FreeStyles ? 1 : 0;
	for (const FRule& Rule : Rules)
	{
		if (Rule.Parent == Level.Node && (Rule.Key == nullptr || Level.Key == Rule.Key))
		{
			return Rule;
		}
	}
	return Ignored;
}

bool FIconFamiliesReader::key(string_t& Key)
{
	if (IgnoredDepth == 0)
	{
		Levels.Last().Key = MoveTemp(Key);
	}
	return true;
}

bool FIconFamiliesReader::string(string_t& Text)
{
	if (IgnoredDepth > 0)
	{
		return true;
	}
	const FRule& Rule = Classify();
	if (Rule.Child == ENode::Ignored)
	{
		return true;
	}
	if (Rule.Kind != EKind::Text)
	{
		return FailKind(Rule.Kind, "text");
	}
	const FString Value = IconFamiliesReader::ToText(Text);
	switch (Rule.Child)
	{
		case ENode::CodePoint:
			return TakeCodePoint(Value);
		case ENode::Family:
			return TakeStyleName(Icon.Styles.Last().Family, Value);
		case ENode::Style:
			return TakeStyleName(Icon.Styles.Last().Style, Value);
		case ENode::Label:
			Icon.Label = Value;
			return true;
		default:
			if (!Value.IsEmpty())
			{
				Icon.SearchTags.Add(Value);
			}
			return true;
	}
}

bool FIconFamiliesReader::TakeOther(const char* Found)
{
	if (IgnoredDepth > 0)
	{
		return true;
	}
	const FRule& Rule = Classify();
	return Rule.Child == ENode::Ignored || FailKind(Rule.Kind, Found);
}

bool FIconFamiliesReader::Open(EKind Kind)
{
	if (IgnoredDepth > 0)
	{
		++IgnoredDepth;
		return true;
	}
	const FRule& Rule = Classify();
	if (Rule.Child == ENode::Ignored)
	{
		IgnoredDepth = 1;
		return true;
	}
	if (Rule.Kind != Kind)
	{
		return FailKind(Rule.Kind, Kind == EKind::Object ? "an object" : "an array");
	}
	if (Rule.Child == ENode::Icon && !StartIcon())
	{
		return false;
	}
	if (Rule.Child == ENode::FreeStyles)
	{
		bHasFreeStyles = true;
	}
	if (Rule.Child == ENode::FreeStyle)
	{
		Icon.Styles.AddDefaulted();
	}
	Levels.Add({Rule.Child, {}, -1});
	return true;
}

bool FIconFamiliesReader::Close()
{
	if (IgnoredDepth > 0)
	{
		--IgnoredDepth;
		return true;
	}
	const ENode Node = Levels.Pop().Node;
	switch (Node)
	{
		case ENode::Icon:
			return EndIcon();
		case ENode::FreeStyle:
			return EndFreeStyle();
		default:
			return true;
	}
}

bool FIconFamiliesReader::StartIcon()
{
	Icon = FPackageIcon();
	bHasFreeStyles = false;
	Icon.Name = IconFamiliesReader::ToText(Levels.Last().Key);
	if (Icon.Name.IsEmpty() || Icon.Name.Len() >= NAME_SIZE || FName(Icon.Name).IsNone())
	{
		return Fail(TEXT("this cannot be an icon's name"));
	}
	bool bTwice = false;
	Names.Add(FName(Icon.Name), &bTwice);
	return !bTwice || Fail(TEXT("this icon comes twice; letter case does not tell names apart"));
}

bool FIconFamiliesReader::EndIcon()
{
	if (Icon.Character.IsEmpty())
	{
		return Fail(TEXT("it has no \"unicode\""));
	}
	if (Icon.Label.IsEmpty())
	{
		return Fail(TEXT("it has no \"label\""));
	}
	if (!bHasFreeStyles)
	{
		return Fail(TEXT("it has no \"familyStylesByLicense\" with \"free\" styles"));
	}
	if (!Icon.Styles.IsEmpty())
	{
		Icons.Add(MoveTemp(Icon));
	}
	return true;
}

bool FIconFamiliesReader::EndFreeStyle()
{
	const FPackageStyle Style = Icon.Styles.Last();
	if (Style.Family.IsEmpty() || Style.Style.IsEmpty())
	{
		return Fail(TEXT("a style needs \"family\" and \"style\""));
	}
	if (Icon.Styles.Find(Style) != Icon.Styles.Num() - 1)
	{
		Icon.Styles.Pop(); // said twice
	}
	return true;
}

bool FIconFamiliesReader::TakeCodePoint(const FString& Text)
{
	Icon.Character = FPackageIcon::ParseCharacter(Text);
	return !Icon.Character.IsEmpty() || Fail(FString::Printf(TEXT("\"%s\" is no character's number"), *Text.Left(40)), TEXT("write it hexadecimal, such as \"f015\""));
}

bool FIconFamiliesReader::TakeStyleName(FString& OutName, const FString& Text)
{
	if (!FPackageStyle::IsValidPart(Text))
	{
		return Fail(FString::Printf(TEXT("\"%s\" cannot be its name"), *Text.Left(60)), TEXT("use lower-case letters, digits and hyphens"));
	}
	OutName = Text;
	return true;
}

bool FIconFamiliesReader::parse_error(std::size_t Position, const std::string&, const nlohmann::json::exception& Exception)
{
	const size_t Byte = std::min(Position, Json.size());
	const auto Line = 1 + std::count(Json.begin(), Json.begin() + static_cast<std::ptrdiff_t>(Byte), '\n');
	Error.Place = FString::Printf(TEXT("line %d, byte %d"), static_cast<int32>(Line), static_cast<int32>(Byte));
	const bool bNumber = dynamic_cast<const nlohmann::json::out_of_range*>(&Exception) != nullptr;
	Error.Reason = bNumber ? TEXT("this is no valid JSON, the number there is out of range") : TEXT("this is no valid JSON, what stands there is not expected");
	Error.Remedy = IconFamiliesReader::ReinstallRemedy;
	return false;
}

FString FIconFamiliesReader::GetField() const
{
	FString Field;
	for (int32 Index = 1; Index < Levels.Num(); ++Index)
	{
		const FLevel& Level = Levels[Index];
		if (Level.Index >= 0)
		{
			Field += FString::Printf(TEXT("[%d]"), Level.Index);
		}
		else if (!Level.Key.empty())
		{
			Field += (Field.IsEmpty() ? TEXT("") : TEXT(".")) + IconFamiliesReader::ToText(Level.Key);
		}
	}
	return Field;
}

bool FIconFamiliesReader::Fail(const FString& Reason, const FString& Remedy)
{
	if (!Levels.IsEmpty())
	{
		Error.Place = FString::Printf(TEXT("icon \"%s\""), *IconFamiliesReader::ToText(Levels[0].Key).Left(60));
		const FString Field = GetField();
		Error.Place += Field.IsEmpty() ? FString() : TEXT(", ") + Field;
	}
	Error.Reason = Reason;
	Error.Remedy = Remedy.IsEmpty() ? FString(IconFamiliesReader::ReinstallRemedy) : Remedy;
	return false;
}

bool FIconFamiliesReader::FailKind(EKind Wanted, const char* Found)
{
	return Fail(FString::Printf(TEXT("this must be %s, not %s"), IconFamiliesReader::GetKindText(static_cast<int32>(Wanted)), *IconFamiliesReader::ToText(Found)));
}
