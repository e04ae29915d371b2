// Copyright Velmorant. All Rights Reserved.

#include "Files/DirectoryLock.h"

#include "CoreTypes.h"

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <sys/file.h>
#include <unistd.h>

namespace DirectoryLock
{
	struct FHeldLock
	{
		int File = -1;
		int32 Count = 1;
	};

	/** As long as the process: a lock may outlive no editor, but it belongs to none. */
	std::map<std::string, FHeldLock>& GetHeld()
	{
		static std::map<std::string, FHeldLock> Held;
		return Held;
	}

	bool Acquire(const std::string& Folder)
	{
		const auto Found = GetHeld().find(Folder);
		if (Found != GetHeld().end())
		{
			++Found->second.Count;
			return true;
		}
		const int File = open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
		if (File < 0)
		{
			return false;
		}
		int Result = 0;
		do
		{
			Result = flock(File, LOCK_EX);
		} while (Result != 0 && errno == EINTR);
		if (Result != 0)
		{
			close(File);
			return false;
		}
		GetHeld()[Folder] = FHeldLock{File};
		return true;
	}

	void Release(const std::string& Folder)
	{
		const auto Found = GetHeld().find(Folder);
		if (Found != GetHeld().end() && --Found->second.Count == 0)
		{
			close(Found->second.File);
			GetHeld().erase(Found);
		}
	}
}
