// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Tuple.h"

/**
 * Configuration of the running editor.
 *
 * A branch has a name ("Engine", "Game", "EditorPerProjectUserSettings", any name a class gives as its config) and layers, each of which
 * may be missing and overrules those before it: the host's Base<Name>.ini; of the project Config/Default<Name>.ini, then the platform's
 * Config/<Platform>/<Platform><Name>.ini and Platforms/<Platform>/Config/<Platform><Name>.ini (those of Unix before those of Linux), then
 * Config/User<Name>.ini; last the user's Saved/Config/<Platform>Editor/<Name>.ini.
 */
namespace HostConfig
{
	/** Platforms that an editor runs on. */
	const TArray<FString>& GetPlatforms();

	/** Whose settings count in the running editor: one of GetPlatforms(), this machine's unless set. To be set before Boot(). */
	void SetPlatform(const FString& Platform);
	const FString& GetPlatform();

	/** Makes GConfig and names the branches. HostPaths must know the project. Nothing is read yet. GConfig goes with the editor. */
	void Boot();

	/** The file under which GConfig knows a branch; it is the user's own file at the same time. */
	FString GetBranchFile(const FString& Name);

	/** <Project>/Config/Default<Name>.ini. */
	FString GetDefaultFile(const FString& Name);

	/** The files of a branch as listed above, lowest first. */
	TArray<FString> GetLayers(const FString& Name);

	/**
	 * A file of the branch that could not be read when somebody asked for it, empty for none. What the editor believes of these settings is
	 * not what they are, and is not to be saved, until it is restarted.
	 */
	FString FindUnread(const FString& Name);

	/** A value that one line of a branch brings and a later one takes away. */
	struct FRemovedValue
	{
		FString Key; // without operation
		FString Value;
		FString File; // of the line that takes it away
		int32 Line = 0; // one-based
		FString LineText;
	};

	/** What a section of a branch brings and takes away again, as its files are now, in the order in which it was brought. */
	TArray<FRemovedValue> GetRemovedValues(const FString& Name, const FString& Section);

	/** A line of one of the files of a branch. */
	struct FPlace
	{
		FString File; // empty when there is no such line
		int32 Line = 0; // one-based
	};

	/** The last line that gives the key, with any operation in front, this value. */
	FPlace FindLine(const FString& Name, const FString& Section, const FString& Key, const FString& Value);

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

	enum class ERemoval : uint8
	{
		Done,
		NotThere, // what was to go does not stand there as it was put in
		Failed // the file could not be read or written; reported
	};

	/**
	 * Takes lines out of a file that were put in once, wherever they stand now, and nothing else: encoding, line ends and all other lines
	 * stay as they are. Either all blocks go, or the file is not touched.
	 *
	 * The lines of a block are to stand in their order; others may have come between them. Blank lines at a block's beginning go with it
	 * where they are. Entries that stay must stay in their section: a header goes only when nothing was added below it.
	 *
	 * @param OutReason for NotThere, as the end of a sentence
	 */
	ERemoval RemoveLines(const FString& File, const TArray<TArray<FString>>& Blocks, FString& OutReason);
}
