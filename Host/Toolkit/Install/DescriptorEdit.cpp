// Copyright Velmorant. All Rights Reserved.

#include "Install/DescriptorEdit.h"

#include <algorithm>

namespace DescriptorEdit
{
	constexpr const char* Lists[] = {"Modules", "Plugins"};

	/** Null when it has none that can serve as a model. */
	const FPlacedJson* FindSample(const FPlacedJson& List)
	{
		const auto Found = std::find_if(List.Elements.rbegin(), List.Elements.rend(), [](const FPlacedJson& Each) { return !Each.Members.empty(); });
		return Found != List.Elements.rend() ? &*Found : nullptr;
	}

	/** What stands between the elements of a list. */
	std::string GetElementGap(std::string_view Text, const FPlacedJson& List)
	{
		const size_t Count = List.Elements.size();
		const size_t Before = Count > 1 ? List.Elements[Count - 2].Comma + 1 : List.Begin + 1;
		const std::string Gap = JsonInsert::GetGap(Text, Before, List.Elements.back().Begin);
		return Gap.empty() ? " " : Gap;
	}
}

FDescriptorEdit::FDescriptorEdit(std::string InText)
	: Text(std::move(InText))
{
	bReadable = Read();
}

bool FDescriptorEdit::Read()
{
	size_t Offset = 0;
	std::optional<FPlacedJson> Parsed = PlacedJson::Parse(Text, Offset, Reason);
	if (!Parsed.has_value())
	{
		return Fail(Offset, "not valid JSON: " + Reason);
	}
	Root = std::move(*Parsed);
	if (Root.Kind != FPlacedJson::EKind::Object)
	{
		return Fail(0, "the file must hold one JSON object in braces");
	}
	return std::all_of(std::begin(DescriptorEdit::Lists), std::end(DescriptorEdit::Lists), [this](const char* List) { return CheckList(List); });
}

bool FDescriptorEdit::CheckList(const std::string& List)
{
	const FPlacedMember* const Member = Root.Find(List);
	if (Member == nullptr)
	{
		return true;
	}
	if (Root.Count(List) > 1 || Member->Value.Kind != FPlacedJson::EKind::Array)
	{
		return Fail(Member->Begin, "\"" + List + "\" must be one list");
	}
	for (const FPlacedJson& Entry : Member->Value.Elements)
	{
		const FPlacedMember* const Name = Entry.Find("Name");
		if (Name == nullptr || Name->Value.Kind != FPlacedJson::EKind::Text || Entry.Count("Name") > 1)
		{
			return Fail(Entry.Begin, "each entry of \"" + List + "\" must be an object with one \"Name\"");
		}
		const bool bTwice = &Entry != FindEntry(Member->Value, Name->Value.Value);
		if (bTwice)
		{
			return Fail(Entry.Begin, "\"" + List + "\" has two entries for " + Name->Value.Value);
		}
	}
	return true;
}

bool FDescriptorEdit::Fail(size_t Offset, const std::string& InReason)
{
	Reason = InReason;
	ReasonLine = 1 + static_cast<int>(std::count(Text.begin(), Text.begin() + static_cast<std::ptrdiff_t>(Offset), '\n'));
	return false;
}

const FPlacedJson* FDescriptorEdit::FindEntry(const FPlacedJson& List, const std::string& Name) const
{
	const auto Found = std::find_if(List.Elements.begin(), List.Elements.end(), [&Name](const FPlacedJson& Each) {
		const FPlacedMember* const Own = Each.Find("Name");
		return Own != nullptr && PlacedJson::EqualsIgnoringCase(Own->Value.Value, Name); });
	return Found != List.Elements.end() ? &*Found : nullptr;
}

std::vector<std::pair<std::string, std::string>> FDescriptorEdit::GetEntries(const std::string& List, const std::string& Member) const
{
	std::vector<std::pair<std::string, std::string>> Result;
	const FPlacedMember* const Found = Root.Find(List);
	for (const FPlacedJson& Entry : Found != nullptr ? Found->Value.Elements : std::vector<FPlacedJson>())
	{
		const FPlacedMember* const Value = Entry.Find(Member);
		Result.emplace_back(Entry.Find("Name")->Value.Value, Value != nullptr ? Value->Value.Value : std::string());
	}
	return Result;
}

void FDescriptorEdit::Require(const FDescriptorEntry& Entry)
{
	const FPlacedMember* const List = Root.Find(Entry.List);
	const FPlacedJson* Found = List != nullptr ? FindEntry(List->Value, Entry.Name) : nullptr;
	if (Found == nullptr)
	{
		AddEntry(Entry);
		return;
	}
	while (bReadable && CompleteEntry(*Found, Entry)) // one change at a time: each moves what stands behind it
	{
		Found = FindEntry(Root.Find(Entry.List)->Value, Entry.Name);
	}
}

