// Copyright Velmorant. All Rights Reserved.

#include "Config/IniSyntax.h"
#include "Files/TextFile.h"
#include "HostConfig.h"
#include "HostFiles.h"

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace SectionUpdate
{
	using FView = std::u16string_view;

	FView ToView(const FString& Text)
	{
		return FView(*Text, static_cast<size_t>(Text.Len()));
	}

	/** Lines that wait for their place, by folded key without prefix. */
	struct FPendingKey
	{
		struct FLine
		{
			FView Key; // with prefix
			FView Value;
		};

		std::vector<FLine> Lines;
		size_t NumPlaced = 0;
	};

	/** One run over a document that puts the wanted lines in place of those that are there. */
	class FUpdate
	{
	public:
		FUpdate(const FString& InSection, const TArray<TPair<FString, FString>>& Wanted, const TArray<FString>& OwnedKeys)
			: Section(InSection)
			, FoldedSection(IniSyntax::Fold(ToView(InSection)))
		{
			for (const FString& Key : OwnedKeys)
			{
				Pending[IniSyntax::Fold(ToView(Key))];
			}
			for (const TPair<FString, FString>& Line : Wanted)
			{
				std::u16string Name = IniSyntax::Fold(IniSyntax::WithoutPrefix(ToView(Line.Key)));
				Order.push_back(Name);
				Pending[std::move(Name)].Lines.push_back(FPendingKey::FLine{ToView(Line.Key), ToView(Line.Value)});
			}
		}

		/** The texts of new lines belong to this update. */
		std::vector<FTextLine> Run(const std::vector<FTextLine>& Lines)
		{
			FindLastLines(Lines);
			for (size_t Index = 0; Index < Lines.size(); Index = EndOfEntry(Lines, Index))
			{
				CopyEntry(Lines, Index);
			}
			if (SectionEnd == NoLine)
			{
				AddSection();
			}
			return std::move(Result);
		}

	private:
		static constexpr size_t NoLine = static_cast<size_t>(-1);

		/** Index behind an entry that begins here and the lines that continue it. */
		static size_t EndOfEntry(const std::vector<FTextLine>& Lines, size_t Index)
		{
			while (Index + 1 < Lines.size() && IniSyntax::IsContinued(Lines[Index].Text))
			{
				++Index;
			}
			return Index + 1;
		}

		static std::u16string Join(const std::vector<FTextLine>& Lines, size_t Index)
		{
			std::u16string Whole;
			for (const size_t End = EndOfEntry(Lines, Index); Index < End; ++Index)
			{
				const FView Text = Lines[Index].Text;
				Whole += Index + 1 < End ? Text.substr(0, Text.size() - 1) : Text;
			}
			return Whole;
		}

		/** Null for lines that are none of the caller's business. */
		FPendingKey* FindOwner(FView Line)
		{
			IniSyntax::TEntry<char16_t> Entry;
			if (!bInSection || !IniSyntax::ParseEntry(Line, Entry))
			{
				return nullptr;
			}
			const auto Found = Pending.find(IniSyntax::Fold(IniSyntax::WithoutPrefix(Entry.Key)));
			return Found != Pending.end() ? &Found->second : nullptr;
		}

		bool UpdateSectionState(FView Line)
		{
			FView Name;
			if (!IniSyntax::ParseHeader(Line, Name))
			{
				return false;
			}
			bInSection = IniSyntax::Fold(Name) == FoldedSection;
			return true;
		}

		/** Where each key and the section itself have their last line: more lines go behind it. */
		void FindLastLines(const std::vector<FTextLine>& Lines)
		{
			for (size_t Index = 0; Index < Lines.size(); Index = EndOfEntry(Lines, Index))
			{
				const FView Line = Lines[Index].Text;
				const bool bHeader = UpdateSectionState(Line);
				if (bInSection && (bHeader || !IniSyntax::Trim(Line).empty()))
				{
					SectionEnd = Index;
				}
				if (const FPendingKey* Key = FindOwner(Line))
				{
					LastLines[Key] = Index;
				}
			}
			bInSection = false;
		}

		void CopyEntry(const std::vector<FTextLine>& Lines, size_t Index)
		{
			UpdateSectionState(Lines[Index].Text);
			FPendingKey* Owner = FindOwner(Lines[Index].Text);
			if (Owner == nullptr)
			{
				Result.insert(Result.end(), Lines.begin() + static_cast<std::ptrdiff_t>(Index), Lines.begin() + static_cast<std::ptrdiff_t>(EndOfEntry(Lines, Index)));
			}
			else
			{
				Replace(Lines, Index, *Owner);
				if (LastLines[Owner] == Index)
				{
					PlaceRest(*Owner);
				}
			}
			if (SectionEnd == Index)
			{
				PlaceNewKeys();
			}
		}

		void Replace(const std::vector<FTextLine>& Lines, size_t Index, FPendingKey& Owner)
		{
			if (Owner.NumPlaced == Owner.Lines.size())
			{
				return; // one line too many: it goes
			}
			const FPendingKey::FLine& Wanted = Owner.Lines[Owner.NumPlaced++];
			const std::u16string Whole = Join(Lines, Index);
			IniSyntax::TEntry<char16_t> Entry;
			const bool bSame = IniSyntax::ParseEntry(FView(Whole), Entry) && IniSyntax::Fold(Entry.Key) == IniSyntax::Fold(Wanted.Key) && IniSyntax::Unquote(Entry.Value) == Wanted.Value;
			const size_t End = EndOfEntry(Lines, Index);
			if (bSame)
			{
				Result.insert(Result.end(), Lines.begin() + static_cast<std::ptrdiff_t>(Index), Lines.begin() + static_cast<std::ptrdiff_t>(End));
			}
			else
			{
				Result.push_back(FTextLine{MakeText(Wanted), Lines[End - 1].End});
			}
		}

		void PlaceRest(FPendingKey& Key)
		{
			for (; Key.NumPlaced < Key.Lines.size(); ++Key.NumPlaced)
			{
				Result.push_back(FTextLine{MakeText(Key.Lines[Key.NumPlaced]), ELineEnd::None});
			}
		}

		/** Keys that have no line yet, in the caller's order. */
		void PlaceNewKeys()
		{
			for (const std::u16string& Name : Order)
			{
				FPendingKey& Key = Pending[Name];
				if (!LastLines.contains(&Key))
				{
					PlaceRest(Key);
				}
			}
		}

		void AddSection()
		{
			if (Order.empty())
			{
				return;
			}
			if (!Result.empty() && !IniSyntax::Trim(Result.back().Text).empty())
			{
				Result.push_back(FTextLine{});
			}
			Result.push_back(FTextLine{Texts.emplace_back(u"[" + std::u16string(ToView(Section)) + u"]"), ELineEnd::None});
			PlaceNewKeys();
		}

		FView MakeText(const FPendingKey::FLine& Line)
		{
			return Texts.emplace_back(std::u16string(Line.Key) + u"=" + IniSyntax::Quote(Line.Value));
		}

		FString Section;
		std::u16string FoldedSection;
		std::map<std::u16string, FPendingKey> Pending; // all keys of the caller
		std::vector<std::u16string> Order; // their names as the caller's lines come
		std::map<const FPendingKey*, size_t> LastLines; // of those that have lines in the file
		size_t SectionEnd = NoLine; // the last line of the section that is not blank
		bool bInSection = false;
		std::deque<std::u16string> Texts; // of new lines; a deque, because lines point into it
		std::vector<FTextLine> Result;
	};
}

bool HostConfig::UpdateSection(const FString& File, const FString& Section, const TArray<TPair<FString, FString>>& Lines, const TArray<FString>& OwnedKeys)
{
	const HostFiles::FLock Lock(File);
	FTextDocument Document;
	std::string Bytes;
	const HostFiles::ERead Read = TextFile::Load(File, Document, Bytes);
	if (Read == HostFiles::ERead::Failed)
	{
		TextFile::ReportUnreadable(File);
		return false;
	}
	if (Read == HostFiles::ERead::Missing && Lines.IsEmpty())
	{
		return true;
	}
	SectionUpdate::FUpdate Update(Section, Lines, OwnedKeys);
	Document.SetLines(Update.Run(Document.GetLines()));
	if (Bytes.empty())
	{
		Document.SetEncoding(TextFile::ChooseForNewFile(Document));
	}
	return TextFile::Save(File, Document, HostFiles::EReadOnly::Refuse, Bytes);
}
