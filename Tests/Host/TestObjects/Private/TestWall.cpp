// Copyright Velmorant. All Rights Reserved.

#include "TestWall.h"

int32 UTestWall::NumAlive = 0;

UTestWall::UTestWall()
{
	++NumAlive;
	Skirting = CreateDefaultSubobject<UTestSkirting>(TEXT("Skirting"));
}

UTestWall::~UTestWall()
{
	--NumAlive;
}

void UTestWall::BeginDestroy()
{
	bBeginDestroyed = true;
	if (UTestWall* Wall = Cast<UTestWall>(Other.Get()))
	{
		// Dying together: the other one still exists, whatever the order.
		Wall->Number = -1;
	}
	Super::BeginDestroy();
}

void UTestKeeper::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(static_cast<UTestKeeper*>(InThis)->Kept);
	Super::AddReferencedObjects(InThis, Collector);
}
