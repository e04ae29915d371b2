// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionLines.h"

#include "Check/FileChanges.h"
#include "EditorHost.h"
#include "HostFiles.h"
#include "Misc/Paths.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <string_view>

namespace CollisionLines
{
	const std::string_view Configuration = "[/Script/Engine.CollisionProfile]\n+Profiles=(Name=\"Any\")\n";

	void CallRepair()
	{
		UClass* Library = FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.VelmorantEditorUtilitiesLibrary"));
		UFunction* Repair = Library != nullptr ? Library->FindFunctionByName(FName(TEXT("AddUnitVolumeCollisionProfile"))) : nullptr;
		checkf(Repair != nullptr, TEXT("The toolkit has no repair to call."));
		Library->GetDefaultObject()->ProcessEvent(Repair, nullptr);
	}

	TArray<FString> Make(const FString& ProjectDir)
	{
		FEditorHostOptions Options;
		Options.Project = FPaths::Combine(ProjectDir, FString(TEXT("Saved/VelmorantScratch"))); // a folder that only the overlay knows
		Options.bWriteOverlay = true;
		const FEditorHost Editor(Options);
		const FString File = FPaths::SourceConfigDir() + TEXT("DefaultEngine.ini");
		HostFiles::Write(File, Configuration);
		const FFileText Before = FFileText::Read(File);
		CallRepair();
		return FileChanges::Compare(Before, FFileText::Read(File)).AddedLines;
	}
}
