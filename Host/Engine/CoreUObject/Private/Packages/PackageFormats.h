// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostPackages.h"

/** A class's own reader and writer. */
struct FPackageFormat
{
	HostPackages::FReader Reader;
	HostPackages::FWriter Writer; // unset: never written

	/** Null for classes that are stored like all others. */
	static const FPackageFormat* Find(const FString& ClassPath);
};
