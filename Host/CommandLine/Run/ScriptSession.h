// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorHost.h"
#include "PanelHost.h"
#include "Run/DetailsPanels.h"
#include "Run/PreparedAnswers.h"
#include "Run/ProjectFiles.h"
#include "Run/StepEvents.h"
#include "Templates/UniquePtr.h"
#include "ToolbarHost.h"

/**
 * The editor that a script works in, over restarts: panels, prepared answers, what happened, which files were written.
 * The editor comes up with the first Start(); until then nothing but the constructor's arguments is known.
 */
class FScriptSession
{
public:
	explicit FScriptSession(const FEditorHostOptions& InOptions);
	~FScriptSession();
	FScriptSession(const FScriptSession&) = delete;
	FScriptSession& operator=(const FScriptSession&) = delete;

	/** Brings the editor up unless it runs. */
	void Start();
	bool IsRunning() const { return Editor.IsValid(); }

	/** Takes the editor down and another one up. Unsaved changes are lost: ask GetUnsaved() first. */
	void Restart();

	/** Whether the editor asked for a restart that did not come yet. */
	bool WantsRestart() const;

	FEditorHost& GetEditor() { return *Editor; }
	FPanelHost& GetPanels() { return Panels; }
	FToolbarHost& GetToolbar() { return Toolbar; }
	FDetailsPanels& GetDetails() { return Details; }
	FEventWatch& GetEvents() { return Events; }
	/** They survive a restart. */
	FPreparedAnswers& GetAnswers() { return Answers; }
	const FProjectFiles& GetFiles() const { return Files; }

	/** Packages that would be lost if the editor went down now, by name. */
	TArray<FString> GetUnsaved() const;

	/** What became of the packages that were to be saved, by name. */
	struct FSaved
	{
		TArray<FString> Saved;
		TArray<FString> Failed;
		TArray<FString> Homeless; // levels that have no file yet
	};

	/** Saves one of those that GetUnsaved() names, or all. */
	FSaved Save(const TArray<FString>& Packages);

	/** Who is asked what no answer was prepared for; null for nobody. Holds over restarts. */
	void SetPerson(TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> InPerson) { Person = MoveTemp(InPerson); }

	/** Told before an editor goes down: who looks at it lets go of all that is in it. Null for nobody. */
	void SetGoingDownListener(TFunction<void()> InGoingDown) { GoingDown = MoveTemp(InGoingDown); }

	/** By all editors so far, in order of the first write; relative to the project where they are in it. */
	TArray<FString> GetWrittenFiles() const;

	/** Of all editors so far. */
	int32 GetNumProblems() const;

	/** What the last call gave, as text. */
	FString LastResult;

private:
	void BringUp();
	void TakeDown();
	TOptional<FHostAnswer> Answer(const FHostQuestion& Question);

	const FEditorHostOptions Options;
	const FProjectFiles Files;
	FPreparedAnswers Answers;
	TFunction<TOptional<FHostAnswer>(const FHostQuestion&)> Person;
	TFunction<void()> GoingDown;
	TUniquePtr<FEditorHost> Editor;
	FPanelHost Panels; // empty while no editor runs, and so are the toolbar and the details panels
	FToolbarHost Toolbar;
	FDetailsPanels Details;
	FEventWatch Events;
	TArray<FString> EarlierWrites;
	int32 NumEarlierProblems = 0;
};
