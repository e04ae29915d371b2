// Copyright Velmorant. All Rights Reserved.

#include "Config/IniSyntax.h"
#include "Files/TextCoding.h"
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
	using FView = std::string_view;
	using FPlaces = std::vector<size_t>; // indices of lines, ascending

	using FBlock = std::vector<std::string>;

	FBlock ToUtf8(const TArray<FString>& Lines)
	{
		FBlock Block;
		for (const FString& Line : Lines)
		{
			TextCoding::EncodeUtf8(std::u16string_view(*Line, static_cast<size_t>(Line.Len())), Block.emplace_back(), TextCoding::EHalfPairs::Keep);
		}
		return Block;
	}

	/** In quotes and not too long for a message. */
	FString Quote(FView Text)
	{
		constexpr int32 MaxLength = 80;
		const FString Shown = TextCoding::ToFString(Text);
		return TEXT("\"") + Shown.Left(MaxLength) + (Shown.Len() > MaxLength ? TEXT("...\"") : TEXT("\""));
	}

	bool IsBlank(FView Line)
	{
		return IniSyntax::Trim(Line).empty();
	}

	/** The lines of a file, and which of them go. */
	class FRemoval
	{
	public:
		FRemoval(const FTextDocument& InDocument, const std::vector<FBlock>& Blocks)
			: Document(InDocument)
		{
			for (FTextLines Walk(Document.GetText()); Walk.Advance();)
			{
				Lines.push_back(Walk.Get());
			}
			Goes.resize(Lines.size(), false);
			for (const FBlock& Block : Blocks)
			{
				for (const std::string& Line : Block)
				{
					Places[Line];
				}
			}
			for (size_t Index = 0; Index < Lines.size(); ++Index)
			{
				const auto Wanted = Places.find(Lines[Index]);
				if (Wanted != Places.end())
				{
					Wanted->second.push_back(Index);
				}
			}
		}

		/** Block is one of those given at the beginning. @return false with a reason when it is not there. */
		bool Take(const FBlock& Block, FString& OutReason)
		{
			std::vector<FView> Wanted;
			size_t NumBlanksInFront = 0;
			for (const std::string& Line : Block)
			{
				if (!IsBlank(Line))
				{
					Wanted.push_back(Line);
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
			for (size_t Above = Found.empty() ? 0 : Found.front(); Above > 0 && NumBlanksInFront > 0 && IsBlank(Lines[Above - 1]); --Above, --NumBlanksInFront)
			{
				Goes[Above - 1] = true;
			}
			return true;
		}

		/** @return false with a reason when an entry that stays would find itself in another section. */
		bool LeavesSectionsAlone(FString& OutReason) const
		{
			std::string Section;
			std::string SectionOfRest;
			bool bContinued = false;
			for (size_t Index = 0; Index < Lines.size(); ++Index)
			{
				const FView Line = Lines[Index];
				FView Name;
				IniSyntax::FEntry Entry;
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

		std::string GetRest() const
		{
			FTextComposer Rest(Document);
			FTextLines Walk(Document.GetText());
			for (size_t Index = 0; Walk.Advance(); ++Index)
			{
				if (!Goes[Index])
				{
					Rest.Keep(Walk.GetBegin(), Walk.GetNextBegin());
				}
			}
			return Rest.Finish();
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

		const FTextDocument& Document;
		std::vector<FView> Lines;
		std::vector<bool> Goes; // by line
		std::unordered_map<FView, FPlaces> Places; // of the lines of all blocks, by their text
	};

	/** What is to be left of the text. @return false with a reason when what was to go does not stand there as it was put in. */
	bool Remove(const FTextDocument& Document, const std::vector<FBlock>& Blocks, std::string& OutRest, FString& OutReason)
	{
		FRemoval Removal(Document, Blocks);
		const auto Take = [&](const FBlock& Block) { return Removal.Take(Block, OutReason); };
		if (!std::all_of(Blocks.begin(), Blocks.end(), Take) || !Removal.LeavesSectionsAlone(OutReason))
		{
			return false;
		}
		OutRest = Removal.GetRest();
		return true;
	}
}

HostConfig::ERemoval HostConfig::RemoveLines(const FString& File, const TArray<TArray<FString>>& Blocks, FString& OutReason)
{
	const HostFiles::FLock Lock(File);
	std::vector<LineRemoval::FBlock> Wanted;
	for (const TArray<FString>& Block : Blocks)
	{
		Wanted.push_back(LineRemoval::ToUtf8(Block));
	}
	bool bThere = true;
	const auto Edit = [&] {
		FTextDocument Document;
		std::string Rest;
		const HostFiles::ERead Read = TextFile::Load(File, Document);
		OutReason = Read == HostFiles::ERead::Missing ? TEXT("the file is not there any more") : TEXT("");
		bThere = Read == HostFiles::ERead::Done && LineRemoval::Remove(Document, Wanted, Rest, OutReason);
		return bThere ? TextFile::Save(File, Document, std::move(Rest), Document.GetEncoding()) : HostFiles::EWrite::Failed;
	};
	const bool bSaved = TextFile::SaveSurely(File, Edit);
	if (bSaved)
	{
		return ERemoval::Done;
	}
	return bThere || OutReason.IsEmpty() ? ERemoval::Failed : ERemoval::NotThere;
}
