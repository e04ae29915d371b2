// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostObjects.h"
#include "HostState.h"
#include "TestPrinters.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

/** An object system of its own for each test, without the rest of an editor. */
class FObjectSystemTest : public testing::Test
{
protected:
	FObjectSystemTest() { HostObjects::Boot(); }

	~FObjectSystemTest() override
	{
		HostObjects::TearDown();
		HostState::DestroyAll();
	}

	/** A class that a designer would derive from Parent. */
	static UClass* Derive(UClass* Parent) { return HostObjects::DeriveClass(Parent, TEXT("Derived_C"), GetTransientPackage()); }
};
