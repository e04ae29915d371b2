// Copyright Velmorant. All Rights Reserved.

#include "UnrealEdMisc.h"

#include "HostEditor.h"
#include "HostPackages.h"
#include "HostState.h"
#include "UObject/Package.h"

namespace UnrealEdMisc
{
	THostState<TArray<HostEditor::FRestartRequest>> Requests;
}

FUnrealEdMisc& FUnrealEdMisc::Get()
{
	static FUnrealEdMisc Misc;
	return Misc;
}

void FUnrealEdMisc::RestartEditor(bool bWarn, const TOptional<FString>& NewCommandLine)
{
	HostEditor::FRestartRequest Request;
	Request.bWarn = bWarn;
	Request.NewCommandLine = NewCommandLine;
	for (const UPackage* Package : HostPackages::GetDirtyPackages())
	{
		Request.UnsavedPackages.Add(Package->GetName());
	}
	UnrealEdMisc::Requests.Get().Add(Request);
}

const TArray<HostEditor::FRestartRequest>& HostEditor::GetRestartRequests()
{
	return UnrealEdMisc::Requests.Get();
}
