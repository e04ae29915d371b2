// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;
class UEditorUtilityWidget;

/** A tab that is open in the editor. */
struct FHostTab
{
	FName Id;
	FString Label; // the blueprint's name
	UEditorUtilityWidget* Panel = nullptr;
	TSharedPtr<SWidget> Content; // for HostSnapshot
};

/** The tabs of the running editor. */
namespace HostTabs
{
	/** The front one last. */
	TArray<FHostTab> GetOpen();

	/** The tab in front whose label or id is Name, ignoring case; the front one of all for an empty name. Content is null when there is none. */
	FHostTab Find(const FString& Name);
}
