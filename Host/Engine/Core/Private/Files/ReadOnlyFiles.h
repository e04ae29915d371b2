// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Files/WriteRules.h"

#include <string>

/**
 * Read-only files of a project under version control, and the question what to do about them.
 *
 * A project is under version control when its folder or one above holds what such systems leave there, or when a command for checking
 * files out is set: CheckOutCommand in [Velmorant.VersionControl] of the editor's configuration.
 */
namespace ReadOnlyFiles
{
	/**
	 * Asks before a read-only file below such a project is written, and does what the answer says; other files are left alone.
	 *
	 * @param InOutOnDisk what stands at the path, afterwards as it is then
	 * @return false when the write must not go on, which is reported; true says nothing about the file being writable now
	 */
	bool AskToOpen(const std::string& Path, WriteRules::FOnDisk& InOutOnDisk);
}
