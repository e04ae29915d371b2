// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "GameFramework/Actor.h"
#include "UObject/WeakObjectPtr.h"

#include <vector>

enum class EVolumeState : uint8
{
	Assigned,
	Unassigned,
	Duplicated, // the running model cannot tell it from another one
};

/** An actor as the plan draws it. Lengths are centimetres of the level; x of the plan is the level's X, y its Y. */
struct FPlanShape
{
	TWeakObjectPtr<AActor> Actor;
	QString Label;
	QStringList Identifier; // key code, where there is one, and number; empty for what is no volume, and while no unit is assigned
	QPointF Centre;
	QSizeF HalfSize; // empty for what is no volume
	double Height = 0.0; // of the volume, from bottom to top
	double Middle = 0.0; // its place on the level's Z
	double Yaw = 0.0; // degrees, clockwise seen from above
	int Floor = -1; // -1 for what stands on none
	EVolumeState State = EVolumeState::Unassigned;
	bool bVolume = false;
	bool bSelected = false;

	/** The box's outline in the level. */
	QPolygonF MakeOutline() const;
};

struct FPlanFloor
{
	double Middle = 0.0; // of its first volume
	int NumVolumes = 0;
};

/** What the plan shows of a level: every actor, unit volumes as boxes on floors. Copies what it needs; knows no widgets. */
class FVolumePlan
{
public:
	static constexpr int AllFloors = -1;

	void Read(const TArray<AActor*>& Actors);

	const std::vector<FPlanShape>& GetShapes() const { return Shapes; }

	/** Lowest first. Volumes stand on one floor when their middles differ by less than half of the lower one's height. */
	const std::vector<FPlanFloor>& GetFloors() const { return Floors; }

	int CountVolumes(EVolumeState State, int Floor) const;

	/** What stands on the floor, or on all; what is on none is always there. Empty when there is nothing. */
	QRectF GetBounds(int Floor) const;

	static bool IsOn(const FPlanShape& Shape, int Floor) { return Floor == AllFloors || Shape.Floor < 0 || Shape.Floor == Floor; }

private:
	void FindClashes();
	void FindFloors();

	std::vector<FPlanShape> Shapes;
	std::vector<FPlanFloor> Floors;
};
