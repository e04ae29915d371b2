// Copyright Velmorant. All Rights Reserved.

#include "Files/TextFile.h"

#include "Files/NativePath.h"
#include "Files/TextCoding.h"
#include "HostProblems.h"
#include "HostTextFiles.h"

#include <algorithm>

namespace TextFile
{
	void ReportFault(const FString& Path, int32 Line, const std::string& Fault)
	{
		HostProblems::Report(NativePath::ToString(NativePath::MakeFull(Path)), Line, FString(TEXT("the file ")) + TextCoding::ToFString(Fault),
			TEXT("Save it as UTF-8 or as UTF-16 with a byte-order mark; until then it is neither read nor overwritten."));
	}

	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument, std::string& OutBytes)
	{
		const HostFiles::ERead Result = HostFiles::Read(Path, OutBytes);
		std::string Fault;
		int32 Line = 0;
		if (Result != HostFiles::ERead::Done || OutDocument.Decode(OutBytes, Fault, Line))
		{
			return Result;
		}
		ReportFault(Path, Line, Fault);
		return HostFiles::ERead::Failed;
	}

	bool Save(const FString& Path, const FTextDocument& Document, HostFiles::EReadOnly ReadOnly, std::string& OutBytes)
	{
		if (!Document.Encode(OutBytes))
		{
			HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), TEXT("the file was not written: UTF-8 cannot express half of a surrogate pair"),
				TEXT("Correct the text."));
			return false;
		}
		return HostFiles::Write(Path, OutBytes, ReadOnly);
	}

	void ReportUnreadable(const FString& Path)
	{
		HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), TEXT("the file was not written: what is in it cannot be read"),
			TEXT("Put the file right or move it away."));
	}

	ETextEncoding ChooseForNewFile(const FTextDocument& Document)
	{
		const auto IsAscii = [](const FTextLine& Line) { return TextCoding::IsAscii(Line.Text); };
		const std::vector<FTextLine>& Lines = Document.GetLines();
		return std::all_of(Lines.begin(), Lines.end(), IsAscii) ? ETextEncoding::Utf8 : ETextEncoding::Utf16LittleEndian;
	}
}

namespace HostTextFiles
{
	HostFiles::ERead ReadUtf8(const FString& Path, std::string& OutText)
	{
		const HostFiles::ERead Result = HostFiles::Read(Path, OutText);
		if (Result != HostFiles::ERead::Done)
		{
			return Result;
		}
		std::string_view Utf8;
		std::string Fault;
		int32 Line = 0;
		if (FTextDocument::CheckUtf8(OutText, Utf8, Fault, Line))
		{
			OutText.erase(0, OutText.size() - Utf8.size()); // the mark
			return Result;
		}
		FTextDocument Document;
		const bool bText = Fault.empty() && Document.Decode(OutText, Fault, Line);
		OutText.clear();
		if (bText && TextCoding::EncodeUtf8(Document.GetText(), OutText))
		{
			return Result;
		}
		OutText.clear();
		TextFile::ReportFault(Path, Line, bText ? "holds half of a surrogate pair" : Fault);
		return HostFiles::ERead::Failed;
	}

	bool CheckReadable(const FString& Path)
	{
		FTextDocument Document;
		std::string Bytes;
		return TextFile::Load(Path, Document, Bytes) != HostFiles::ERead::Failed;
	}
}
