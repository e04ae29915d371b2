// Copyright Velmorant. All Rights Reserved.

#include "StandardInput.h"

#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "Refusal.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <unistd.h>

namespace StandardInput
{
	const TCHAR* const Written = TEXT("-");
	const TCHAR* const Shown = TEXT("<stdin>"); // in messages; with the working folder before it, pictures of a data file start there
	constexpr size_t MaxBytes = size_t(256) << 20; // as of files

	/** What is wrong, or nothing. */
	std::string ReadAll(std::string& OutBytes)
	{
		char Buffer[1 << 16];
		ssize_t Count = 0;
		while ((Count = read(STDIN_FILENO, Buffer, sizeof(Buffer))) != 0)
		{
			if (Count < 0 && errno != EINTR)
			{
				return std::strerror(errno);
			}
			OutBytes.append(Buffer, static_cast<size_t>(Count > 0 ? Count : 0));
			if (OutBytes.size() > MaxBytes)
			{
				return "it is larger than 256 MB";
			}
		}
		return {};
	}

	EExitStatus Refuse(EExitStatus Status, const FString& Reason, bool bJson)
	{
		Refusal::Print(Status, {Reason}, bJson);
		return Status;
	}

	TOptional<EExitStatus> Take(const TArray<FString*>& Files, bool bJson)
	{
		FString* Meant = nullptr;
		for (FString* File : Files)
		{
			if (*File == Written && Meant != nullptr)
			{
				return Refuse(EExitStatus::Usage, TEXT("Only one file can come from the standard input. Name the other."), bJson);
			}
			Meant = *File == Written ? File : Meant;
		}
		if (Meant == nullptr)
		{
			return {};
		}
		std::string Bytes;
		const std::string Trouble = ReadAll(Bytes);
		if (!Trouble.empty())
		{
			return Refuse(EExitStatus::Trouble, FString::Printf(TEXT("The standard input cannot be read: %s."), UTF8_TO_TCHAR(Trouble.c_str())), bJson);
		}
		HostFiles::GiveContents(Shown, std::move(Bytes));
		*Meant = Shown;
		return {};
	}
}
