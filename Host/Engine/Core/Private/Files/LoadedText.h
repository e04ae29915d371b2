// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostFiles.h"

#include <string>

/**
 * What this editor saw of text files when it loaded them through FFileHelper, until it saves them. A save of lines compares this with the
 * disk to find out what others wrote in between; and an empty text after a failed load is not what the file is to become.
 */
namespace LoadedText
{
	enum class EState
	{
		Unknown, // not loaded since the last save
		Seen, // Bytes are what was there; none for a missing file
		Failed // could not be read or decoded
	};

	struct FRecord
	{
		EState State = EState::Unknown;
		HostFiles::FSharedBytes Bytes;
	};

	/** Path is resolved. The reference is good until the next change. */
	const FRecord& Find(const std::string& Path);

	void RememberSeen(const std::string& Path, HostFiles::FSharedBytes Bytes);
	void RememberFailure(const std::string& Path);
	void Forget(const std::string& Path);
}
