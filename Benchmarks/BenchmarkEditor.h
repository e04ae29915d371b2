// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorHost.h"
#include "TemporaryFolder.h"

#include <string_view>

/** An editor on an empty project of its own, which goes with it. */
class FBenchmarkEditor
{
public:
	FBenchmarkEditor();

	/** The toolkit's service answers from this data file (JSON). */
	explicit FBenchmarkEditor(std::string_view Service);

	/** Edits the service's data file. */
	void WriteService(std::string_view Service) const { Folder.Write("Service.json", Service); }

	/** Signs in and waits for the answer. */
	void SignIn(const TCHAR* UserName, const TCHAR* Password);

	/** Makes one of the user's projects the selected one and waits for its data. */
	void SelectProject(const TCHAR* KeyCode);

	void Tick() { Editor.Tick(0.0); }

private:
	FEditorHostOptions MakeOptions(std::string_view Service) const;

	FTemporaryFolder Folder;
	FEditorHost Editor;
};
