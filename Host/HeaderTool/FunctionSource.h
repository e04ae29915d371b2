// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CodeWriter.h"
#include "Model.h"

namespace HeaderTool
{
	/** `struct Function_X { … };` inside of the statics of Class: parameter block, parameter table, metadata. */
	void WriteFunctionTables(FCodeWriter& Writer, const FClass& Class, const FFunction& Function);

	/** The entry of a function in the table of its class. */
	void WriteFunctionRecord(FCodeWriter& Writer, const FClass& Class, const FFunction& Function);

	/** The bodies that the tool writes for a function: thunk, event, default implementation, Execute_. */
	void WriteFunctionBodies(FCodeWriter& Writer, const FClass& Class, const FFunction& Function);
}
