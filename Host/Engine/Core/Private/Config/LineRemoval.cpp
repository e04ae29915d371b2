// Copyright Velmorant. All Rights Reserved.

#include "Config/IniSyntax.h"
#include "Files/TextFile.h"
#include "HostConfig.h"
#include "HostFiles.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace LineRemoval
{
	using FView = std::u16string_view;
	using FPlaces = std::vector<size_t>; // indices of lines, ascending

	FView ToView(const FString& Text)
	{
		return FView(*Text, static_cast<size_t>(Text.Len()));
	}

	/** In quotes and not too long for a message. */
	FString Quote(FView Text)
	{
		constexpr size_t MaxLength = 80;
		const FString Shown(static_cast<int32>(std::min(Text.size(), MaxLength)), Text.data());
		return TEXT("\"") + Shown + (Text.size() > MaxLength ? TEXT("...\"") : TEXT("\""));
	}

	bool IsBlank(FView Line)
	{
		return IniSyntax::Trim(Line).empty();
	}

	/** The lines of a file, and which of them go. */
	class FRemoval
	{
	public:
		FRemoval(const std::vector<FTextLine>& InLines, const TArray<TArray<FString>>& Blocks)
			: Lines(InLines)
			, Goes(InLines.size(), false)
		{
			for (const TArray<FString>& Block : Blocks)
			{
				for (const FString& Line : Block)
				{
					Places[ToView(Line)];
				}
			}
			for (size_t Index = 0; Index < Lines.size(); ++Index)
			{
				const auto Wanted = Places.find(Lines[Index].Text);
				if (Wanted != Places.end())
				{
					Wanted->second.push_back(Index);
				}
			}
		}

		/** Block is one of those given at the beginning. @return false with a reason when it is not there. */
		bool Take(const TArray<FString>& Block, FString& OutReason)
		{
			std::vector<FView> Wanted;
			size_t NumBlanksInFront = 0;
			for (const FString& Line : Block)
			{
				if (!IsBlank(ToView(Line)))
				{
					Wanted.push_back(ToView(Line));
				}
				NumBlanksInFront += Wanted.empty() ? 1 : 0;
			}
			const FPlaces Found = FindClosest(Wanted);
			if (Found.size() != Wanted.size())
			{
				OutReason = ExplainMissing(Wanted);
				return false;
			}
			for (const size_t Place : Found)
			{
				Goes[Place] = true;
			}
			for (size_t Above = Found.empty() ? 0 : Found.front(); Above > 0 && NumBlanksInFront > 0 && IsBlank(Lines[Above - 1].Text); --Above, --NumBlanksInFront)
			{
				Goes[Above - 1] = true;
			}
			return true;
		}

		/** @return false with a reason when an entry that stays would find itself in another section. */
		bool LeavesSectionsAlone(FString& OutReason) const
		{
			std::u16string Section;
			std::u16string SectionOfRest;
			bool bContinued = false;
			for (size_t Index = 0; Index < Lines.size(); ++Index)
			{
				const FView Line = Lines[Index].Text;
				FView Name;
				IniSyntax::TEntry<char16_t> Entry;
				if (!bContinued && IniSyntax::ParseHeader(Line, Name))
				{
					Section = IniSyntax::Fold(Name);
					SectionOfRest = Goes[Index] ? SectionOfRest : Section;
				}
				else if (!Goes[Index] && Section != SectionOfRest && IniSyntax::ParseEntry(Line, Entry))
				{
					OutReason = FString::Printf(TEXT("line %d, %s, was added to the section that would go"), static_cast<int32>(Index) + 1, *Quote(Line));
					return false;
				}
				bContinued = IniSyntax::IsContinued(Line);
			}
			return true;
		}

		std::vector<FTextLine> GetRest() const
		{
			std::vector<FTextLine> Rest;
			for (size_t Index = 0; Index < Lines.size(); ++Index)
			{
				if (!Goes[Index])
				{
					Rest.push_back(Lines[Index]);
				}
			}
			return Rest;
		}

	private:
		/** The next line of that text that still stays; the number of lines when there is none. */
		size_t FindNext(FView Text, size_t From) const
		{
			const FPlaces& All = Places.at(Text);
			const auto Next = std::find_if(std::lower_bound(All.begin(), All.end(), From), All.end(), [this](size_t Place) { return !Goes[Place]; });
			return Next != All.end() ? *Next : Lines.size();
		}

		/** Where the lines stand in their order with the fewest lines between them; of equal ones the last. Fewer places when they do not. */
		FPlaces FindClosest(const std::vector<FView>& Wanted) const
		{
			FPlaces Best;
			for (size_t First = Wanted.empty() ? Lines.size() : FindNext(Wanted.front(), 0); First < Lines.size(); First = FindNext(Wanted.front(), First + 1))
			{
				FPlaces Found = {First};
				while (Found.size() < Wanted.size())
				{
					Found.push_back(FindNext(Wanted[Found.size()], Found.back() + 1));
				}
				if (Found.back() == Lines.size())
				{
					break; // nor will it do from further down
				}
				if (Best.empty() || Found.back() - Found.front() <= Best.back() - Best.front())
				{
					Best = std::move(Found);
				}
			}
			return Best;
		}

		FString ExplainMissing(const std::vector<FView>& Wanted) const
		{
			const auto Missing = std::find_if(Wanted.begin(), Wanted.end(), [this](FView Text) { return FindNext(Text, 0) == Lines.size(); });
			return Missing != Wanted.end() ? FString::Printf(TEXT("the line %s is not there any more"), *Quote(*Missing))
										   : FString::Printf(TEXT("the lines from %s on do not stand in their order any more"), *Quote(Wanted.front()));
		}

		const std::vector<FTextLine>& Lines;
		std::vector<bool> Goes;
		std::unordered_map<FView, FPlaces> Places; // of the lines of all blocks, by their text
	};
}

HostConfig::ERemoval HostConfig::RemoveLines(const FString& File, const TArray<TArray<FString>>& Blocks, FString& OutReason)
{
	const HostFiles::FLock Lock(File);
	FTextDocument Document;
	std::string Bytes;
	switch (TextFile::Load(File, Document, Bytes))
	{
		case HostFiles::ERead::Failed:
			return ERemoval::Failed;
		case HostFiles::ERead::Missing:
			OutReason = TEXT("the file is not there any more");
			return ERemoval::NotThere;
		case HostFiles::ERead::Done:
			break;
	}
	LineRemoval::FRemoval Removal(Document.GetLines(), Blocks);
	for (const TArray<FString>& Block : Blocks)
	{
		if (!Removal.Take(Block, OutReason))
		{
			return ERemoval::NotThere;
		}
	}
	if (!Removal.LeavesSectionsAlone(OutReason))
	{
		return ERemoval::NotThere;
	}
	Document.SetLines(Removal.GetRest());
	return TextFile::Save(File, Document, HostFiles::EReadOnly::Refuse, Bytes) ? ERemoval::Done : ERemoval::Failed;
}
