// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "LargeProperty.h"

#include "Editor.h"
#include "EditorHost.h"
#include "Engine/World.h"
#include "HostEditor.h"
#include "TemporaryFolder.h"
#include "UnitVolumeActor.h"

namespace LargeProperty
{
	static const TCHAR* const Map = TEXT("/Game/Maps/Large");
	static const int64 PerRow = 100;
	static const double Spacing = 350.0; // centimetres

	void Fill(UWorld& World, int64 NumUnits)
	{
		for (int64 Index = 0; Index < NumUnits; ++Index)
		{
			const FVector Location(static_cast<double>(Index % PerRow) * Spacing, static_cast<double>(Index / PerRow) * Spacing, 0.0);
			AUnitVolumeActor* const Volume = World.SpawnActor<AUnitVolumeActor>(Location, FRotator::ZeroRotator);
			const int32 Unit = static_cast<int32>(Index);
			Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(Unit, FString::Printf(TEXT("HT-%06d"), Unit));
			Volume->SetActorLabel(FString::Printf(TEXT("Unit %d"), Unit));
		}
	}

	void Write(const FTemporaryFolder& Folder, int64 NumUnits)
	{
		Folder.Write("Large.uproject", "{ \"FileVersion\": 3 }\n");
		Folder.Write("Config/DefaultEngine.ini", "[/Script/EngineSettings.GameMapsSettings]\nEditorStartupMap=/Game/Maps/Large.Large\n");
		FEditorHostOptions Options;
		Options.Project = Folder.Get("Large.uproject");
		Options.UserSettingsDir = Folder.Get("UserConfig") + TEXT("/");
		const FEditorHost Editor(Options);
		Fill(*GEditor->GetEditorWorldContext().World(), NumUnits);
		HostEditor::SaveOpenMapAs(Map);
	}
}
