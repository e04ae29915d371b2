// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostEditor.h"

/** The cameras of the level viewports of one editor. */
class FEditorViewports
{
public:
	FEditorViewports();

	const TArray<HostEditor::FViewport>& Get() const { return Viewports; }

	/** Looks at Target from as far as ViewDistance, each viewport along its own direction. */
	void LookAt(const FVector& Target, const TArray<FString>& ActorLabels, bool bActiveViewportOnly);

private:
	TArray<HostEditor::FViewport> Viewports;
};
