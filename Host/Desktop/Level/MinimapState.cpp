// Copyright Velmorant. All Rights Reserved.

#include "Level/MinimapState.h"

#include "EngineUtils.h"
#include "Level/LevelActors.h"
#include "MinimapConfigAsset.h"
#include "MinimapLevelController.h"
#include "QtText.h"
#include "ScopedTransaction.h"

namespace MinimapState
{
	AMinimapLevelController* FindController()
	{
		UWorld* const World = LevelActors::GetWorld();
		if (World == nullptr)
		{
			return nullptr;
		}
		const TActorIterator<AMinimapLevelController> First(World);
		return First ? *First : nullptr;
	}

	FMinimapState::EMissing FindMissing(const AMinimapLevelController* Controller)
	{
		if (Controller == nullptr)
		{
			return FMinimapState::EMissing::Controller;
		}
		if (Controller->GetMinimapConfiguration() == nullptr)
		{
			return FMinimapState::EMissing::Configuration;
		}
		return Controller->GetMinimapConfiguration()->Floors.IsEmpty() ? FMinimapState::EMissing::Floors : FMinimapState::EMissing::Nothing;
	}
}

FMinimapState FMinimapState::Read()
{
	FMinimapState State;
	const AMinimapLevelController* const Controller = MinimapState::FindController();
	State.Missing = MinimapState::FindMissing(Controller);
	if (State.Missing == EMissing::Nothing)
	{
		for (const FMinimapFloor& Floor : Controller->GetMinimapConfiguration()->Floors)
		{
			State.Floors.append(QtText::From(Floor.DisplayName));
		}
		State.Active = Controller->HasActiveFloor() ? Controller->GetActiveFloorIndex() : -1;
		State.Transform = Controller->GetActiveFloorTransform();
	}
	return State;
}

void FMinimapState::Activate(int Floor)
{
	AMinimapLevelController* const Controller = MinimapState::FindController();
	if (Controller != nullptr && Controller->GetActiveFloorIndex() != Floor)
	{
		const FScopedTransaction Step(FText::FromString(QtText::ToEditor(QObject::tr("Show minimap floor"))));
		Controller->Modify();
		Controller->SetActiveFloor(Floor);
	}
}

void FMinimapState::SelectController()
{
	if (AMinimapLevelController* const Controller = MinimapState::FindController())
	{
		LevelActors::Select({Controller});
	}
}
