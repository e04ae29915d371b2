// Copyright Velmorant. All Rights Reserved.

#include "EditorViewports.h"

namespace EditorViewports
{
	constexpr double ViewDistance = 1000.0; // centimetres: near enough to see one actor, far enough to see what is around it

	HostEditor::FViewport Make(const TCHAR* Name, const FVector& ViewDirection, bool bActive)
	{
		HostEditor::FViewport Viewport;
		Viewport.Name = Name;
		Viewport.ViewDirection = ViewDirection;
		Viewport.bActive = bActive;
		return Viewport;
	}
}

FEditorViewports::FEditorViewports()
{
	Viewports.Add(EditorViewports::Make(TEXT("Perspective"), FVector(1.0, 0.0, 0.0), true));
	Viewports.Add(EditorViewports::Make(TEXT("Top"), FVector(0.0, 0.0, -1.0), false));
	Viewports.Add(EditorViewports::Make(TEXT("Left"), FVector(0.0, 1.0, 0.0), false));
	Viewports.Add(EditorViewports::Make(TEXT("Front"), FVector(-1.0, 0.0, 0.0), false));
}

void FEditorViewports::LookAt(const FVector& Target, const TArray<FString>& ActorLabels, bool bActiveViewportOnly)
{
	for (HostEditor::FViewport& Viewport : Viewports)
	{
		if (Viewport.bActive || !bActiveViewportOnly)
		{
			Viewport.Target = Target;
			Viewport.CameraLocation = Target - Viewport.ViewDirection * EditorViewports::ViewDistance;
			Viewport.FocusedActors = ActorLabels;
			++Viewport.NumMoves;
		}
	}
}
