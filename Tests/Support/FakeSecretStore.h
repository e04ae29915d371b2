// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "TemporaryFolder.h"

#include <filesystem>
#include <string>

/** A desktop's secret store: a program secret-tool in a folder of its own, which keeps one secret in a file there. */
class FFakeSecretStore
{
public:
	explicit FFakeSecretStore(const FTemporaryFolder& InFolder)
		: Folder(InFolder)
	{
		Replace("case $1 in store) cat >kept ;; lookup) test ! -e kept || cat kept; test -e kept ;; clear) rm kept 2>/dev/null ;; esac");
	}

	/** What PATH has to be: programs find this one then, and never the desktop's real one. */
	std::string GetPath() const { return Folder.GetNative("Desktop").string(); }

	/** Another behaviour, as shell commands in its folder; none: there is no such program. */
	void Replace(const std::string& Commands) const
	{
		std::filesystem::remove(Folder.GetNative(Program));
		if (!Commands.empty())
		{
			Folder.Write(Program, "#!/bin/sh\nPATH=/usr/bin:/bin\ncd \"${0%/*}\"\necho \"$@\" >>calls\n" + Commands + "\n");
			std::filesystem::permissions(Folder.GetNative(Program), std::filesystem::perms(0755));
		}
	}

	/** The arguments of each call, a line each. */
	std::string GetCalls() const { return Folder.Read("Desktop/calls"); }

	bool HasKept() const { return Folder.Exists("Desktop/kept"); }
	std::string GetKept() const { return Folder.Read("Desktop/kept"); }
	void Keep(const std::string& Secret) const { Folder.Write("Desktop/kept", Secret); }
	void Empty() const { std::filesystem::remove(Folder.GetNative("Desktop/kept")); }

private:
	static inline const std::string Program = "Desktop/secret-tool";

	const FTemporaryFolder& Folder;
};
