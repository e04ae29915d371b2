// Copyright Velmorant. All Rights Reserved.

#include "Install/DescriptorFile.h"

#include "Containers/StringConv.h"
#include "HostProblems.h"
#include "HostTextFiles.h"

namespace DescriptorFile
{
	constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
	constexpr std::string_view LittleEndianMark = "\xFF\xFE";
	constexpr std::string_view BigEndianMark = "\xFE\xFF";

	std::string EncodeUtf16(const std::string& Text, bool bBigEndian)
	{
		std::string Result(bBigEndian ? BigEndianMark : LittleEndianMark);
		for (const TCHAR Unit : FString(UTF8_TO_TCHAR(Text.c_str())))
		{
			const char Low = static_cast<char>(Unit & 0xFF);
			const char High = static_cast<char>(Unit >> 8);
			Result += bBigEndian ? High : Low;
			Result += bBigEndian ? Low : High;
		}
		return Result;
	}
}

bool FDescriptorFile::Read(const FString& Path)
{
	const HostFiles::ERead Result = HostFiles::Read(Path, Bytes);
	if (Result == HostFiles::ERead::Missing)
	{
		HostProblems::Report(Path, 0, TEXT("there is no such file"), TEXT("Check its path."));
	}
	return Result == HostFiles::ERead::Done && HostTextFiles::ReadUtf8(Path, Text) == HostFiles::ERead::Done;
}

std::string FDescriptorFile::Encode(const std::string& NewText) const
{
	const bool bBigEndian = Bytes.starts_with(DescriptorFile::BigEndianMark);
	if (bBigEndian || Bytes.starts_with(DescriptorFile::LittleEndianMark))
	{
		return DescriptorFile::EncodeUtf16(NewText, bBigEndian);
	}
	return (Bytes.starts_with(DescriptorFile::Utf8Mark) ? std::string(DescriptorFile::Utf8Mark) : "") + NewText;
}
