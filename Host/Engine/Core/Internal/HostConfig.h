// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Tuple.h"

/**
 * Configuration of the running editor.
 *
 * A branch has a name ("Engine", "Game", "EditorPerProjectUserSettings", any name a class gives as its config) and three files, each of which
 * may be missing: the host's Base<Name>.ini, the project's Config/Default<Name>.ini and the user's Saved/Config/LinuxEditor/<Name>.ini.
 */
namespace HostConfig
{
	/** Makes GConfig and names the branches. HostPaths must know the project. Nothing is read yet. GConfig goes with the editor. */
	void Boot();

	/** The file under which GConfig knows a branch; it is the user's own file at the same time. */
	FString GetBranchFile(const FString& Name);

	/** <Project>/Config/Default<Name>.ini. */
	FString GetDefaultFile(const FString& Name);

	/** Makes GConfig see what was written to the files of a branch. Copies of single files follow by themselves. */
	void ReloadBranch(const FString& Name);

	/**
	 * Changes one section of one file and nothing else: the file is read again under its lock, and encoding, line ends, comments, other
	 * keys, other sections and their order stay as they are.
	 *
	 * The n-th line of a key takes the place of the n-th one that is there; more lines of a key follow its last one, lines of a key that
	 * is not there yet end the section, and lines that are left over are removed. A line that says the same already stays as it is
	 * written. File and section are created when there is something to put in.
	 *
	 * @param Lines     keys with their + - . ! in front, and plain values, which are quoted here where the reader needs it
	 * @param OwnedKeys keys without prefix that belong to the caller, whatever prefix they have in the file; those of Lines count, too
	 * @return false when the file could not be read or written (reported); it is as it was then.
	 */
	bool UpdateSection(const FString& File, const FString& Section, const TArray<TPair<FString, FString>>& Lines, const TArray<FString>& OwnedKeys);
}
