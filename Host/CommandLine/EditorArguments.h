// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "EditorHost.h"

/** How a command starts its editor: as a person would, unless said otherwise. */
struct FEditorArguments
{
	FString Platform; // whose configuration counts; empty: this machine's
	bool bUnattended = false;
	bool bCommandlet = false;
	bool bNullRhi = false;
	bool bNoNotifications = false;
};

namespace EditorArguments
{
	FEditorHostOptions MakeOptions(const FString& Project, const FEditorArguments& Arguments);
}
