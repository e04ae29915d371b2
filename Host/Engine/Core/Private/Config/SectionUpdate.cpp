// Copyright Velmorant. All Rights Reserved.

#include "Config/IniEntries.h"
#include "Config/IniSyntax.h"
#include "Files/TextCoding.h"
#include "Files/TextFile.h"
#include "HostConfig.h"
#include "HostFiles.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace SectionUpdate
{
	/** Halves of surrogate pairs are found out when the file's encoding is known. */
	std::string ToUtf8(const FString& Text)
	{
		std::string Utf8;
		TextCoding::EncodeUtf8(std::u16string_view(*Text, static_cast<size_t>(Text.Len())), Utf8, TextCoding::EHalfPairs::Keep);
		return Utf8;
	}

	/** Lines that wait for their place, by folded key without prefix. */
	struct FPendingKey
	{
		struct FLine
		{
			std::string Key; // with prefix
			std::string Value;
		};

		std::vector<FLine> Lines;
		size_t NumPlaced = 0;
	};

	/** One run over a document that puts the wanted lines in place of those that are there. */
	class FUpdate
	{
	public:
		FUpdate(const FTextDocument& InDocument, const FString& InSection, const TArray<TPair<FString, FString>>& Wanted, const TArray<FString>& OwnedKeys)
			: Text(InDocument.GetText())
			, Section(ToUtf8(InSection))
			, FoldedSection(IniSyntax::Fold(Section))
			, Result(InDocument)
		{
			for (const FString& Key : OwnedKeys)
			{
				Pending[IniSyntax::Fold(ToUtf8(Key))];
			}
			for (const TPair<FString, FString>& Line : Wanted)
			{
				FPendingKey::FLine Converted{ToUtf8(Line.Key), ToUtf8(Line.Value)};
				std::string Name = IniSyntax::Fold(IniSyntax::WithoutPrefix(Converted.Key));
				Order.push_back(Name);
				Pending[std::move(Name)].Lines.push_back(std::move(Converted));
			}
		}

		/** The new text. */
		std::string Run()
		{
			FindLastLines();
			for (FIniEntries Entries(Text); Entries.Advance();)
			{
				CopyEntry(Entries);
			}
			if (SectionEnd == NoLine)
			{
				AddSection();
			}
			return Result.Finish();
		}

	private:
		static constexpr size_t NoLine = static_cast<size_t>(-1);

		/** Null for lines that are none of the caller's business. */
		FPendingKey* FindOwner(std::string_view Line)
		{
			IniSyntax::FEntry Entry;
			if (!bInSection || !IniSyntax::ParseEntry(Line, Entry))
			{
				return nullptr;
			}
			const auto Found = Pending.find(IniSyntax::Fold(IniSyntax::WithoutPrefix(Entry.Key)));
			return Found != Pending.end() ? &Found->second : nullptr;
		}

		bool UpdateSectionState(std::string_view Line)
		{
			std::string_view Name;
			if (!IniSyntax::ParseHeader(Line, Name))
			{
				return false;
			}
			bInSection = IniSyntax::Fold(Name) == FoldedSection;
			return true;
		}

		/** Where each key and the section itself have their last line: more lines go behind it. */
		void FindLastLines()
		{
			for (FIniEntries Entries(Text); Entries.Advance();)
			{
				const std::string_view Line = Entries.GetFirstLine();
				const size_t Begin = Entries.GetPlace().Begin;
				const bool bHeader = UpdateSectionState(Line);
				if (bInSection && (bHeader || !IniSyntax::Trim(Line).empty()))
				{
					SectionEnd = Begin;
				}
				if (const FPendingKey* Key = FindOwner(Line))
				{
					LastLines[Key] = Begin;
				}
			}
			bInSection = false;
		}

		void CopyEntry(FIniEntries& Entries)
		{
			const std::string_view Line = Entries.GetFirstLine();
			const size_t Begin = Entries.GetPlace().Begin;
			UpdateSectionState(Line);
			FPendingKey* Owner = FindOwner(Line);
			if (Owner == nullptr)
			{
				Result.Keep(Begin, Entries.GetNextPlace().Begin);
			}
			else
			{
				Replace(Entries, *Owner);
				if (LastLines[Owner] == Begin)
				{
					PlaceRest(*Owner);
				}
			}
			if (SectionEnd == Begin)
			{
				PlaceNewKeys();
			}
		}

		void Replace(FIniEntries& Entries, FPendingKey& Owner)
		{
			if (Owner.NumPlaced == Owner.Lines.size())
			{
				return; // one line too many: it goes
			}
			const FPendingKey::FLine& Wanted = Owner.Lines[Owner.NumPlaced++];
			IniSyntax::FEntry Entry;
			const bool bSame = IniSyntax::ParseEntry(Entries.GetWhole(), Entry) && IniSyntax::Fold(Entry.Key) == IniSyntax::Fold(Wanted.Key) && IniSyntax::Unquote(Entry.Value) == Wanted.Value;
			if (bSame)
			{
				Result.Keep(Entries.GetPlace().Begin, Entries.GetNextPlace().Begin);
			}
			else
			{
				Result.Add(MakeText(Wanted), Entries.GetLineEnd());
			}
		}

		void PlaceRest(FPendingKey& Key)
		{
			for (; Key.NumPlaced < Key.Lines.size(); ++Key.NumPlaced)
			{
				Result.Add(MakeText(Key.Lines[Key.NumPlaced]));
			}
		}

		/** Keys that have no line yet, in the caller's order. */
		void PlaceNewKeys()
		{
			for (const std::string& Name : Order)
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
			if (!Result.IsEmpty() && !Result.EndsWithBlankLine())
			{
				Result.Add({});
			}
			Result.Add("[" + Section + "]");
			PlaceNewKeys();
		}

		static std::string MakeText(const FPendingKey::FLine& Line) { return Line.Key + "=" + IniSyntax::Quote(Line.Value); }

		std::string_view Text;
		std::string Section;
		std::string FoldedSection;
		std::map<std::string, FPendingKey> Pending; // all keys of the caller
		std::vector<std::string> Order; // their names as the caller's lines come
		std::map<const FPendingKey*, size_t> LastLines; // of those that have lines in the file: where they begin
		size_t SectionEnd = NoLine; // where the last line of the section that is not blank begins
		bool bInSection = false;
		FTextComposer Result;
	};

	/** Under the file's lock. */
	HostFiles::EWrite TryUpdate(const FString& File, const FString& Section, const TArray<TPair<FString, FString>>& Lines, const TArray<FString>& OwnedKeys)
	{
		FTextDocument Document;
		const HostFiles::ERead Read = TextFile::Load(File, Document);
		if (Read == HostFiles::ERead::Failed)
		{
			TextFile::ReportUnreadable(File);
			return HostFiles::EWrite::Failed;
		}
		if (Read == HostFiles::ERead::Missing && Lines.IsEmpty())
		{
			return HostFiles::EWrite::Done;
		}
		std::string Text = FUpdate(Document, Section, Lines, OwnedKeys).Run();
		const ETextEncoding Encoding = TextFile::ChooseEncoding(Document, Text);
		return TextFile::Save(File, Document, std::move(Text), Encoding);
	}
}

bool HostConfig::UpdateSection(const FString& File, const FString& Section, const TArray<TPair<FString, FString>>& Lines, const TArray<FString>& OwnedKeys)
{
	const HostFiles::FLock Lock(File);
	return TextFile::SaveSurely(File, [&] { return SectionUpdate::TryUpdate(File, Section, Lines, OwnedKeys); });
}
