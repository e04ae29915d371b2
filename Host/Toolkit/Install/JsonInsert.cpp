// Copyright Velmorant. All Rights Reserved.

#include "Install/JsonInsert.h"

#include <algorithm>

namespace JsonInsert
{
	bool IsBlank(char C)
	{
		return C == ' ' || C == '\t' || C == '\r';
	}

	/** Behind the comments that stand on the same line; where nothing but blanks stands there, Offset itself. */
	size_t SkipComments(std::string_view Text, size_t Offset)
	{
		size_t Behind = Offset;
		for (size_t At = Offset; At < Text.size();)
		{
			if (Text.substr(At, 2) == "//")
			{
				At = std::min(Text.find('\n', At), Text.size());
				return At > 0 && Text[At - 1] == '\r' ? At - 1 : At;
			}
			if (Text.substr(At, 2) == "/*")
			{
				At = Text.find("*/", At) + 2;
				Behind = At;
			}
			else if (!IsBlank(Text[At]))
			{
				break;
			}
			else
			{
				++At;
			}
		}
		return Behind;
	}

	std::string GetGap(std::string_view Text, size_t Begin, size_t End)
	{
		const std::string_view Stretch = Text.substr(Begin, End - Begin);
		const size_t Break = Stretch.rfind('\n');
		if (Break == std::string_view::npos)
		{
			const bool bBlank = std::all_of(Stretch.begin(), Stretch.end(), IsBlank);
			return bBlank ? std::string(Stretch) : " ";
		}
		const size_t First = Break > 0 && Stretch[Break - 1] == '\r' ? Break - 1 : Break;
		size_t Last = Break + 1;
		while (Last < Stretch.size() && IsBlank(Stretch[Last]))
		{
			++Last;
		}
		return std::string(Stretch.substr(First, Last - First));
	}

	std::string GetLineEnd(std::string_view Text)
	{
		const size_t Break = Text.find('\n');
		return Break != std::string_view::npos && Break > 0 && Text[Break - 1] == '\r' ? "\r\n" : "\n";
	}

	FObjectStyle GetStyle(std::string_view Text, const FPlacedJson& Object)
	{
		const FPlacedMember& First = Object.Members.front();
		FObjectStyle Style;
		Style.Open = GetGap(Text, Object.Begin + 1, First.Begin);
		const size_t NameEnd = Text.rfind('"', First.Colon) + 1;
		Style.BeforeColon = GetGap(Text, NameEnd, First.Colon);
		Style.BehindColon = GetGap(Text, First.Colon + 1, First.Value.Begin);
		Style.Between = Style.Open.find('\n') != std::string::npos ? Style.Open : " ";
		if (Object.Members.size() > 1)
		{
			Style.Between = GetGap(Text, First.Value.Comma + 1, Object.Members[1].Begin);
		}
		const FPlacedJson& Last = Object.Members.back().Value;
		Style.Close = GetGap(Text, std::max(Last.End, Last.Comma == FPlacedJson::Nowhere ? 0 : Last.Comma + 1), Object.End - 1);
		return Style;
	}

	std::string WriteMember(const FObjectStyle& Style, const FJsonMemberText& Member)
	{
		return "\"" + Member.Name + "\"" + Style.BeforeColon + ":" + Style.BehindColon + Member.Value;
	}

	std::string WriteObject(const FObjectStyle& Style, const std::vector<FJsonMemberText>& Members)
	{
		std::string Text = "{" + Style.Open;
		for (const FJsonMemberText& Member : Members)
		{
			Text += (&Member == &Members.front() ? "" : "," + Style.Between) + WriteMember(Style, Member);
		}
		return Text + Style.Close + "}";
	}

	std::string Append(std::string Text, const FPlacedJson& Last, const std::string& Gap, const std::string& Item)
	{
		const bool bComma = Last.Comma != FPlacedJson::Nowhere;
		const size_t End = bComma ? Last.Comma + 1 : Last.End;
		const size_t Behind = Gap.find('\n') != std::string::npos ? SkipComments(Text, End) : End;
		Text.insert(Behind, Gap + Item + (bComma ? "," : ""));
		if (!bComma)
		{
			Text.insert(Last.End, ",");
		}
		return Text;
	}

	std::string Fill(std::string Text, const FPlacedJson& Container, const std::string& Open, const std::string& Item, const std::string& Close)
	{
		const size_t Begin = Container.Begin + 1;
		const size_t Length = Container.End - 1 - Begin;
		std::string Comments = Text.substr(Begin, Length);
		while (!Comments.empty() && (IsBlank(Comments.back()) || Comments.back() == '\n'))
		{
			Comments.pop_back();
		}
		// A comment up to the end of its line must end there.
		const bool bLineEnd = Comments.find("//") != std::string::npos && Open.find('\n') == std::string::npos;
		return Text.replace(Begin, Length, Comments + (bLineEnd ? GetLineEnd(Text) : "") + Open + Item + Close);
	}
}
