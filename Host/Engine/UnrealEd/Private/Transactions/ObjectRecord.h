// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostScratchValue.h"
#include "Templates/UniquePtr.h"
#include "UObject/Object.h"

/**
 * What one object was when a step first changed it and, once the step has ended, what it was then: reflected properties, name, outer,
 * and whether it was garbage. Only what differs is kept.
 */
class FObjectRecord
{
public:
	explicit FObjectRecord(UObject& InObject);

	/** The step has ended. @return whether the object is any different now. */
	bool Finish();

	UObject& GetObject() const { return *Object; }

	void RestoreBefore();
	void RestoreAfter();

	/** The object, where it was and is, and what its values refer to. */
	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	/** What is no property. */
	struct FPlace
	{
		explicit FPlace(const UObject& InObject);
		bool operator==(const FPlace& Other) const;

		FName Name;
		UObject* Outer;
		bool bGarbage;
	};

	struct FValue
	{
		const FProperty* Property;
		TUniquePtr<FScratchValue> Before;
		TUniquePtr<FScratchValue> After; // null until the step has ended
	};

	void MoveTo(const FPlace& Place);
	void Write(TUniquePtr<FScratchValue> FValue::*Moment);

	UObject* Object;
	FPlace Before;
	FPlace After;
	TArray<FValue> Values;
};
