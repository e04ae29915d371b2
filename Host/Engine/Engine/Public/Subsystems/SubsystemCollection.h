// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "Templates/SubclassOf.h"
#include "UObject/GCObject.h"

/** The subsystems of one owner: one per class that is not abstract and wants to be made. Keeps them alive. */
class ENGINE_API FSubsystemCollectionBase : public FGCObject
{
public:
	/** Makes the subsystems in order of class path, each one's dependencies before it. */
	void Initialize(UObject* NewOuter);

	/** Takes them down in reverse order of their making. */
	void Deinitialize();

	//~ Begin FGCObject
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;
	//~ End FGCObject

protected:
	explicit FSubsystemCollectionBase(UClass* InBaseType);

	/** The one of exactly this class, else the first made of a class below it. */
	USubsystem* GetSubsystemInternal(UClass* SubsystemClass) const;

private:
	USubsystem* Make(UClass* SubsystemClass);

	UClass* BaseType;
	TObjectPtr<UObject> Outer;
	TArray<TObjectPtr<USubsystem>> Subsystems; // in order of making; one stands here before its Initialize() runs
};

template<typename TBaseType>
class FObjectSubsystemCollection : public FSubsystemCollectionBase
{
public:
	FObjectSubsystemCollection()
		: FSubsystemCollectionBase(TBaseType::StaticClass())
	{
	}

	template<typename TSubsystemClass>
	TSubsystemClass* GetSubsystem(const TSubclassOf<TSubsystemClass>& SubsystemClass) const
	{
		return Cast<TSubsystemClass>(GetSubsystemInternal(SubsystemClass));
	}
};
