// Copyright Velmorant. All Rights Reserved.

#include "Misc/FileHelper.h"

#include "Files/LineMerge.h"
#include "Files/LoadedText.h"
#include "Files/NativePath.h"
#include "Files/TextFile.h"
#include "HostFiles.h"
#include "HostProblems.h"

#include <optional>
#include <utility>

namespace FileHelper
{
	using EOptions = FFileHelper::EEncodingOptions;

	struct FSaveRequest
	{
		FString Path;
		LineMerge::FLines Texts;
		std::vector<FTextLine> TextsForNewFile; // with line ends of their own; empty when the caller only knows lines
		std::optional<bool> LastLineEnds; // not set: as in the file that is there
		bool bKeepForeignChanges = false;
		EOptions Options = EOptions::AutoDetect;
		HostFiles::EReadOnly ReadOnly = HostFiles::EReadOnly::Refuse;
	};

	void ReportNotWritten(const FString& Path, const TCHAR* Message, const TCHAR* Remedy)
	{
		HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), Message, Remedy);
	}

	LineMerge::FLines GetTexts(const std::vector<FTextLine>& Lines)
	{
		LineMerge::FLines Texts;
		Texts.reserve(Lines.size());
		for (const FTextLine& Line : Lines)
		{
			Texts.push_back(Line.Text);
		}
		return Texts;
	}

	/** Brings what others wrote since Base was loaded into Texts, which point into all three afterwards. */
	bool MergeForeignChanges(const FTextDocument& Base, const FTextDocument& Current, LineMerge::FLines& Texts)
	{
		const LineMerge::FLines Mine = std::move(Texts);
		return LineMerge::Merge(GetTexts(Base.GetLines()), Mine, GetTexts(Current.GetLines()), Texts);
	}

	void ChooseEncoding(EOptions Options, bool bNew, FTextDocument& Document)
	{
		switch (Options)
		{
			case EOptions::AutoDetect:
				Document.SetEncoding(bNew ? TextFile::ChooseForNewFile(Document) : Document.GetEncoding());
				break;
			case EOptions::ForceUnicode:
				Document.SetEncoding(ETextEncoding::Utf16LittleEndian);
				break;
			case EOptions::ForceUTF8:
				Document.SetEncoding(ETextEncoding::Utf8WithBom);
				break;
			case EOptions::ForceAnsi:
			case EOptions::ForceUTF8WithoutBOM:
				Document.SetEncoding(ETextEncoding::Utf8);
				break;
		}
	}

	bool IsExpressible(const FSaveRequest& Request, const FTextDocument& Document)
	{
		if (Request.Options == EOptions::ForceAnsi && TextFile::ChooseForNewFile(Document) != ETextEncoding::Utf8)
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: a single-byte encoding is asked for, and the text goes beyond ASCII"), TEXT("Save it in another encoding."));
			return false;
		}
		return true;
	}

	/** Under the file's lock, Current being what the disk holds. */
	bool SaveOver(FSaveRequest& Request, FTextDocument& Current, const std::string& CurrentBytes)
	{
		const LoadedText::FRecord& Seen = LoadedText::Find(NativePath::Resolve(Request.Path));
		if (Seen.State == LoadedText::EState::Failed)
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: loading it had failed, so what was to be saved is not its content"), TEXT("Try again."));
			return false;
		}
		FTextDocument Base; // outlives the texts taken from it
		std::string Fault;
		int32 FaultLine = 0;
		const bool bChangedByOthers = Request.bKeepForeignChanges && Seen.State == LoadedText::EState::Seen && Seen.Bytes != CurrentBytes;
		if (bChangedByOthers && !(Base.Decode(Seen.Bytes, Fault, FaultLine) && MergeForeignChanges(Base, Current, Request.Texts)))
		{
			ReportNotWritten(Request.Path, TEXT("the file was not written: somebody else changed the same lines meanwhile"), TEXT("Try again; the file is as the other one left it."));
			return false;
		}
		const bool bAsItIs = Current.GetLines().empty() && !Request.TextsForNewFile.empty();
		Current.SetLines(bAsItIs ? Request.TextsForNewFile : Current.KeepLineEnds(Request.Texts));
		if (Request.LastLineEnds.has_value())
		{
			Current.SetLastLineEnds(*Request.LastLineEnds);
		}
		ChooseEncoding(Request.Options, CurrentBytes.empty(), Current);
		std::string Bytes;
		return IsExpressible(Request, Current) && TextFile::Save(Request.Path, Current, Request.ReadOnly, Bytes);
	}

	bool Save(FSaveRequest Request)
	{
		const HostFiles::FLock Lock(Request.Path);
		FTextDocument Current;
		std::string CurrentBytes;
		const std::string Resolved = NativePath::Resolve(Request.Path);
		const HostFiles::ERead Read = TextFile::Load(Request.Path, Current, CurrentBytes);
		if (Read == HostFiles::ERead::Missing)
		{
			LoadedText::Forget(Resolved); // nothing is left of what was loaded: there is nothing to lose
		}
		if (Read == HostFiles::ERead::Failed)
		{
			TextFile::ReportUnreadable(Request.Path);
			return false;
		}
		if (!SaveOver(Request, Current, CurrentBytes))
		{
			return false;
		}
		LoadedText::Forget(Resolved);
		return true;
	}

	HostFiles::EReadOnly ToReadOnly(uint32 WriteFlags)
	{
		return (WriteFlags & FILEWRITE_EvenIfReadOnly) != 0 ? HostFiles::EReadOnly::Override : HostFiles::EReadOnly::Refuse;
	}

	std::u16string_view ToView(const TCHAR* Text, int32 Length)
	{
		return std::u16string_view(Text, static_cast<size_t>(Length));
	}

	/** Done with a document, or why there is none; a failure is remembered against later saves. */
	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument, std::string& OutBytes)
	{
		const HostFiles::ERead Result = TextFile::Load(Path, OutDocument, OutBytes);
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
	std::string Bytes;
	if (FileHelper::Load(FString(Filename), Document, Bytes) != HostFiles::ERead::Done)
	{
		return false;
	}
	const std::u16string_view Text = Document.GetText();
	Result = FString(static_cast<int32>(Text.size()), Text.data());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	Result.Empty();
	const FString Path(Filename);
	FTextDocument Document;
	std::string Bytes;
	const HostFiles::ERead Read = FileHelper::Load(Path, Document, Bytes);
	if (Read != HostFiles::ERead::Failed)
	{
		LoadedText::RememberSeen(NativePath::Resolve(Path), std::move(Bytes));
	}
	Result.Reserve(static_cast<int32>(Document.GetLines().size()));
	for (const FTextLine& Line : Document.GetLines())
	{
		Result.Emplace(static_cast<int32>(Line.Text.size()), Line.Text.data());
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
	FileHelper::FSaveRequest Request;
	Request.Path = Filename;
	Request.TextsForNewFile = FTextDocument::SplitLines(FileHelper::ToView(String.GetData(), String.Len()));
	Request.Texts = FileHelper::GetTexts(Request.TextsForNewFile);
	Request.LastLineEnds = !Request.Texts.empty() && Request.TextsForNewFile.back().End != ELineEnd::None;
	Request.Options = EncodingOptions;
	Request.ReadOnly = FileHelper::ToReadOnly(WriteFlags);
	return FileHelper::Save(std::move(Request));
}

bool FFileHelper::SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager*, uint32 WriteFlags)
{
	FileHelper::FSaveRequest Request;
	Request.Path = Filename;
	Request.Texts.reserve(static_cast<size_t>(Lines.Num()));
	for (const FString& Line : Lines)
	{
		Request.Texts.push_back(FileHelper::ToView(*Line, Line.Len()));
	}
	Request.bKeepForeignChanges = true;
	Request.Options = EncodingOptions;
	Request.ReadOnly = FileHelper::ToReadOnly(WriteFlags);
	return FileHelper::Save(std::move(Request));
}
