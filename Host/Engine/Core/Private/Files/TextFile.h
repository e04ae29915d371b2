// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Files/TextDocument.h"
#include "HostFiles.h"

#include <string>

/** Text documents and the files they are in. Faults are reported. */
namespace TextFile
{
	/** Done with a document, or why there is none. Keeps the bytes for the caller, who may want to compare with them later. */
	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument, std::string& OutBytes);

	/** Writes the document. False, and the file stays as it is, when its encoding cannot express the text or the file cannot be written. */
	bool Save(const FString& Path, const FTextDocument& Document, HostFiles::EReadOnly ReadOnly, std::string& OutBytes);

	/** Of a file that was to be written over what Load() failed to read. */
	void ReportUnreadable(const FString& Path);

	/** The encoding that the editor gives to a new file with these lines. */
	ETextEncoding ChooseForNewFile(const FTextDocument& Document);
}