/** @return whether something was lacking. */
bool FDescriptorEdit::CompleteEntry(const FPlacedJson& Object, const FDescriptorEntry& Entry)
{
	for (const FJsonMemberText& Wanted : Entry.Members)
	{
		const FPlacedMember* const Member = Object.Find(Wanted.Name);
		const bool bMayMiss = std::find(Entry.Optional.begin(), Entry.Optional.end(), Wanted.Name) != Entry.Optional.end();
		if (Member == nullptr && !bMayMiss)
		{
			const FObjectStyle Style = JsonInsert::GetStyle(Text, Object);
			Change(JsonInsert::Append(Text, Object.Members.back().Value, Style.Between, JsonInsert::WriteMember(Style, Wanted)), Entry.List + ": " + Entry.Name + " gets \"" + Wanted.Name + "\": " + Wanted.Value);
			return true;
		}
		const std::string Written = Member != nullptr ? Text.substr(Member->Value.Begin, Member->Value.End - Member->Value.Begin) : Wanted.Value;
		if (!PlacedJson::EqualsIgnoringCase(Written, Wanted.Value))
		{
			std::string NewText = Text;
			NewText.replace(Member->Value.Begin, Written.size(), Wanted.Value);
			Change(NewText, Entry.List + ": \"" + Wanted.Name + "\" of " + Entry.Name + " becomes " + Wanted.Value + ", was " + Written);
			return true;
		}
	}
	return false;
}

void FDescriptorEdit::AddEntry(const FDescriptorEntry& Entry)
{
	const FPlacedMember* const List = Root.Find(Entry.List);
	const FPlacedMember* const OtherList = Root.Find(Entry.List == "Modules" ? "Plugins" : "Modules");
	const FPlacedJson* Sample = List != nullptr ? DescriptorEdit::FindSample(List->Value) : nullptr;
	if (Sample == nullptr && OtherList != nullptr)
	{
		Sample = DescriptorEdit::FindSample(OtherList->Value);
	}
	const std::string What = Entry.List + ": " + Entry.Name + " is added";
	if (List == nullptr)
	{
		AddList(Entry, OtherList);
	}
	else if (List->Value.Elements.empty())
	{
		Change(JsonInsert::Fill(Text, List->Value, GetIndent(2), WriteEntry(Entry, Sample), GetIndent(1)), What);
	}
	else
	{
		Change(JsonInsert::Append(Text, List->Value.Elements.back(), DescriptorEdit::GetElementGap(Text, List->Value), WriteEntry(Entry, Sample)), What);
	}
}

/** @param Sample an entry that it is to look like; null for the way that the engine writes one */
std::string FDescriptorEdit::WriteEntry(const FDescriptorEntry& Entry, const FPlacedJson* Sample) const
{
	FObjectStyle Style;
	if (Sample != nullptr)
	{
		Style = JsonInsert::GetStyle(Text, *Sample);
	}
	else
	{
		const bool bLines = GetIndent(1) != " ";
		Style = {GetIndent(3), "", " ", bLines ? GetIndent(3) : " ", GetIndent(2)};
	}
	std::vector<FJsonMemberText> Members = {{"Name", "\"" + Entry.Name + "\""}};
	Members.insert(Members.end(), Entry.Members.begin(), Entry.Members.end());
	return JsonInsert::WriteObject(Style, Members);
}

void FDescriptorEdit::AddList(const FDescriptorEntry& Entry, const FPlacedMember* OtherList)
{
	const FPlacedJson* const Sample = OtherList != nullptr ? DescriptorEdit::FindSample(OtherList->Value) : nullptr;
	std::string Open = GetIndent(2);
	std::string Close = GetIndent(1);
	if (Sample != nullptr)
	{
		const FPlacedJson& Last = OtherList->Value.Elements.back();
		Open = JsonInsert::GetGap(Text, OtherList->Value.Begin + 1, OtherList->Value.Elements.front().Begin);
		Close = JsonInsert::GetGap(Text, std::max(Last.End, Last.Comma == FPlacedJson::Nowhere ? 0 : Last.Comma + 1), OtherList->Value.End - 1);
	}
	const FJsonMemberText Member{Entry.List, "[" + Open + WriteEntry(Entry, Sample) + Close + "]"};
	const std::string What = Entry.List + ": " + Entry.Name + " is added";
	if (Root.Members.empty())
	{
		const FObjectStyle Style{"", "", " ", "", ""};
		Change(JsonInsert::Fill(Text, Root, GetIndent(1), JsonInsert::WriteMember(Style, Member), GetIndent(0)), What);
		return;
	}
	const FObjectStyle Style = JsonInsert::GetStyle(Text, Root);
	Change(JsonInsert::Append(Text, Root.Members.back().Value, Style.Between, JsonInsert::WriteMember(Style, Member)), What);
}

/** Before what stands at that depth: a line break and blanks, or one blank in a document on one line. */
std::string FDescriptorEdit::GetIndent(int Depth) const
{
	if (Root.Members.empty())
	{
		return "\n" + std::string(static_cast<size_t>(Depth), '\t');
	}
	const std::string Gap = JsonInsert::GetGap(Text, Root.Begin + 1, Root.Members.front().Begin);
	const size_t Break = Gap.find('\n');
	if (Break == std::string::npos)
	{
		return " ";
	}
	std::string Result = Gap.substr(0, Break + 1);
	for (int Index = 0; Index < Depth; ++Index)
	{
		Result += Gap.substr(Break + 1);
	}
	return Result;
}

void FDescriptorEdit::Change(std::string NewText, const std::string& What)
{
	Text = std::move(NewText);
	Changes.push_back(What);
	bReadable = Read();
}
