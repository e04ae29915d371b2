// Copyright Velmorant. All Rights Reserved.

#include "Misc/FileHelper.h"

#include "Files/LineMerge.h"
#include "Files/LoadedText.h"
#include "Files/NativePath.h"
#include "Files/TextCoding.h"
#include "Files/TextFile.h"
#include "HostFiles.h"
#include "HostProblems.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FileHelper
{
	using EOptions = FFileHelper::EEncodingOptions;

	/** The lines that a file is to have, as UTF-8. */
	class FWantedLines
	{
	public:
		/** Converted one by one, because there may be millions. Strings must live as long as this. */
		explicit FWantedLines(const TArray<FString>& InStrings)
			: Strings(&InStrings)
		{
		}

		explicit FWantedLines(FStringView Text)
		{
			Encode(std::u16string_view(Text.GetData(), static_cast<size_t>(Text.Len())), Converted);
			for (FTextLines Walk(Converted); Walk.Advance();)
			{
				Lines.push_back(Walk.GetLine());
			}
		}

		/** The texts belong to others. */
		explicit FWantedLines(const LineMerge::FLines& Texts)
		{
			for (const std::string_view Text : Texts)
			{
				Lines.push_back(FTextLine{Text, ELineEnd::None});
			}
		}

		FWantedLines(const FWantedLines&) = delete;
		FWantedLines& operator=(const FWantedLines&) = delete;

		size_t Num() const { return Strings != nullptr ? static_cast<size_t>(Strings->Num()) : Lines.size(); }

		/** Good until the next call. */
		FTextLine Get(size_t Index)
		{
			if (Strings == nullptr)
			{
				return Lines[Index];
			}
			const FString& Line = (*Strings)[static_cast<int32>(Index)];
			Converted.clear();
			Encode(std::u16string_view(*Line, static_cast<size_t>(Line.Len())), Converted);
			return FTextLine{Converted, ELineEnd::None};
		}

	private:
		/** Halves of surrogate pairs are found out when the file's encoding is known. */
		static void Encode(std::u16string_view Text, std::string& Out) { TextCoding::EncodeUtf8(Text, Out, TextCoding::EHalfPairs::Keep); }

		const TArray<FString>* Strings = nullptr; // null: Lines count
		std::vector<FTextLine> Lines;
		std::string Converted; // of the whole text, or of the line that was asked for last
	};

	struct FSaveRequest
	{
		FString Path;
		FWantedLines& Lines;
		bool bKeepForeignChanges = false; // the lines were loaded from the file, and it may have changed since
		std::optional<bool> LastLineEnds; // not set: as in the file that is there
		EOptions Options = EOptions::AutoDetect;
		HostFiles::EReadOnly ReadOnly = HostFiles::EReadOnly::Refuse;
	};

	void ReportNotWritten(const FString& Path, const TCHAR* Message, const TCHAR* Remedy)
	{
		HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), Message, Remedy);
	}

	LineMerge::FLines GetTexts(std::string_view Text)
	{
		LineMerge::FLines Texts;
		for (FTextLines Lines(Text); Lines.Advance();)
		{
			Texts.push_back(Lines.Get());
		}
		return Texts;
	}

	/** Lines, with what others wrote since Base was loaded. OutMerged points into both documents and OutMine. */
	bool MergeForeignChanges(const FTextDocument& Base, const FTextDocument& Current, FWantedLines& Lines, std::deque<std::string>& OutMine, LineMerge::FLines& OutMerged)
	{
		LineMerge::FLines Mine;
		for (size_t Index = 0; Index < Lines.Num(); ++Index)
		{
			Mine.push_back(OutMine.emplace_back(Lines.Get(Index).Text));
		}
		return LineMerge::Merge(GetTexts(Base.GetText()), Mine, GetTexts(Current.GetText()), OutMerged);
	}

	/** Lines in common with the file, at its beginning and at its end, keep their line ends. */
	std::string Compose(const FTextDocument& Current, FWantedLines& Lines, std::optional<bool> LastLineEnds)
	{
		const std::string_view Text = Current.GetText();
		size_t Front = 0;
		FTextLines FromFront(Text);
		size_t FrontEnd = 0; // in the text
		while (Front < Lines.Num() && FromFront.Advance() && FromFront.Get() == Lines.Get(Front).Text)
		{
			++Front;
			FrontEnd = FromFront.GetNextBegin();
		}
		size_t Back = Lines.Num();
		FTextLines FromBack = FTextLines::FromEnd(Text);
		size_t BackBegin = Text.size();
		while (Back > Front && BackBegin > FrontEnd && FromBack.StepBack() && FromBack.Get() == Lines.Get(Back - 1).Text)
		{
			--Back;
			BackBegin = FromBack.GetBegin();
		}
		FTextComposer Composer(Current);
		Composer.Keep(0, FrontEnd);
		for (size_t Index = Front; Index < Back; ++Index)
		{
			const FTextLine Line = Lines.Get(Index);
			Composer.Add(Line.Text, Text.empty() ? Line.End : ELineEnd::None);
		}
		Composer.Keep(BackBegin, Text.size());
		if (LastLineEnds.has_value())
		{
			Composer.SetLastLineEnds(*LastLineEnds);
		}
		return Composer.Finish();
	}

	ETextEncoding ChooseEncoding(EOptions Options, const FTextDocument& Current, std::string_view Text)
	{
		switch (Options)
		{
			case EOptions::AutoDetect:
				return TextFile::ChooseEncoding(Current, Text);
			case EOptions::ForceUnicode:
				return ETextEncoding::Utf16LittleEndian;
			case EOptions::ForceUTF8:
				return ETextEncoding::Utf8WithBom;
			default: // ForceAnsi, ForceUTF8WithoutBOM
				return ETextEncoding::Utf8;
		}
	}

	HostFiles::EWrite SaveLines(const FSaveRequest& Request, const FTextDocument& Current, FWantedLines& Lines)
	{
		std::string Text = Compose(Current, Lines, Request.LastLineEnds);
		if (Request.Options == EOptions::ForceAnsi && !TextCoding::IsAscii(Text))
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: a single-byte encoding is asked for, and the text goes beyond ASCII"), TEXT("Save it in another encoding."));
			return HostFiles::EWrite::Failed;
		}
		const ETextEncoding Encoding = ChooseEncoding(Request.Options, Current, Text);
		return TextFile::Save(Request.Path, Current, std::move(Text), Encoding, Request.ReadOnly);
	}

	/** Current is what the disk holds. */
	HostFiles::EWrite SaveOver(const FSaveRequest& Request, const FTextDocument& Current)
	{
		const LoadedText::FRecord& Seen = LoadedText::Find(NativePath::Resolve(Request.Path));
		if (Seen.State == LoadedText::EState::Failed)
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: loading it had failed, so what was to be saved is not its content"), TEXT("Try again."));
			return HostFiles::EWrite::Failed;
		}
		const bool bChangedByOthers = Request.bKeepForeignChanges && Seen.State == LoadedText::EState::Seen && *Seen.Bytes != *Current.GetBytes();
		if (!bChangedByOthers)
		{
			return SaveLines(Request, Current, Request.Lines);
		}
		FTextDocument Base;
		std::string Fault;
		int32 FaultLine = 0;
		std::deque<std::string> Mine;
		LineMerge::FLines Merged;
		if (!Base.Decode(Seen.Bytes, Fault, FaultLine) || !MergeForeignChanges(Base, Current, Request.Lines, Mine, Merged))
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: somebody else changed the same lines meanwhile"), TEXT("Try again; the file is as the other one left it."));
			return HostFiles::EWrite::Failed;
		}
		FWantedLines Both(Merged);
		return SaveLines(Request, Current, Both);
	}

	/** Under the file's lock. */
	HostFiles::EWrite TrySave(const FSaveRequest& Request)
	{
		FTextDocument Current;
		const HostFiles::ERead Read = TextFile::Load(Request.Path, Current);
		if (Read == HostFiles::ERead::Missing)
		{
			LoadedText::Forget(NativePath::Resolve(Request.Path)); // nothing is left of what was loaded: there is nothing to lose
		}
		if (Read == HostFiles::ERead::Failed)
		{
			TextFile::ReportUnreadable(Request.Path);
			return HostFiles::EWrite::Failed;
		}
		return SaveOver(Request, Current);
	}

	bool Save(const FSaveRequest& Request)
	{
		const HostFiles::FLock Lock(Request.Path);
		const bool bSaved = TextFile::SaveSurely(Request.Path, [&Request] { return TrySave(Request); });
		if (bSaved)
		{
			LoadedText::Forget(NativePath::Resolve(Request.Path));
		}
		return bSaved;
	}

	HostFiles::EReadOnly ToReadOnly(uint32 WriteFlags)
	{
		return (WriteFlags & FILEWRITE_EvenIfReadOnly) != 0 ? HostFiles::EReadOnly::Override : HostFiles::EReadOnly::Refuse;
	}

	/** Done with a document, or why there is none; a failure is remembered against later saves. */
	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument)
	{
		const HostFiles::ERead Result = TextFile::Load(Path, OutDocument);
		if (Result == HostFiles::ERead::Failed)
		{
			LoadedText::RememberFailure(NativePath::Resolve(Path));
		}
		else
		{
			LoadedText::Forget(NativePath::Resolve(Path));
		}
		return Result;
	}

	/** Units is room that is used again. */
	FString ToString(std::string_view Text, std::vector<char16_t>& Units)
	{
		size_t BadOffset = 0;
		TextCoding::DecodeUtf8(Text, Units, BadOffset, TextCoding::EHalfPairs::Keep);
		return FString(static_cast<int32>(Units.size()), Units.data());
	}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32)
{
	std::string Bytes;
	const bool bRead = HostFiles::Read(FString(Filename), Bytes) == HostFiles::ERead::Done;
	Result = TArray<uint8>(reinterpret_cast<const uint8*>(Bytes.data()), static_cast<int32>(Bytes.size()));
	return bRead;
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions, uint32)
{
	Result.Empty();
	FTextDocument Document;
	if (FileHelper::Load(FString(Filename), Document) != HostFiles::ERead::Done)
	{
		return false;
	}
	std::vector<char16_t> Units;
	Result = FileHelper::ToString(Document.GetText(), Units);
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	Result.Empty();
	const FString Path(Filename);
	FTextDocument Document;
	const HostFiles::ERead Read = FileHelper::Load(Path, Document);
	if (Read == HostFiles::ERead::Failed)
	{
		return false;
	}
	LoadedText::RememberSeen(NativePath::Resolve(Path), Document.GetBytes());
	const std::string_view Text = Document.GetText();
	Result.Reserve(static_cast<int32>(std::count(Text.begin(), Text.end(), '\n')) + 1);
	std::vector<char16_t> Units;
	for (FTextLines Lines(Text); Lines.Advance();)
	{
		Result.Add(FileHelper::ToString(Lines.Get(), Units));
	}
	return Read == HostFiles::ERead::Done;
}

bool FFileHelper::SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager*, uint32 WriteFlags)
{
	const std::string_view Bytes(reinterpret_cast<const char*>(Array.GetData()), static_cast<size_t>(Array.Num()));
	return HostFiles::Write(Filename, Bytes, FileHelper::ToReadOnly(WriteFlags));
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager*, uint32 WriteFlags)
{
	FileHelper::FWantedLines Lines(String);
	const bool bLastLineEnds = Lines.Num() > 0 && Lines.Get(Lines.Num() - 1).End != ELineEnd::None;
	return FileHelper::Save({Filename, Lines, false, bLastLineEnds, EncodingOptions, FileHelper::ToReadOnly(WriteFlags)});
}

bool FFileHelper::SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager*, uint32 WriteFlags)
{
	FileHelper::FWantedLines Wanted(Lines);
	return FileHelper::Save({Filename, Wanted, true, std::nullopt, EncodingOptions, FileHelper::ToReadOnly(WriteFlags)});
}
