// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/UObjectGlobals.h"

/** Anything outside the object system that keeps objects alive, by naming them in each collection. */
class FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject&);
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	/** For reports about who keeps what. */
	virtual FString GetReferencerName() const = 0;

private:
	friend class FGarbageCollector;

	FGCObject* Previous = nullptr;
	FGCObject* Next = nullptr;
};
