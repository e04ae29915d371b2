// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostFiles.h"

#include <string_view>

/** What the last repair put into a project's DefaultEngine.ini. */
struct FRepairRecord
{
	bool bCreated = false; // the file was not there before
	TArray<TArray<FString>> Added; // runs of lines, from the top
};

/**
 * The records of repairs, one for each project, in the user's state folder and not in the project: nobody commits them by accident. A
 * project is its folder's real path.
 */
namespace RepairRecord
{
	/** From the text before and after the repair, UTF-8. @return false when the repair did more than add lines, which it never should. */
	bool Make(std::string_view Before, std::string_view After, FRepairRecord& OutRecord);

	/** Of repairs that were ended half way, beside the configuration file and beside the records. */
	void RemoveLeftovers(const FString& IniFile);

	/** Takes the place of the project's last record. Readable by the user only. @return false when it cannot be written (reported). */
	bool Save(const FString& ProjectDir, const FRepairRecord& Record);

	/** Failed for a record that cannot be read or is none (reported). */
	HostFiles::ERead Load(const FString& ProjectDir, FRepairRecord& OutRecord);

	/** @return false when it cannot be deleted (reported). */
	bool Forget(const FString& ProjectDir);
}
