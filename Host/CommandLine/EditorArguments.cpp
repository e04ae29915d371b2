// Copyright Velmorant. All Rights Reserved.

#include "EditorArguments.h"

FEditorHostOptions EditorArguments::MakeOptions(const FString& Project, const FEditorArguments& Arguments)
{
	FEditorHostOptions Options;
	Options.Project = Project;
	Options.Platform = Arguments.Platform;
	Options.bAllowNotifications = !Arguments.bNoNotifications;
	Options.CommandLine += Arguments.bUnattended ? TEXT(" -unattended") : TEXT("");
	Options.CommandLine += Arguments.bNullRhi ? TEXT(" -nullrhi") : TEXT("");
	Options.CommandLine += Arguments.bCommandlet ? TEXT(" -run=Velmorant") : TEXT("");
	return Options;
}
