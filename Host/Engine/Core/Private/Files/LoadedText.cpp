// Copyright Velmorant. All Rights Reserved.

#include "Files/LoadedText.h"

#include "HostState.h"

#include <unordered_map>
#include <utility>

namespace LoadedText
{
	THostState<std::unordered_map<std::string, FRecord>> Records;

	const FRecord& Find(const std::string& Path)
	{
		static const FRecord Unknown;
		const auto Found = Records.Get().find(Path);
		return Found != Records.Get().end() ? Found->second : Unknown;
	}

	void RememberSeen(const std::string& Path, HostFiles::FSharedBytes Bytes)
	{
		Records.Get()[Path] = FRecord{EState::Seen, std::move(Bytes)};
	}

	void RememberFailure(const std::string& Path)
	{
		Records.Get()[Path] = FRecord{EState::Failed, nullptr};
	}

	void Forget(const std::string& Path)
	{
		Records.Get().erase(Path);
	}
}
