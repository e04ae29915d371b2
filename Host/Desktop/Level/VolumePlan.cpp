// Copyright Velmorant. All Rights Reserved.

#include "Level/VolumePlan.h"

#include "QtText.h"
#include "UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumeClashes.h"

#include <algorithm>
#include <cmath>

namespace VolumePlan
{
	static const double LeastFloorHeight = 50.0; // centimetres

	EVolumeState GetStateOf(const FUnitVolumeUniqueIdentifier& Identifier)
	{
		const bool bUntouched = Identifier.UnitID == FUnitVolumeUniqueIdentifier().UnitID && !Identifier.HasValidKeycode();
		return bUntouched ? EVolumeState::Unassigned : EVolumeState::Assigned;
	}

	QStringList Describe(const FUnitVolumeUniqueIdentifier& Identifier)
	{
		const QString Number = QString::number(Identifier.UnitID);
		return Identifier.HasValidKeycode() ? QStringList({QtText::From(Identifier.Keycode), Number}) : QStringList({Number});
	}

	FPlanShape MakeShape(AActor& Actor)
	{
		FPlanShape Shape;
		const FVector Location = Actor.GetActorLocation();
		Shape.Actor = &Actor;
		Shape.Label = QtText::From(Actor.GetActorLabel());
		Shape.Centre = QPointF(Location.X, Location.Y);
		Shape.Middle = Location.Z;
		Shape.Yaw = Actor.GetActorRotation().Yaw;
		Shape.bSelected = Actor.IsSelected();
		if (const AUnitVolumeActor* const Volume = Cast<AUnitVolumeActor>(&Actor))
		{
			const FVector Scale = Actor.GetActorScale3D();
			Shape.bVolume = true;
			Shape.HalfSize = QSizeF(std::abs(Volume->BoxExtent.X * Scale.X), std::abs(Volume->BoxExtent.Y * Scale.Y));
			Shape.Height = 2.0 * std::abs(Volume->BoxExtent.Z * Scale.Z);
			Shape.State = GetStateOf(Volume->UniqueIdentifier);
			Shape.Identifier = Shape.State == EVolumeState::Unassigned ? QStringList() : Describe(Volume->UniqueIdentifier);
		}
		return Shape;
	}
}

QPolygonF FPlanShape::MakeOutline() const
{
	QTransform Place;
	Place.translate(Centre.x(), Centre.y());
	Place.rotate(Yaw);
	return Place.map(QPolygonF(QRectF(-HalfSize.width(), -HalfSize.height(), 2.0 * HalfSize.width(), 2.0 * HalfSize.height())));
}

void FVolumePlan::Read(const TArray<AActor*>& Actors)
{
	Shapes.clear();
	Shapes.reserve(static_cast<std::size_t>(Actors.Num()));
	for (AActor* const Actor : Actors)
	{
		Shapes.push_back(VolumePlan::MakeShape(*Actor));
	}
	FindClashes();
	FindFloors();
}

/** By the toolkit's own rule: what its check of the level lists. */
void FVolumePlan::FindClashes()
{
	TArray<const FUnitVolumeUniqueIdentifier*> Identifiers;
	std::vector<FPlanShape*> Volumes;
	for (FPlanShape& Shape : Shapes)
	{
		if (const AUnitVolumeActor* const Volume = Cast<AUnitVolumeActor>(Shape.Actor.Get()))
		{
			Identifiers.Add(&Volume->UniqueIdentifier);
			Volumes.push_back(&Shape);
		}
	}
	for (const UnitVolumeClashes::FGroup& Group : UnitVolumeClashes::Find(Identifiers))
	{
		for (const int32 Index : Group.Volumes)
		{
			Volumes[static_cast<std::size_t>(Index)]->State = EVolumeState::Duplicated;
		}
	}
}

void FVolumePlan::FindFloors()
{
	Floors.clear();
	std::vector<FPlanShape*> Volumes;
	for (FPlanShape& Shape : Shapes)
	{
		if (Shape.bVolume)
		{
			Volumes.push_back(&Shape);
		}
	}
	std::stable_sort(Volumes.begin(), Volumes.end(), [](const FPlanShape* Left, const FPlanShape* Right) { return Left->Middle < Right->Middle; });
	double Reach = 0.0;
	for (FPlanShape* const Volume : Volumes)
	{
		if (Floors.empty() || Volume->Middle - Floors.back().Middle >= Reach)
		{
			Floors.push_back({Volume->Middle, 0});
			Reach = std::max(VolumePlan::LeastFloorHeight, Volume->Height / 2.0);
		}
		++Floors.back().NumVolumes;
		Volume->Floor = static_cast<int>(Floors.size()) - 1;
	}
}

int FVolumePlan::CountVolumes(EVolumeState State, int Floor) const
{
	return static_cast<int>(std::count_if(Shapes.begin(), Shapes.end(), [State, Floor](const FPlanShape& Shape) { return Shape.bVolume && Shape.State == State && IsOn(Shape, Floor); }));
}

QRectF FVolumePlan::GetBounds(int Floor) const
{
	QRectF Bounds;
	for (const FPlanShape& Shape : Shapes)
	{
		if (IsOn(Shape, Floor))
		{
			const QRectF Own = Shape.bVolume ? Shape.MakeOutline().boundingRect() : QRectF(Shape.Centre - QPointF(50.0, 50.0), QSizeF(100.0, 100.0));
			Bounds = Bounds.isNull() ? Own : Bounds.united(Own);
		}
	}
	return Bounds;
}
