// Copyright Velmorant. All Rights Reserved.

#include "FixtureConstruction.h"

UFixtureInitialized::UFixtureInitialized(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	Value = 2;
}

UFixtureInitialized::~UFixtureInitialized() = default;

UFixtureLegacyBody::UFixtureLegacyBody(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Value(3)
{
}
