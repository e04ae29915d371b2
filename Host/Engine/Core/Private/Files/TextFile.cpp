// Copyright Velmorant. All Rights Reserved.

#include "Files/TextFile.h"

#include "Files/NativePath.h"
#include "Files/TextCoding.h"
#include "HostProblems.h"
#include "HostTextFiles.h"

#include <memory>
#include <utility>

namespace TextFile
{
	void ReportFault(const FString& Path, int32 Line, const std::string& Fault)
	{
		HostProblems::Report(NativePath::ToString(NativePath::MakeFull(Path)), Line, FString(TEXT("the file ")) + TextCoding::ToFString(Fault),
			TEXT("Save it as UTF-8 or as UTF-16 with a byte-order mark; until then it is neither read nor overwritten."));
	}

	/** What has been read from the file. */
	HostFiles::ERead Decode(const FString& Path, HostFiles::ERead Result, HostFiles::FSharedBytes Bytes, FTextDocument& OutDocument)
	{
		std::string Fault;
		int32 Line = 0;
		if (Result != HostFiles::ERead::Done || OutDocument.Decode(std::move(Bytes), Fault, Line))
		{
			return Result;
		}
		ReportFault(Path, Line, Fault);
		return HostFiles::ERead::Failed;
	}

	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument)
	{
		HostFiles::FSharedBytes Bytes;
		const HostFiles::ERead Result = HostFiles::ReadShared(Path, Bytes);
		return Decode(Path, Result, std::move(Bytes), OutDocument);
	}

	/** Whether UTF-8 can express the text; reported. */
	bool CheckExpressible(const FString& Path, const FTextDocument& Document)
	{
		const bool bExpressible = !Document.IsConverted() || TextCoding::FindInvalidUtf8(Document.GetText()) == Document.GetText().size();
		if (!bExpressible)
		{
			ReportFault(Path, 0, "holds half of a surrogate pair");
		}
		return bExpressible;
	}

	HostFiles::EWrite Save(const FString& Path, const FTextDocument& Document, std::string Text, ETextEncoding Encoding, HostFiles::EReadOnly ReadOnly)
	{
		std::string Bytes;
		if (!TextEncoding::Encode(std::move(Text), Encoding, Bytes))
		{
			HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), TEXT("the file was not written: UTF-8 cannot express half of a surrogate pair"),
				TEXT("Correct the text."));
			return HostFiles::EWrite::Failed;
		}
		return HostFiles::WriteOver(Path, std::make_shared<const std::string>(std::move(Bytes)), Document.GetBytes(), ReadOnly);
	}

	bool SaveSurely(const FString& Path, TFunctionRef<HostFiles::EWrite()> Edit)
	{
		constexpr int32 MaxAttempts = 5; // who comes between so often will come again
		for (int32 Attempt = 0; Attempt < MaxAttempts; ++Attempt)
		{
			const HostFiles::EWrite Result = Edit();
			if (Result != HostFiles::EWrite::Changed)
			{
				return Result == HostFiles::EWrite::Done;
			}
		}
		HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), TEXT("the file was not written: another program keeps changing it"), TEXT("Try again; the file is as the other one left it."));
		return false;
	}

	void ReportUnreadable(const FString& Path)
	{
		HostProblems::ReportNotWritten(NativePath::ToString(NativePath::MakeFull(Path)), TEXT("the file was not written: what is in it cannot be read"),
			TEXT("Put the file right or move it away."));
	}

	ETextEncoding ChooseForNewFile(std::string_view Text)
	{
		return TextCoding::IsAscii(Text) ? ETextEncoding::Utf8 : ETextEncoding::Utf16LittleEndian;
	}

	ETextEncoding ChooseEncoding(const FTextDocument& Document, std::string_view NewText)
	{
		return Document.GetBytes()->empty() ? ChooseForNewFile(NewText) : Document.GetEncoding();
	}
}

FHostText::FHostText(std::string InText)
	: Bytes(std::make_shared<const std::string>(std::move(InText)))
	, Text(*Bytes)
{
}

FHostText::FHostText(HostFiles::FSharedBytes InBytes, std::string_view InText)
	: Bytes(std::move(InBytes))
	, Text(InText)
{
}

namespace HostTextFiles
{
	HostFiles::ERead ReadUtf8(const FString& Path, FHostText& OutText)
	{
		FTextDocument Document;
		const HostFiles::ERead Result = TextFile::Load(Path, Document);
		OutText = FHostText();
		if (Result != HostFiles::ERead::Done || !TextFile::CheckExpressible(Path, Document))
		{
			return Result == HostFiles::ERead::Missing ? Result : HostFiles::ERead::Failed;
		}
		OutText = Document.IsConverted() ? FHostText(std::string(Document.GetText())) : FHostText(Document.GetBytes(), Document.GetText());
		return Result;
	}

	HostFiles::ERead ReadUtf8(const FString& Path, std::string& OutText)
	{
		const HostFiles::ERead Read = HostFiles::Read(Path, OutText);
		FTextDocument Document;
		const HostFiles::ERead Result = TextFile::Decode(Path, Read, std::make_shared<const std::string>(std::move(OutText)), Document);
		OutText.clear();
		if (Result != HostFiles::ERead::Done || !TextFile::CheckExpressible(Path, Document))
		{
			return Result == HostFiles::ERead::Missing ? Result : HostFiles::ERead::Failed;
		}
		OutText = Document.GetText();
		return Result;
	}

	bool CheckReadable(const FString& Path)
	{
		FTextDocument Document;
		return TextFile::Load(Path, Document) != HostFiles::ERead::Failed;
	}
}
