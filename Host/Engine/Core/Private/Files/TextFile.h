// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Files/TextDocument.h"
#include "HostFiles.h"
#include "Templates/Function.h"

#include <string>
#include <string_view>

/** Text documents and the files they are in. Faults are reported. */
namespace TextFile
{
	/** Done with a document, or why there is none. */
	HostFiles::ERead Load(const FString& Path, FTextDocument& OutDocument);

	/** Writes a text that was made of Document. The file stays as it is when the encoding cannot express the text. */
	HostFiles::EWrite Save(const FString& Path, const FTextDocument& Document, std::string Text, ETextEncoding Encoding, HostFiles::EReadOnly ReadOnly = HostFiles::EReadOnly::Refuse);

	/** Edit loads, changes and saves; it is called again when another program changed the file in between. False when it failed. */
	bool SaveSurely(const FString& Path, TFunctionRef<HostFiles::EWrite()> Edit);

	/** Of a file that was to be written over what Load() failed to read. */
	void ReportUnreadable(const FString& Path);

	/** The encoding that the editor gives to a new file with this text. */
	ETextEncoding ChooseForNewFile(std::string_view Text);

	/** That of the document, or of a new file where the document had no bytes. */
	ETextEncoding ChooseEncoding(const FTextDocument& Document, std::string_view NewText);
}
