// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

namespace HeaderTool
{
	class FDiagnostics;
	class FTypeTable;

	/** Holds a header of the module against the rules of the reflection system; resolves its types on the way. */
	void ValidateHeader(FHeader& Header, const FTypeTable& Types, FDiagnostics& Diagnostics);

	/** The constructor that the object system calls. */
	enum class EConstructor
	{
		Initializer, // UFoo(const FObjectInitializer&)
		Default, // UFoo()
		None // the class declares only others
	};

	/** What Class has, or inherits the shape of when it declares none. */
	EConstructor FindConstructor(const FClass& Class, const FTypeTable& Types);

}
