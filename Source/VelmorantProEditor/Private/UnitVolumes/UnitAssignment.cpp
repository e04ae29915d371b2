// Copyright Velmorant. All Rights Reserved.

#include "UnitVolumes/UnitAssignment.h"

#include "Editor.h"
#include "EditorServices/VelmorantChange.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "ProjectWrapper.h"
#include "ScopedTransaction.h"
#include "ServiceData/VelmorantSelectedProject.h"
#include "UnitGroupWrapper.h"
#include "UnitVolumeActor.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

bool UnitAssignment::AssignTargetUnits()
{
	const UProjectWrapper* Project = VelmorantSelectedProject::Find();
	const UUnitGroupWrapper* Target = Project ? Project->GetUnitGroupTarget() : nullptr;
	TArray<FUnitData> Units = Target ? Target->GetUnitListData() : TArray<FUnitData>();
	if (Units.IsEmpty())
	{
		return false;
	}

	TArray<AActor*> Volumes;
	UGameplayStatics::GetAllActorsOfClass(GEditor->GetEditorWorldContext(false).World(), AUnitVolumeActor::StaticClass(), Volumes);
	if (Volumes.IsEmpty())
	{
		return false;
	}

	const FScopedTransaction Transaction(LOCTEXT("AssignUnitsTransaction", "Assign Units to Unit Volumes"));
	for (AActor* Actor : Volumes)
	{
		AUnitVolumeActor* Volume = Cast<AUnitVolumeActor>(Actor);
		if (!IsValid(Volume))
		{
			continue;
		}
		if (Units.IsEmpty())
		{
			break;
		}

		// From the end of the list, in the order in which the volumes are found: not random at all, on purpose.
		const FUnitData Unit = Units.Pop();
		VelmorantChange::Write(*Volume, Volume->UniqueIdentifier, FUnitVolumeUniqueIdentifier(Unit.UnitID, Unit.KeyCode));
		Volume->MarkPackageDirty();
		Volume->PostEditChange();
	}
	return true;
}

#undef LOCTEXT_NAMESPACE
