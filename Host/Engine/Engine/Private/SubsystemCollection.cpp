// Copyright Velmorant. All Rights Reserved.

#include "Subsystems/SubsystemCollection.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

FSubsystemCollectionBase::FSubsystemCollectionBase(UClass* InBaseType)
	: BaseType(InBaseType)
{
}

void FSubsystemCollectionBase::Initialize(UObject* NewOuter)
{
	Outer = NewOuter;
	TArray<UClass*> Classes;
	GetDerivedClasses(BaseType, Classes, true);
	Classes.Sort([](const UClass& Left, const UClass& Right) { return Left.GetPathName().Compare(Right.GetPathName()) < 0; });
	for (UClass* Class : Classes)
	{
		Make(Class);
	}
}

void FSubsystemCollectionBase::Deinitialize()
{
	while (!Subsystems.IsEmpty())
	{
		USubsystem* Last = Subsystems.Last();
		Last->Deinitialize();
		Subsystems.Remove(Last);
	}
	Outer = nullptr;
}

USubsystem* FSubsystemCollectionBase::Make(UClass* SubsystemClass)
{
	for (USubsystem* Existing : Subsystems)
	{
		if (Existing->GetClass() == SubsystemClass)
		{
			return Existing;
		}
	}
	if (SubsystemClass->HasAnyClassFlags(CLASS_Abstract) || !SubsystemClass->GetDefaultObject<USubsystem>()->ShouldCreateSubsystem(Outer))
	{
		return nullptr;
	}
	USubsystem* Made = NewObject<USubsystem>(Outer, SubsystemClass);
	const int32 Index = Subsystems.Add(Made);
	Made->Initialize(*this);

	// Those it asked for came after it in the list but are initialised before it: put it where it belongs for the way down.
	if (Index != Subsystems.Num() - 1)
	{
		Subsystems.RemoveAt(Index);
		Subsystems.Add(Made);
	}
	return Made;
}

USubsystem* FSubsystemCollectionBase::GetSubsystemInternal(UClass* SubsystemClass) const
{
	USubsystem* BelowIt = nullptr;
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem->GetClass() == SubsystemClass)
		{
			return Subsystem;
		}
		if (BelowIt == nullptr && Subsystem->IsA(SubsystemClass))
		{
			BelowIt = Subsystem;
		}
	}
	return BelowIt;
}

void FSubsystemCollectionBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(Outer);
	Collector.AddReferencedObjects(Subsystems);
}

FString FSubsystemCollectionBase::GetReferencerName() const
{
	return TEXT("FSubsystemCollectionBase");
}
