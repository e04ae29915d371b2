// Copyright Velmorant. All Rights Reserved.

#include "HostLeftovers.h"

#include "Files/AtomicReplace.h"
#include "Files/NativePath.h"
#include "HostFiles.h"

#include <filesystem>
#include <set>
#include <system_error>

void HostLeftovers::RemoveBelow(const FString& Directory)
{
	if (HostFiles::HasOverlay())
	{
		return;
	}
	std::set<std::string> Folders;
	// Whatever cannot be read is passed over: whoever needs it will say so.
	std::error_code Error;
	const auto Options = std::filesystem::directory_options::skip_permission_denied;
	for (std::filesystem::recursive_directory_iterator Entry(NativePath::Resolve(Directory), Options, Error), End; !Error && Entry != End; Entry.increment(Error))
	{
		if (AtomicReplace::IsTemporaryName(Entry->path().filename().native()))
		{
			Folders.insert(Entry->path().parent_path().native());
		}
	}
	for (const std::string& Folder : Folders)
	{
		AtomicReplace::RemoveLeftovers(Folder);
	}
}
