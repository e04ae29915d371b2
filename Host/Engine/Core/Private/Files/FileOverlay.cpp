// Copyright Velmorant. All Rights Reserved.

#include "Files/FileOverlay.h"

#include <memory>
#include <utility>

const FFileOverlay::FEntry* FFileOverlay::Find(const std::string& Path) const
{
	const auto Found = Entries.find(Path);
	return Found != Entries.end() ? &Found->second : nullptr;
}

bool FFileOverlay::HasDirectory(const std::string& Path) const
{
	const std::string Prefix = Path + "/";
	for (auto Entry = Entries.lower_bound(Prefix); Entry != Entries.end() && Entry->first.starts_with(Prefix); ++Entry)
	{
		if (!Entry->second.bDeleted)
		{
			return true;
		}
	}
	return false;
}

void FFileOverlay::Write(const std::string& Path, HostFiles::FSharedBytes Bytes, HostFiles::FSharedBytes Basis)
{
	const auto [Place, bNew] = Entries.try_emplace(Path);
	FEntry& Entry = Place->second;
	if (bNew)
	{
		Entry.Basis = std::move(Basis);
	}
	Entry.bDeleted = false;
	Entry.Bytes = std::move(Bytes);
}

void FFileOverlay::Delete(const std::string& Path)
{
	FEntry& Entry = Entries[Path];
	Entry.bDeleted = true;
	Entry.Bytes = std::make_shared<const std::string>();
}
